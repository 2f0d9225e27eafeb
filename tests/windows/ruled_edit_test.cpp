// An edit that obeys a rule, under real keys.
#include "windows/ruled_edit.h"

#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

#include "support/test.h"

namespace qor::test {
namespace {

// A rule's edit, and another one to go to.
class Form {
 public:
  explicit Form(const EditRule& rule, RuledEdit::Shown shown = {})
      : ruled(
            edit, rule, [this](const CheckedText& checked) { told.push_back(checked.value); },
            std::move(shown)) {
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(&edit);
    layout->addWidget(&other);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    edit.setFocus();
  }

  // Steps and the text behind each: how and what, such as "types 12 => 12". "selects" is all, and a
  // key may paste.
  void expect(const std::string& steps) {
    for (const auto& [step, text] : rowsOf(steps, " => ")) {
      const auto [how, typed] = rowsOf(step).front();
      const QString what = QString::fromStdString(typed);
      if (how == "types") {
        QTest::keyClicks(&edit, what);
      } else if (how == "selects") {
        edit.selectAll();
      } else if (how == "composes") {
        QInputMethodEvent event;
        event.setCommitString(what);
        QCoreApplication::sendEvent(&edit, &event);
      } else {
        QGuiApplication::clipboard()->setText(what);
        QTest::keySequence(&edit, QKeySequence(how.c_str()));
      }
      EXPECT_EQ(edit.text().toStdString(), text) << step;
    }
  }

  QWidget window;
  QLineEdit edit;
  QLineEdit other;
  std::vector<double> told;
  RuledEdit ruled;
};

TEST(RuledEdit, takesTypedKeysAsTheRuleSays) {
  Form copies(copiesRule());
  copies.expect(
      "types a1,2 => 12|Backspace => 1|Backspace => |types 0 => 1|Home => 1|types 0 => 1|"
      "types 234 => 123");  // behind the text that was corrected
  copies.edit.setSelection(0, 2);
  copies.expect("types 9 => 93|Ctrl+Z => 123");
  copies.edit.setText("07");
  EXPECT_EQ(copies.edit.text(), "07") << "what the owner shows stays";
  EXPECT_EQ(copies.told, (std::vector<double>{1, 12, 1, 1, 1, 1, 12, 123, 93, 123}));
  Form(pagesRule()).expect("types 3,-0,12 => 3,12|Up => 3,12");
}

TEST(RuledEdit, pastesWholeTextsOrNothing) {
  Form page(pageSizeRule(','));
  // The last but two is a digit, but none of a number that is read here.
  page.expect(
      "Ctrl+V 0.5 => 0,5|Shift+Ins 7 => 0,5|selects => 0,5|Ctrl+V 1234 => 0,5|Shift+Ins 7 => 7|"
      "composes x => 7|selects => 7|composes x => 7|End => 7|composes \u0661 => 7|selects => 7|"
      "composes 12.5 => 12,5");
  EXPECT_EQ(page.told, (std::vector<double>{0.5, 7, 12.5}));
  page.edit.clear();
  page.expect("composes 0 => |composes 3 => 3");  // as if they were typed
  EXPECT_FALSE(page.edit.acceptDrops());
  EXPECT_EQ(page.edit.contextMenuPolicy(), Qt::NoContextMenu);
  page.edit.setReadOnly(true);
  page.expect("Up => 3");
}

TEST(RuledEdit, stepsByArrowKeysAndShowsItsValueWhenItIsLeft) {
  Form height(fontHeightRule(','), [] { return "10"; });
  height.expect("Up => 11|Down => 10");
  height.ruled.stepBy(-20);
  height.expect("End => 1|Backspace => |Tab => 10");
  EXPECT_TRUE(height.other.hasFocus());
  EXPECT_EQ(height.told, (std::vector<double>{11, 10, 1, 10}));
}

}  // namespace
}  // namespace qor::test
