// What the window says, where, and how often.
#include "platform/messages.h"

#include <QMessageBox>
#include <filesystem>

#include <gtest/gtest.h>

#include "preview/model/zoom_list.h"
#include "preview/window.h"

namespace qor::test {
namespace {

// The box of the window, if there is one to be seen.
QMessageBox* boxOf(Window& window) {
  QCoreApplication::processEvents();
  auto* box = window.form().findChild<QMessageBox*>();
  return box != nullptr && box->isVisible() ? box : nullptr;
}

bool standsOver(const QWidget& box, const QWidget& window) {
  const QPoint away = box.frameGeometry().center() - window.frameGeometry().center();
  return away.manhattanLength() <= 2;
}

TEST(PreviewMessages, errorsHaveABoxOverTheWindow) {
  Window window({reportOfPages(3)});
  window.form().showMessage(MessageKind::warning, "The disk is slow.");
  EXPECT_EQ(boxOf(window), nullptr);
  EXPECT_EQ(window.status(), "The disk is slow.");
  window.form().move(40, 30);
  window.form().showMessage(MessageKind::error, "The disk is full.");
  QMessageBox* box = boxOf(window);
  ASSERT_NE(box, nullptr);
  EXPECT_EQ(box->icon(), QMessageBox::Critical);
  EXPECT_EQ(box->text(), "The disk is full.");
  EXPECT_TRUE(standsOver(*box, window.form()));
  window.form().move(150, 90);
  EXPECT_TRUE(standsOver(*box, window.form())) << "where a window manager places the window late";
  box->move(10, 10);
  window.form().move(60, 60);
  EXPECT_EQ(box->pos(), QPoint(10, 10)) << "the user put it there";
  box->close();
  window.form().showMessage(MessageKind::error, "The disk is full.");
  EXPECT_EQ(boxOf(window), nullptr) << "told already";
}

TEST(PreviewMessages, boxesWaitForTheWindow) {
  Window::Start start{reportOfPages(3)};
  start.beforeShown = [](TfrmView& form) {
    form.showMessage(MessageKind::error, "The printer is gone.");
    QCoreApplication::processEvents();
    EXPECT_EQ(form.findChild<QMessageBox*>(), nullptr);
  };
  Window window(start);
  QMessageBox* box = boxOf(window);
  ASSERT_NE(box, nullptr);
  EXPECT_EQ(box->text(), "The printer is gone.");
  EXPECT_TRUE(standsOver(*box, window.form()));
}

QLabel& messageOf(Window& window) {
  return *window.view().findChild<QLabel*>("message");
}

// Where a message stands, from the middle of what is seen.
QPoint fromTheMiddle(Window& window) {
  QLabel& text = messageOf(window);
  QWidget& seen = *window.area().viewport();
  return text.mapTo(&seen, text.rect().center()) - seen.rect().center();
}

TEST(PreviewMessages, thePageAreaTellsWhyThereIsNoPage) {
  Window window({reportOfPages(3), Window::zoomed(2)});
  window.press(Qt::Key_End);
  window.press(Qt::Key_End, Qt::ShiftModifier);
  std::filesystem::remove(window.path());
  window.press(Qt::Key_PageDown);
  EXPECT_EQ(boxOf(window), nullptr) << "a third time would be too much";
  EXPECT_TRUE(messageOf(window).isVisible());
  EXPECT_NE(messageOf(window).text().indexOf("report.txt"), -1);
  EXPECT_EQ(window.status(), messageOf(window).text().toStdString());
  for (const QSize size : {QSize(1000, 800), QSize(1300, 600), QSize(800, 480)}) {
    window.form().resize(size);
    QCoreApplication::processEvents();
    EXPECT_LE(fromTheMiddle(window).manhattanLength(), 2) << size.width();
    EXPECT_EQ(boxOf(window), nullptr);
  }
}

// A part of the page that is drawn when it is scrolled to, with a code page that is gone by then.
TEST(PreviewMessages, aPageThatCantBeDrawnSaysSoInTheMiddle) {
  Window window({reportOfPages(3), Window::zoomed(0)});
  EXPECT_FALSE(messageOf(window).isVisible());
  window.picture("pScroll");
  window.doc().Settings.Page.BaseCodePage = 65432;
  window.press(Qt::Key_End);
  window.picture("pScroll");
  QCoreApplication::processEvents();
  EXPECT_TRUE(messageOf(window).isVisible());
  EXPECT_NE(messageOf(window).text(), "");
  EXPECT_LE(fromTheMiddle(window).manhattanLength(), 2);
  EXPECT_EQ(boxOf(window), nullptr);
}

}  // namespace
}  // namespace qor::test
