// Find in the report, driven by keys and mouse.
#include <QClipboard>
#include <QListView>
#include <QToolButton>
#include <random>

#include "document/document_text.h"
#include "window_model/recent_texts.h"
#include "windows/find/find_panel.h"
#include "windows/view/window.h"

namespace qor::test {
namespace {

// Of marks.
const QColor kPresent(255, 170, 60);
const QColor kOther(255, 235, 90);

class FindWindow : public Window {
 public:
  using Window::Window;

  QLineEdit& edit() { return control<QLineEdit>("txtFind"); }
  std::string found() { return control<QLabel>("lblFound").text().toStdString(); }
  QListView& list() { return control<QListView>("lstHits"); }

  // Opens the bar, types what is looked for and waits until all is searched.
  std::string find(const QString& text) {
    press("Ctrl+F");
    QTest::keyClicks(&edit(), text);
    if (text.isEmpty()) QTest::keyClick(&edit(), Qt::Key_Delete);
    return searched();
  }
  std::string searched() {
    while (parts().find.finder().isSearching()) settle();
    settle();
    return found();
  }
  void choose(const char* button) {
    QTest::mouseClick(&control(button), Qt::LeftButton);
    searched();
  }

  // Where the present hit is seen, and all others.
  QRect present() { return boxOf(picture("pScroll"), kPresent); }
  QRect others() { return boxOf(picture("pScroll"), kOther); }

