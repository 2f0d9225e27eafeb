// Alignment lines in the window: coming and going, moving, and their properties.
#include <QAction>
#include <QCheckBox>
#include <QColorDialog>
#include <QPushButton>
#include <QRadioButton>

#include "base/path.h"
#include "windows/alignment/alignment_line.h"
#include "windows/alignment/tfrm_row_sets.h"
#include "windows/full_disk.h"
#include "windows/view/window.h"

namespace qor::test {
namespace {

// The user's own file, which goes before the program's.
class AlignmentLinesInWindow : public testing::Test {
 protected:
  AlignmentLinesInWindow() { store(""); }
  ~AlignmentLinesInWindow() override { std::filesystem::remove(path()); }

  static std::string path() { return std::string(directoryOf(settingsFile())) + "QorRow.ini"; }
  static void store(const std::string& ini) {
    std::filesystem::create_directories(directoryOf(settingsFile()));
    std::ofstream(path(), std::ios::binary) << ini;
  }

  static Window::Start report() { return {reportOfPages(3), Window::zoomed(6)}; }

  static AlignmentLine* line(Window& window, const char* name = "shape_line") {
    window.settle();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return window.form().findChild<AlignmentLine*>(name);
  }

  // The text of an entry of the window's menu, once it has been opened.
  static std::string entry(Window& window, const char* name) {
    window.press("Shift+F10");
    auto* menu = window.form().findChild<QMenu*>("mnuPopup");
    menu->close();
    return window.form().findChild<QAction*>(name)->text().section('\t', 0, 0).toStdString();
  }

