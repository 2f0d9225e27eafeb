// An edit that obeys a rule, under real keys.
#include "windows/ruled_edit.h"

#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

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

  std::string type(const QString& keys) {
    QTest::keyClicks(&edit, keys);
    return edit.text().toStdString();
  }
  std::string press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(&edit, key, modifiers);
    return edit.text().toStdString();
  }
  std::string paste(const char* text, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QGuiApplication::clipboard()->setText(text);
    return press(key, modifiers);
  }
  std::string compose(const QString& text) {
    QInputMethodEvent event;
    event.setCommitString(text);
    QCoreApplication::sendEvent(&edit, &event);
    return edit.text().toStdString();
  }

  QWidget window;
  QLineEdit edit;
  QLineEdit other;
  std::vector<double> told;
  RuledEdit ruled;
};

TEST(RuledEdit, typedKeysGoInAsTheRuleSays) {
  using enum Qt::Key;
  Form copies(copiesRule());
  EXPECT_EQ(copies.type("a1,2"), "12");
  EXPECT_EQ(copies.told, (std::vector<double>{1, 12}));
  EXPECT_EQ(copies.press(Key_Backspace), "1");
  EXPECT_EQ(copies.press(Key_Backspace), "");
  EXPECT_EQ(copies.told.back(), 1);
  EXPECT_EQ(copies.type("0"), "1");
  EXPECT_EQ(copies.press(Key_Home), "1");
  EXPECT_EQ(copies.type("0"), "1");
  EXPECT_EQ(copies.edit.cursorPosition(), 1) << "behind the text that was corrected";
  EXPECT_EQ(copies.type("234"), "123");
  copies.edit.setSelection(0, 2);
  EXPECT_EQ(copies.type("9"), "93");
  EXPECT_EQ(copies.press(Key_Z, Qt::ControlModifier), "123");
  EXPECT_EQ(copies.told.back(), 123);
  copies.edit.setText("07");
  EXPECT_EQ(copies.edit.text(), "07") << "what the owner shows stays";
  EXPECT_EQ(copies.told.back(), 123);
  Form page(pageSizeRule(','));
  EXPECT_EQ(page.type("12.55"), "12,5");
  EXPECT_EQ(page.told.back(), 12.5);
  page.edit.setReadOnly(true);
  EXPECT_EQ(page.press(Key_Up), "12,5");
}

TEST(RuledEdit, pastesWholeTextsOrNothing) {
  using enum Qt::Key;
  Form page(pageSizeRule(','));
  EXPECT_EQ(page.paste("0.5", Key_V, Qt::ControlModifier), "0,5");
  EXPECT_EQ(page.paste("7", Key_Insert, Qt::ShiftModifier), "0,5");
  EXPECT_EQ(page.told, std::vector<double>{0.5});
  page.edit.selectAll();
  EXPECT_EQ(page.paste("1234", Key_V, Qt::ControlModifier), "0,5");
  EXPECT_EQ(page.edit.selectedText(), "0,5");
  EXPECT_EQ(page.paste("7", Key_Insert, Qt::ShiftModifier), "7");
  EXPECT_EQ(page.compose("x"), "7");
  page.edit.selectAll();
  EXPECT_EQ(page.compose("x"), "7") << "nor is the selection lost";
  page.edit.deselect();
  EXPECT_EQ(page.compose(QChar(0x0661)), "7") << "a digit, but none of a number that is read here";
  page.edit.selectAll();
  EXPECT_EQ(page.compose("12.5"), "12,5");
  page.edit.clear();
  EXPECT_EQ(page.compose("0"), "") << "as if it were typed";
  EXPECT_EQ(page.compose("3"), "3");
  EXPECT_FALSE(page.edit.acceptDrops());
  EXPECT_EQ(page.edit.contextMenuPolicy(), Qt::NoContextMenu);
}

TEST(RuledEdit, arrowKeysStepAndOthersPass) {
  using enum Qt::Key;
  std::string shown = "10";
  Form height(fontHeightRule(','), [&shown] { return QString::fromStdString(shown); });
  EXPECT_EQ(height.press(Key_Up), "11");
  EXPECT_EQ(height.press(Key_Down), "10");
  EXPECT_EQ(height.told, (std::vector<double>{11, 10}));
  height.ruled.stepBy(-20);
  EXPECT_EQ(height.edit.text(), "1");
  EXPECT_EQ(height.press(Key_Backspace), "");
  height.press(Key_Tab);
  EXPECT_TRUE(height.other.hasFocus());
  EXPECT_EQ(height.edit.text(), "10");
  EXPECT_EQ(height.told, (std::vector<double>{11, 10, 1, 10}));
  Form pages(pagesRule());
  EXPECT_EQ(pages.type("3,-0,12"), "3,12");
  EXPECT_EQ(pages.press(Key_Up), "3,12");
}

}  // namespace
}  // namespace qor::test
