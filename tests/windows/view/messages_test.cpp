// What the window says, where, and how often; and what it finds out about pages behind the user's
// back: how they begin, and what of them it doesn't show.
#include <QAbstractButton>

#include "windows/view/window.h"

namespace qor::test {
namespace {

// The box of the window, if there is one to be seen.
QMessageBox* boxOf(Window& window) {
  Window::settle();
  auto* box = window.form().findChild<QMessageBox*>();
  return box != nullptr && box->isVisible() ? box : nullptr;
}

bool standsOver(const QWidget& box, const QWidget& window) {
  const QPoint away = box.frameGeometry().center() - window.frameGeometry().center();
  return away.manhattanLength() <= 2;
}

TEST(PreviewMessages, errorsHaveABoxOverTheWindow) {
  Window::Start start{reportOfPages(3)};
  start.beforeShown = [](TfrmView& form) {
    form.showMessage(MessageKind::error, "The printer is gone.");
    Window::settle();
    EXPECT_EQ(form.findChild<QMessageBox*>(), nullptr) << "it waits for the window";
  };
  Window window(start);
  QMessageBox* box = boxOf(window);
  ASSERT_NE(box, nullptr);
  EXPECT_EQ(box->icon(), QMessageBox::Critical);
  EXPECT_EQ(box->text(), "The printer is gone.");
  EXPECT_TRUE(standsOver(*box, window.form()));
  window.form().move(150, 90);
  EXPECT_TRUE(standsOver(*box, window.form())) << "where a window manager places the window late";
  box->move(10, 10);
  window.form().move(60, 60);
  EXPECT_EQ(box->pos(), QPoint(10, 10)) << "the user put it there";
  box->close();
  window.form().showMessage(MessageKind::warning, "The disk is slow.");
  EXPECT_EQ(window.status(), "The disk is slow.");
  for (const bool told : {false, true}) {
    window.form().showMessage(MessageKind::error, "The disk is full.");
    EXPECT_EQ(boxOf(window) == nullptr, told);
    box->close();
  }
}

// That the text in the place of a page is seen, in the middle of what is seen, and has no box.
void expectMessage(Window& window, const std::string& part) {
  auto& text = window.control<QLabel>("message");
  QWidget& seen = *window.area().viewport();
  EXPECT_TRUE(text.isVisible());
  EXPECT_NE(text.text().toStdString().find(part), std::string::npos) << text.text().toStdString();
  const QPoint away = text.mapTo(&seen, text.rect().center()) - seen.rect().center();
  EXPECT_LE(away.manhattanLength(), 2) << seen.width();
  EXPECT_EQ(boxOf(window), nullptr);
}

TEST(PreviewMessages, thePageAreaTellsWhyThereIsNoPage) {
  Window window({reportOfPages(3), Window::zoomed(0)});
  EXPECT_FALSE(window.control("message").isVisible());
  // A part of the page is drawn when it is scrolled to, with a code page that is gone by then.
  window.picture("pScroll");
  window.doc().Settings.Page.BaseCodePage = 65432;
  window.press("End");
  window.picture("pScroll");
  Window::settle();
  expectMessage(window, "65432");
  window.doc().Settings.Page.BaseCodePage = 1251;
  window.press("Shift+End");
  std::filesystem::remove(Window::path());
  window.press("PgDown");
  EXPECT_NE(window.status().find("report.txt"), std::string::npos) << window.status();
  for (const QSize size : {QSize(1000, 800), QSize(1300, 600), QSize(800, 480)}) {
    expectMessage(window, window.status());
    window.resize(size);
  }
  expectMessage(window, window.status());
}

// Lets the window do what it does while nobody asks for anything.
void idle(Window& window) {
  const auto known = [&window] { return window.doc().KnownStarts() >= window.page(); };
  EXPECT_TRUE(QTest::qWaitFor(known, 60000));
  for (int i = 0; i < 20; ++i) Window::settle();
}

// The inside of the sheet, without its frame.
QImage insideOfSheet(const QImage& picture) {
  return picture.copy(2, 2, 780, 1000).convertToFormat(QImage::Format_RGB32);
}

QImage onView(Window& window) {
  idle(window);
  return insideOfSheet(window.picture("page_control"));
}

// A page on view is the page of a run that reads all of them in their order.
TEST(PreviewNotes, pagesLookAsWhenAllAreReadInOrder) {
  const std::string report =
      "\033&l8Done <b>two\r\n\f\r\nthree<h1>four\r\n\r\nx\f\r\n<i>five <w1>six\r\n\f\r\n"
      "seven<h1/>eight\r\n\033W0nine\f\r\n<u>ten<vs>\r\neleven\r\n";
  Window window({report, {{"ZoomID", 6}, {"ShowUnprintable", 0}}});
  const auto& place = window.directory();
  expectTold(runViewer({"-f", Window::path(), "-codepage", "1251", "-export", "r.png"}, in(place)),
             "");
  const auto expected = [&place](int page) {
    return insideOfSheet(QImage(qtText(place.path("r(" + std::to_string(page) + ").png"))));
  };
  window.press("Ctrl+End");
  EXPECT_EQ(onView(window), expected(5));
  for (const int page : {2, 4, 1, 3, 5}) {
    window.resize({1000 + page, 800});
    window.press("Ctrl+Home");
    EXPECT_EQ(window.press("PgDown", page - 1), page);
    EXPECT_EQ(onView(window), expected(page)) << page;
  }
}

// What the status bar and the bar above the pages tell.
std::string told(Window& window) {
  idle(window);
  return window.status() + window.status("noteBarText");
}

TEST(PreviewNotes, tellWhatTheSheetDoesNotShow) {
  const std::string lines = QByteArray("line\r\n").repeated(86).toStdString();
  // 74 lines of 227 twips and 99 characters of 120 twips fit the sheet.
  const std::pair<std::string, std::string> rows[] = {
      {"all of it\r\n", ""},
      {lines, "12 lines are outside the sheet: wide view"},
      {lines + std::string(197, 'c') + "\r\n",
       "13 lines and 98 columns are outside the sheet: wide view"},
      {std::string(100, 'c') + "\r\n", "1 column is outside the sheet: wide view"},
      {std::string(99, 'c') + "      \r\n", ""},
      {"\xD0\xB0\xD0\xB1\r\n",
       "The report is text in UTF-8 and shows wrong letters: convert it to a code page"},
      {"a\nb\n", "Lines end with LF alone and run together: end them with CR LF"},
      {"a\n" + std::string(5000, 'b'),
       "4901 columns are outside the sheet: wide view"
       "Lines end with LF alone: they are shown as lines"},
  };
  for (const auto& [report, note] : rows) {
    Window window({report, Window::zoomed(6)});
    EXPECT_EQ(told(window), note);
  }
  Window window({"plain\r\n"});
  AppOptions.CodePageGiven = true;
  AppOptions.DocCodePage = 866;
  window.form().ShowPage();
  EXPECT_EQ(told(window), "The settings have chosen code page 1251, and not the command line's");
  // Once closed, the bar above the pages stays away.
  EXPECT_TRUE(window.control("noteBar").isVisible());
  window.press("noteBarClose");
  window.form().ShowPage();
  idle(window);
  EXPECT_FALSE(window.control("noteBar").isVisible());
}

TEST(PreviewNotes, leadToTheWideViewByAClick) {
  Window window({std::string(150, 'w') + "\r\n", Window::zoomed(6)});
  const auto& wide = window.control<QAbstractButton>("cmdView_WideView");
  const std::string note = "51 columns are outside the sheet: wide view";
  const std::pair<const char*, bool> rows[] = {{"stBarPages", false},
                                               {"stBarMessage", true},
                                               {"stBarMessage", true},
                                               {"cmdView_NormalView", false}};
  for (const auto& [clicked, isWide] : rows) {
    window.press(clicked);
    idle(window);
    EXPECT_EQ(wide.isChecked(), isWide) << clicked;
    EXPECT_EQ(window.pageControl().width(), isWide ? 1200 : 813) << clicked;
    EXPECT_EQ(window.status(), isWide ? "" : note) << clicked;
    // The last letters are at 150 times 8 pixels: 10 points, a twelfth of an inch each.
    EXPECT_EQ(firstInk(window.picture("page_control"), {1160, 0, 40, 30}) >= 0, isWide);
    EXPECT_EQ(window.pageControl().pos() == QPoint(0, 0), isWide);
  }
}

TEST(PreviewNotes, codePagesChangeTheViewAtOnce) {
  Window window({"\xC0\xC1\xC2 letters\r\n", Window::zoomed(6)});
  // Picks the code page in the menu; gives the one that was ticked.
  const auto choose = [&window](int codePage) {
    emit window.area().customContextMenuRequested({5, 5});
    std::string ticked;
    QAction* chosen = nullptr;
    for (QAction* entry : window.control<QMenu>("mnuCodePage").actions()) {
      if (entry->isChecked()) ticked += entry->text().toStdString();
      if (entry->data().toInt() == codePage) chosen = entry;
    }
    chosen->trigger();
    window.control<QMenu>("mnuPopup").close();
    return ticked;
  };
  const QImage cyrillic = onView(window);
  EXPECT_EQ(choose(28591), "1251 - Windows");
  const QImage latin = onView(window);
  EXPECT_NE(latin, cyrillic);
  EXPECT_EQ(choose(1252), "28591 - ISO 8859-1");
  EXPECT_NE(onView(window), latin);
  EXPECT_EQ(window.status(),
            "Code page 1252 leaves out letters: choose another one in the menu, as 28591");
  choose(1251);
  EXPECT_EQ(onView(window), cyrillic);
  EXPECT_EQ(window.status(), "");
}

TEST(PreviewNotes, knowWhetherTheReportWasSeen) {
  Window window({reportOfPages(2)});
  EXPECT_TRUE(window.form().hasShownReport());
  window.directory().write("report.txt", reportOfPages(3));
  EXPECT_FALSE(window.form().hasShownReport()) << "nobody has seen what it is now";
  EXPECT_FALSE(Window({""}).form().hasShownReport());
}

}  // namespace
}  // namespace qor::test
