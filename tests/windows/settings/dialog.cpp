// Driving the dialog.
#include "windows/settings/dialog.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QTabWidget>
#include <QTimer>
#include <QTreeWidget>
#include <exception>

#include <gtest/gtest.h>

namespace qor::test {

Window::Start withSettings(const std::string& report, const Settings& stored) {
  Window::Start start{report, stored};
  start.commands.settings = settingsForm();
  return start;
}

QRect inkOf(const QImage& image) {
  QRegion ink;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixelColor(x, y) != Qt::white) ink += QRect(x, y, 1, 1);
  return ink.boundingRect();
}

void Dialog::in(Window& window, const std::function<void(Dialog&)>& steps) {
  std::exception_ptr thrown;
  bool opened = false;
  QTimer::singleShot(0, &window.form(), [&] {
    auto* form = qobject_cast<TfrmSets*>(QApplication::activeModalWidget());
    if (form == nullptr) return;
    opened = true;
    try {
      Dialog dialog(*form);
      steps(dialog);
    } catch (...) {
      thrown = std::current_exception();
    }
    if (form->isVisible()) form->reject();
  });
  window.press("F4");
  if (thrown) std::rethrow_exception(thrown);
  ASSERT_TRUE(opened);
}

std::string Dialog::text(const std::string& name) {
  QWidget& widget = control(name);
  if (const auto* edit = qobject_cast<QLineEdit*>(&widget)) return edit->text().toStdString();
  if (const auto* box = qobject_cast<QComboBox*>(&widget)) return box->currentText().toStdString();
  if (const auto* button = qobject_cast<QAbstractButton*>(&widget))
    return button->text().toStdString();
  if (const auto* list = qobject_cast<QListView*>(&widget))
    return list->currentIndex().data().toString().toStdString();
  return static_cast<QLabel&>(widget).text().toStdString();
}

std::string Dialog::texts(const std::vector<std::string>& names) {
  std::string all;
  for (const std::string& name : names) all += text(name) + "|";
  all.pop_back();
  return all;
}

bool Dialog::isOn(const std::string& name) {
  return control<QAbstractButton>(name).isChecked();
}

void Dialog::goTo(int tab) {
  control<QTabWidget>("Pages_Sets").setCurrentIndex(tab);
  Window::settle();
}

void Dialog::key(const std::string& keys, int times) {
  const QKeyCombination combination = QKeySequence(QString::fromStdString(keys))[0];
  for (int i = 0; i < times; ++i) {
    QWidget* focus = form_.focusWidget();
    QTest::keyClick(focus == nullptr ? &form_ : focus, combination.key(),
                    combination.keyboardModifiers());
  }
  Window::settle();
}

// A check box or a radio button is clicked on its mark.
void Dialog::click(const std::string& name) {
  QWidget& widget = control(name);
  ASSERT_TRUE(widget.isVisible() && widget.isEnabled()) << name;
  QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(10, widget.height() / 2));
  Window::settle();
}

void Dialog::type(const std::string& name, const std::string& text) {
  auto& edit = control<QLineEdit>(name);
  ASSERT_TRUE(edit.isEnabled()) << name;
  edit.setFocus();
  edit.selectAll();
  QTest::keyClick(&edit, Qt::Key_Delete);
  QTest::keyClicks(&edit, QString::fromStdString(text));
}

void Dialog::choose(const std::string& name, const std::string& row) {
  const QString wanted = QString::fromStdString(row);
  QWidget& widget = control(name);
  if (auto* tree = qobject_cast<QTreeWidget*>(&widget)) {
    QTreeWidgetItem* item = nullptr;
    const auto comes = [&] {
      item = tree->findItems(wanted, Qt::MatchExactly).value(0);
      return item != nullptr;
    };
    ASSERT_TRUE(QTest::qWaitFor(comes)) << row;
    tree->scrollToItem(item);
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualItemRect(item).center());
  } else if (auto* box = qobject_cast<QComboBox*>(&widget)) {
    ASSERT_GE(box->findText(wanted), 0) << row;
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Home);
    while (box->currentText() != wanted) QTest::keyClick(box, Qt::Key_Down);
  } else {
    auto& list = static_cast<QListView&>(widget);
    const auto found = list.model()->match(list.model()->index(0, 0), Qt::DisplayRole, wanted, 1,
                                           Qt::MatchExactly);
    ASSERT_FALSE(found.isEmpty()) << row;
    list.scrollTo(found.front());
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(found.front()).center());
  }
  Window::settle();
}

void Dialog::choosePrinter(const std::string& name) {
  choose("treePrinters", name);
  ASSERT_TRUE(QTest::qWaitFor([this] { return control("cmdOk").isEnabled(); }));
}

std::string Dialog::answering(const std::function<void()>& step,
                              const std::function<void(QWidget&)>& by) {
  std::string text;
  QTimer::singleShot(0, &form_, [&] {
    QWidget* over = QApplication::activeModalWidget();
    if (over == nullptr || over == &form_) return;
    const auto* box = qobject_cast<QMessageBox*>(over);
    text = box == nullptr ? "dialog" : box->text().toStdString();
    by(*over);
  });
  step();
  return text;
}

}  // namespace qor::test