  // Whether the present one is in the middle third of the area.
  bool isInMiddle() {
    const int top = present().top();
    return top >= area().height() / 3 - 8 && top <= area().height() * 2 / 3;
  }
};

// Pages of that many lines, with words in some of them.
std::string pagesWith(const std::vector<std::map<int, std::string>>& pages, int lines = 90) {
  std::string report;
  for (const auto& words : pages) {
    for (int line = 0; line < lines; ++line) {
      const auto word = words.find(line);
      report += (word == words.end() ? "-" : word->second) + "\r\n";
    }
    report += "\f";
  }
  return report;
}

TEST(Find, leadsFromHitToHitAndRound) {
  FindWindow window({pagesWith({{}, {{40, "Total 1"}, {66, "TOTAL 2"}}, {}, {{0, "to total"}}})});
  EXPECT_EQ(window.find("tot"), "1 of 3");
  EXPECT_EQ(window.page(), 2);
  EXPECT_TRUE(window.edit().hasFocus());
  EXPECT_TRUE(window.isInMiddle());
  const std::vector<std::tuple<const char*, int, const char*>> steps = {
      {"Return", 2, "2 of 3"},
      {"F3", 4, "3 of 3"},
      {"F3", 2, "1 of 3, went on at the other end"},
      {"Shift+F3", 4, "3 of 3, went on at the other end"},
      {"Shift+Return", 2, "2 of 3"}};
  for (const auto& [key, page, found] : steps) {
    window.press(key);
    EXPECT_EQ(window.searched(), found) << key;
    EXPECT_EQ(window.page(), page) << key;
  }
  // From another page the next hit is that behind its top.
  window.area().setFocus();
  window.press("Ctrl+End");
  window.press("Shift+F3");
  EXPECT_EQ(window.searched(), "2 of 3");
  EXPECT_FALSE(window.present().isEmpty());
  window.press("Escape");
  EXPECT_TRUE(window.present().isEmpty());
  EXPECT_FALSE(window.control("findBar").isVisible());
  EXPECT_TRUE(window.area().hasFocus());
  EXPECT_TRUE(window.form().isVisible());
  window.press("F3");
  EXPECT_TRUE(window.control("findBar").isVisible());
  EXPECT_EQ(window.edit().selectedText(), "tot");
  window.press("Escape");
  window.press("Escape");
  EXPECT_FALSE(window.form().isVisible());
}

TEST(Find, marksAllHitsOnViewThePresentOneDifferently) {
  FindWindow window({"xx abcd xx\r\n\r\n<b>ab<b/>cd\r\n", Window::zoomed(8)});
  EXPECT_EQ(window.find("abcd"), "1 of 2");
  const QRect first = window.present();
  const QRect second = window.others();
  EXPECT_LT(first.bottom(), second.top());
  window.press("F3");
  EXPECT_EQ(window.found(), "2 of 2");
  EXPECT_NEAR(window.others().top(), first.top(), 2);
  EXPECT_NEAR(window.present().top(), second.top(), 2);
  // Letters stay black where they are marked.
  EXPECT_GE(firstInk(window.picture("page_control"), QRect(100, 60, 400, 200)), 0);
  window.control<QLineEdit>("txtFind").clear();
  QTest::keyClicks(&window.edit(), "zz");
  EXPECT_EQ(window.searched(), "Not found");
  EXPECT_TRUE(window.present().isEmpty() && window.others().isEmpty());
}

// In Turkish "I" is another letter than "i".
// Whether a mark stands around text, and no text is beside it.
bool holdsInkOfItsRows(const QImage& page, const QRect& mark) {
  int inside = 0;
  for (int y = mark.top(); y <= mark.bottom(); ++y) {
    for (int x = 0; x < page.width(); ++x) {
      const QColor dot = page.pixelColor(x, y);
      if (dot.red() > 100 || dot.blue() > 100) continue;
      if (x < mark.left() - 1 || x > mark.right() + 1) return false;
      ++inside;
    }
  }
  return inside > mark.width();
}

TEST(Find, marksEachOfSeveralPages) {
  const std::string big = "<h1>MMMMMM<h1/>";
  FindWindow window(
      {pagesWith({{{20, big}}, {}, {{4, big}, {40, big}}}), {{"ZoomID", 9}, {"MultipageView", 1}}});
  const auto pageOf = [&window](int number) {
    return window.smallPages().at(number)->grab().toImage();
  };
  int presentTop = 0;
  // Such as "1! 3!*": the present hit on page 1, and another one on page 3, too.
  const auto marked = [&] {
    window.searched();
    QTest::qWait(1);  // pages are marked one after the other
    std::string told;
    for (const auto& [number, page] : window.smallPages()) {
      const QRect present = boxOf(pageOf(number), kPresent);
      const QRect others = boxOf(pageOf(number), kOther);
      if (!present.isNull()) presentTop = present.top();
      if (present.isNull() && others.isNull()) continue;
      told += std::to_string(number) + (others.isNull() ? "" : "*") + (present.isNull() ? "" : "!");
    }
    return told;
  };
  window.find("MMMMMM");
  EXPECT_EQ(marked(), "1!3*");
  EXPECT_TRUE(holdsInkOfItsRows(pageOf(1), boxOf(pageOf(1), kPresent)));
  window.press("F3");
  EXPECT_EQ(marked(), "1*3*!");
  const int first = presentTop;
  window.press("F3");
  EXPECT_EQ(marked(), "1*3*!");
  EXPECT_GT(presentTop, first);
  window.press("Ctrl++");
  EXPECT_EQ(marked(), "3*!");
  window.press("Escape");
  EXPECT_EQ(marked(), "");
}

// What was typed led to another page: more letters, or fewer, are looked for from the first one on.
TEST(Find, goesOnTypingFromWhereItBegan) {
  FindWindow window({pagesWith({{}, {{3, "x1"}}, {{3, "xy"}}, {{3, "x2"}}})});
  EXPECT_EQ(window.find("x"), "1 of 3");
  QTest::keyClicks(&window.edit(), "y");
  EXPECT_EQ(window.searched(), "1 of 1");
  EXPECT_EQ(window.page(), 3);
  QTest::keyClick(&window.edit(), Qt::Key_Backspace);
  EXPECT_EQ(window.searched(), "1 of 3");
  EXPECT_EQ(window.page(), 2);
  // A move is a choice, which a new start keeps, and where further letters begin.
  window.press("F3", 2);
  window.parts().find.finder().restart();
  EXPECT_EQ(window.searched(), "3 of 3");
  EXPECT_EQ(window.page(), 4);
  typeInto(window.edit(), "x");
  EXPECT_EQ(window.searched(), "3 of 3");
  // Nobody asks for rows of hits that are gone.
  window.choose("cmdHitList");
  window.parts().find.finder().stop();
  EXPECT_EQ(window.list().model()->rowCount(), 0);
}

TEST(Find, followsTheCodePage) {
  FindWindow window({"I i"});
  EXPECT_EQ(window.find("i"), "1 of 2");
  window.doc().Settings.Page.BaseCodePage = 1254;
  emit window.parts().pages.shown();
  EXPECT_EQ(window.searched(), "1 of 1");
  EXPECT_TRUE(window.others().isEmpty());
}

TEST(Find, knowsWordsCaseAndBlanks) {
  FindWindow window({"John   Smith johnny John Smith"});
  EXPECT_EQ(window.find("john"), "1 of 3");
  window.choose("cmdWholeWord");
  EXPECT_EQ(window.found(), "1 of 2");
  window.choose("cmdWholeWord");
  window.choose("cmdMatchCase");
  EXPECT_EQ(window.found(), "1 of 1");
  window.edit().setText("John Smith");
  window.choose("cmdMatchCase");
  EXPECT_EQ(window.found(), "1 of 2");
  window.choose("cmdAnyBlanks");
  EXPECT_EQ(window.found(), "1 of 1");
}

TEST(Find, answersInWordsWhatCantBeFound) {
  FindWindow window({"abc   d\fabc"});
  const int zoom = window.area().widget()->height();
  const std::vector<std::pair<QString, std::string>> rows = {
      {"", ""},
      {"   ", "Blanks alone are not looked for"},
      {"a\u4E2D", "The code page of the report has no \u201C\u4E2D\u201D"},
      {"abc \u4E2D", "The code page of the report has no \u201C\u4E2D\u201D"},
      {QString(10000, 'a'), "Not found"},
      {"+-", "Not found"},
      {"c", "1 of 2"}};
  for (const auto& [text, found] : rows) {
    window.press("Ctrl+F");
    window.edit().setText(text);
    emit window.edit().textEdited(text);
    EXPECT_EQ(window.searched(), found) << text.left(9).toStdString();
  }
  EXPECT_EQ(window.find("+-"), "Not found");
  EXPECT_EQ(window.area().widget()->height(), zoom);  // what is typed is no key of the window
  std::filesystem::resize_file(Window::path(), 1);
  emit window.edit().textEdited("c");
  EXPECT_NE(window.searched().find("changed"), std::string::npos) << window.found();
}

TEST(Find, listsAllHits) {
  FindWindow window({pagesWith({{{3, "  No. 17 of all"}}, {}, {{5, "no. 9 No. 10"}}})});
  window.press("Ctrl+End");
  window.find("no.");
  EXPECT_EQ(window.found(), "2 of 3");
  EXPECT_FALSE(window.list().isVisible());
  window.choose("cmdHitList");
  EXPECT_EQ(window.control<QLabel>("lblHits").text(), "3 hits");
  std::vector<std::string> rows;
  for (int i = 0; i < window.list().model()->rowCount(); ++i)
    rows.push_back(window.list().model()->index(i, 0).data().toString().toStdString());
  EXPECT_EQ(rows,
            (std::vector<std::string>{"1 No. 17 of all", "3 no. 9 No. 10", "3 no. 9 No. 10"}));
  EXPECT_EQ(window.list().currentIndex().row(), 1);
  window.press("F3");
  EXPECT_EQ(window.list().currentIndex().row(), 2);
  window.list().setFocus();
  QTest::keyClick(&window.list(), Qt::Key_Home);
  window.searched();
  EXPECT_EQ(window.page(), 1);
  EXPECT_EQ(window.found(), "1 of 3");
  QTest::keyClick(&window.list(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(),
            "1\tNo. 17 of all\n3\tno. 9 No. 10\n3\tno. 9 No. 10\n");
  window.press("Escape");
  EXPECT_FALSE(window.list().isVisible());
}

TEST(Find, remembersWhatWasLookedFor) {
  {
    FindWindow window({"abc"});
    window.find("first");
    window.press("Return");
    window.edit().clear();
    window.find("second");
    window.press("Escape");
    window.press("Ctrl+F");
    QTest::keyClick(&window.edit(), Qt::Key_Up);
    QTest::keyClick(&window.edit(), Qt::Key_Up);
    EXPECT_EQ(window.edit().text(), "first");
    QTest::keyClick(&window.edit(), Qt::Key_Down);
    EXPECT_EQ(window.edit().text(), "second");
  }
  QtUserSettings settings;
  EXPECT_EQ(recentTexts(settings, kRecentSearches), (std::vector<std::string>{"second", "first"}));
  std::filesystem::remove(settingsFile());
}

TEST(Find, goesOnInAReportThatGrows) {
  FindWindow window({.report = "hit\f\nhi", .dynamic = true});
  window.form().TimerDynamicBlincTimer();
  EXPECT_EQ(window.find("hit"), "1 of 1");
  std::ofstream(Window::path(), std::ios::app | std::ios::binary) << "t\f\nhit hit\f";
  window.form().TimerDynamicBlincTimer();
  EXPECT_EQ(window.searched(), "1 of 4");
  EXPECT_EQ(window.page(), 1);
}

// Random words of a report in each of four code pages, counted as well in its letters by another
// way.
TEST(Find, findsAsMuchAsThereIs) {
  for (const int codePage : {866, 1251, 857, 1254}) {
    std::mt19937 random(static_cast<unsigned>(codePage));
    std::string bytes;
    std::vector<std::string> words;
    for (int i = 0; i < 4000; ++i) {
      std::string word;
      for (std::size_t count = 1 + random() % 4; count > 0; --count) {
        // Letters without a dot: Turkish pairs have a test of their own.
        const std::string letters = random() % 2 == 0 ? "abcXYZ" : "\x82\x92\xC7\xE7\xD6\xF6";
        word += letters[random() % letters.size()];
      }
      words.push_back(word);
      bytes += word + (i % 200 == 199 ? "\f" : i % 7 == 6 ? "\r\n" : " ");
    }
    AppOptions.DocCodePage = codePage;
    FindWindow window({.report = bytes, .beforeShown = [codePage](TfrmView& form) {
                         form.parts().pages.document()->Settings.Page.BaseCodePage = codePage;
                       }});
    const DocumentText letters(codePage);
    const QString all = qtText(letters.utf8(bytes));
    for (int i = 0; i < 50; ++i) {
      const QString word = qtText(letters.utf8(words[random() % words.size()]));
      qsizetype expected = 0;
      for (qsizetype at = all.indexOf(word, 0, Qt::CaseInsensitive); at >= 0;
           at = all.indexOf(word, at + word.size(), Qt::CaseInsensitive))
        ++expected;
      window.press("Ctrl+F");
      window.edit().setText(word);
      emit window.edit().textEdited(word);
      window.searched();
      EXPECT_EQ(window.parts().find.finder().search().hits().total(),
                static_cast<std::uint64_t>(expected))
          << codePage << " " << word.toStdString();
    }
  }
}

}  // namespace
}  // namespace qor::test