  static void drag(AlignmentLine& line, int from, int to) {
    QTest::mousePress(&line, Qt::LeftButton, {}, QPoint(50, from));
    QMouseEvent move(QEvent::MouseMove, QPointF(50, to), line.mapToGlobal(QPointF(50, to)),
                     Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(&line, &move);
    QTest::mouseRelease(&line, Qt::LeftButton, {}, QPoint(50, to));
  }
};

TEST_F(AlignmentLinesInWindow, comeAndGo) {
  Window window(report());
  EXPECT_EQ(line(window), nullptr);
  EXPECT_FALSE(window.form().findChild<QAction*>("mnuProperties")->isEnabled());
  EXPECT_EQ(entry(window, "mnuShapeLine"), "Show alignment line");
  EXPECT_FALSE(window.form().findChild<QAction*>("mnuRowLine")->isVisible());
  window.press("mnuShapeLine");
  AlignmentLine* shape = line(window);
  ASSERT_NE(shape, nullptr);
  EXPECT_EQ(shape->geometry(), QRect(0, 0, window.area().viewport()->width(), 18));
  EXPECT_EQ(entry(window, "mnuShapeLine"), "Hide alignment line");
  EXPECT_EQ(entry(window, "mnuRowLine"), "Show row line");
  window.press("Ctrl+R");
  ASSERT_NE(line(window, "row_line"), nullptr);
  EXPECT_EQ(entry(window, "mnuRowLine"), "Hide row line");
  window.resize({700, 500});
  EXPECT_EQ(shape->width(), window.area().viewport()->width());
  // A frame of dots, and the page through it.
  const QImage seen = window.picture("pScroll");
  const auto isRed = [&seen](int x, int y) { return seen.pixelColor(x, y) == QColor(Qt::red); };
  int red = 0;
  for (int x = 100; x < 200; ++x) red += isRed(x, 17) ? 1 : 0;
  EXPECT_TRUE(red > 20 && red < 80) << red;
  EXPECT_FALSE(isRed(150, 9));

  // The line's own menu takes it away.
  QTimer::singleShot(0, [] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu != nullptr && menu->objectName() == "PopUpMnuUser");
    std::string texts;
    for (const QAction* action : menu->actions()) texts += action->text().toStdString() + "|";
    EXPECT_EQ(texts, "Line Properties||Delete Line|");
    menu->actions().back()->trigger();
    menu->close();
  });
  QContextMenuEvent menu(QContextMenuEvent::Mouse, QPoint(9, 9), shape->mapToGlobal(QPoint(9, 9)));
  QApplication::sendEvent(shape, &menu);
  EXPECT_EQ(line(window), nullptr);
  window.press("Ctrl+L");
  line(window)->setFocus();
  QTest::keyClick(line(window), Qt::Key_Delete);
  EXPECT_EQ(line(window), nullptr);
  EXPECT_EQ(window.form().focusWidget(), &window.area());
  window.press("Ctrl+R");
  EXPECT_EQ(line(window, "row_line"), nullptr);
}

// The page stays where it is under a drag, and a line stays on the page and in sight.
TEST_F(AlignmentLinesInWindow, moveByMouseAndKeys) {
  Window window(report());
  window.press("Ctrl+L");
  AlignmentLine& shape = *line(window);
  const int top = window.pageControl().y();
  const int height = window.area().viewport()->height();
  ASSERT_GT(top, 0);
  const std::tuple<int, int, int> drags[] = {// from, to, and the line's top behind it
                                             {5, 105, 100},
                                             {5, 5 - (100 - top), 100},
                                             {5, 5 - (100 - top - 1), top + 1},
                                             {5, 5 + height - 19 - top, top + 1},
                                             {5, 5 + height - 20 - top, height - 19}};
  for (const auto& [from, to, expected] : drags) {
    drag(shape, from, to);
    EXPECT_EQ(shape.y(), expected) << from << " " << to;
  }
  EXPECT_EQ(window.scrolled(), 0);
  drag(shape, 5, 5 + 100 - shape.y());
  // 96 dots are 25.4 mm of the sheet, whose top is seen.
  const auto hint = [](int pixels) {
    return QString("Alignment line Y = %1 mm").arg(pixels * 25.4 / 96, 0, 'f', 1).toStdString();
  };
  EXPECT_EQ(shape.toolTip().toStdString(), hint(100 - top));
  window.area().verticalScrollBar()->setValue(30);
  drag(shape, 5, 6);
  EXPECT_EQ(shape.toolTip().toStdString(), hint(101 - top + 30));

  shape.setFocus();
  const auto pressed = [&](const char* key) {
    const int before = shape.y();
    window.press(key);
    return shape.y() - before;
  };
  EXPECT_EQ(pressed("Down"), 1);
  EXPECT_EQ(shape.toolTip().toStdString(), hint(102 - top + 30));
  window.area().verticalScrollBar()->setValue(0);
  EXPECT_EQ(shape.toolTip().toStdString(), hint(102 - top)) << "the page goes on under it";
  window.area().verticalScrollBar()->setValue(30);
  EXPECT_EQ(pressed("Up"), -1);
  // Courier New of 10 points has rows of 11.3 points.
  EXPECT_EQ(pressed("Ctrl+Down"), 15);
  EXPECT_EQ(pressed("Ctrl+Up"), -15);
  window.press("Ctrl+Down", 10);
  EXPECT_EQ(shape.y(), 101 + 151);
  window.press("Ctrl+Up", 10);
  EXPECT_EQ(window.scrolled(), 30);
  QTimer::singleShot(50, [] {
    QWidget* popup = QApplication::activePopupWidget();
    EXPECT_TRUE(popup != nullptr && popup->objectName() == "PopUpMnuUser");
    if (popup != nullptr) popup->close();
  });
  window.press("Shift+F10");
  EXPECT_EQ(window.press("PgDown"), 2) << "other keys are the window's";
  EXPECT_EQ(shape.y(), 101);
  shape.putTo(0);
  EXPECT_EQ(pressed("Down"), top + 1) << "it comes onto the page";
  shape.putTo(top + 5);
  window.press("mnuWideView");
  EXPECT_EQ(shape.y(), window.pageControl().y() + 1) << "near the top";
  window.press("Esc");
  EXPECT_TRUE(window.form().isVisible() && window.area().hasFocus());
}

// Without the focus it goes along with the page, and where its way ends the next page comes.
TEST_F(AlignmentLinesInWindow, walkOverPages) {
  store("[RowSet]\r\nLastTop=40\r\nShowFlag=1\r\n[ShapeSet]\r\nShowFlag=0\r\n");
  Window window(report());
  AlignmentLine* row = line(window, "row_line");
  ASSERT_TRUE(row != nullptr && line(window) == nullptr);
  EXPECT_TRUE(window.area().hasFocus());
  EXPECT_EQ(row->y(), 40);
  const int step = window.area().verticalScrollBar()->singleStep();
  const int top = window.pageControl().y();
  const int lowest = std::min(872, window.area().viewport()->height() - 19);
  EXPECT_EQ(window.press("Down"), 1);
  EXPECT_EQ(row->y(), 40 + step);
  EXPECT_EQ(window.scrolled(), step);
  EXPECT_EQ(window.press("Up", 3), 1) << "there is no page before";
  EXPECT_LE(row->y(), 40);
  window.press("End");
  EXPECT_EQ(row->y(), lowest);
  EXPECT_EQ(window.press("Down"), 2);
  EXPECT_EQ(row->y(), top + 1);
  EXPECT_EQ(window.press("Up"), 1);
  EXPECT_EQ(row->y(), lowest);
  EXPECT_EQ(window.scrolled(), window.area().verticalScrollBar()->maximum());
  window.press("Ctrl+Home");
  row->putTo(200);
  EXPECT_EQ(window.press("Ctrl+End"), 3);
  EXPECT_EQ(row->y(), lowest);
  EXPECT_EQ(window.press("Down"), 3) << "there is no page behind";
  window.press("Ctrl+L");
  window.press("End");
  EXPECT_EQ(row->y() - line(window)->y(), line(window)->height()) << "neither hides the other";
  window.press("Ctrl+L");
  row->putTo(123);
  window.close();
  EXPECT_EQ(readFile(path()),
            "[RowSet]\r\nLastTop=123\r\nShowFlag=1\r\n[ShapeSet]\r\nShowFlag=0\r\n");
  Window again(report());
  EXPECT_EQ(line(again, "row_line")->y(), 123);
  again.resize({500, 200});
  EXPECT_LT(line(again, "row_line")->geometry().bottom(), again.area().viewport()->height());
}

// Opens the properties and does the steps in them; texts of boxes that come.
template <class Steps>
std::string inProperties(Window& window, Steps steps) {
  std::string boxes;
  const WhileOpen<QMessageBox> closing([&boxes](QMessageBox& box) {
    boxes += box.text().toStdString() + "|";
    box.button(QMessageBox::Ok)->click();
  });
  const WhileOpen<QColorDialog> choosing([](QColorDialog& dialog) {
    dialog.setCurrentColor(QColor(1, 2, 3));
    dialog.accept();
  });
  inForm<TfrmRowSets>(window, "mnuProperties", steps);
  return boxes;
}

void type(TfrmRowSets& form, const char* edit, const char* text) {
  typeInto(*form.findChild<QLineEdit*>(edit), text);
}

TEST_F(AlignmentLinesInWindow, takeTheSameProperties) {
  store("[ShapeSet]\r\nColor =65280\r\nPenStyle=9\r\nLastTop=50\r\n");
  Window window(report());
  window.press("Ctrl+L");
  const auto click = [](TfrmRowSets& form, const char* name) {
    form.findChild<QAbstractButton*>(name)->click();
  };
  const std::string told = inProperties(window, [&](TfrmRowSets& form) {
    EXPECT_EQ(form.windowTitle(), "Line Properties");
    EXPECT_EQ(form.findChild<QLineEdit*>("txtHeight")->text(), "18");
    const auto styles = form.findChildren<QRadioButton*>();
    EXPECT_TRUE(styles.size() == 5 && styles[2]->isChecked());
    EXPECT_TRUE(form.findChild<QLineEdit*>("txtColor")->styleSheet().contains("#00ff00"));
    for (const auto& [name, text] : {std::pair("cmdOk", " Apply "),
                                     {"cmdCancel", " Cancel"},
                                     {"btnColor", "Color"},
                                     {"cbRowShowFlag", "Show lIne when open design"}})
      EXPECT_EQ(form.findChild<QAbstractButton*>(name)->text(), text);
    type(form, "txtHeight", "abc");
    click(form, "cmdOk");
    EXPECT_TRUE(form.isVisible());
    type(form, "txtHeight", "30");
    EXPECT_EQ(form.findChild<QScrollBar*>("UpDown1")->value(), -30);
    auto* arrows = form.findChild<QScrollBar*>("UpDown2");
    for (int i = 0; i < 3; ++i) QTest::mouseClick(arrows, Qt::LeftButton, {}, QPoint(5, 3));
    EXPECT_EQ(form.findChild<QLineEdit*>("txtWidth")->text(), "4");
    click(form, "btnColor");
    styles[0]->click();
    click(form, "cmdOk");
    EXPECT_FALSE(form.isVisible());
  });
  EXPECT_EQ(told, "\"abc\" is not a whole number|");
  EXPECT_EQ(line(window)->geometry(), QRect(0, 50, window.area().viewport()->width(), 30));
  EXPECT_EQ(window.picture("pScroll").pixelColor(100, 51), QColor(1, 2, 3));
  const std::string shape =
      "[ShapeSet]\r\nColor =65280\r\nPenStyle=0\r\nLastTop=50\r\nHeight=30\r\n"
      "Color=197121\r\nPenWidth=4\r\nShowFlag=0\r\n";
  EXPECT_EQ(readFile(path()), shape);

  window.press("Ctrl+R");
  EXPECT_EQ(line(window, "row_line")->height(), 18);
  inProperties(window, [&](TfrmRowSets& form) {
    type(form, "txtWidth", "99");
    click(form, "cbRowShowFlag");
    click(form, "cmdOk");
  });
  EXPECT_EQ(line(window, "row_line")->height(), 30);
  const LineLook row = lookIn(readFile(path()), LineKind::row);
  EXPECT_EQ(row, (LineLook{30, 255, 0, 10, 0, 1})) << "the colour isn't read back";
  EXPECT_EQ(lookIn(readFile(path()), LineKind::shape), (LineLook{30, 65280, 0, 10, 50, 1}));

  // A file that can't be written: one box, and the dialog stays.
  std::string why;
  onAFullDisk(10, [&] {
    why = inProperties(window, [&](TfrmRowSets& form) {
      type(form, "txtHeight", "40");
      click(form, "cmdOk");
      EXPECT_TRUE(form.isVisible());
    });
  });
  EXPECT_TRUE(why.ends_with("QorRow.ini: File too large|")) << why;
  EXPECT_EQ(line(window)->height(), 30);
}

}  // namespace
}  // namespace qor::test
