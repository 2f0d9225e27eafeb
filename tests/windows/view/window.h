// A window on a report of a test's own.
#pragma once

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QScrollBar>
#include <QSettings>
#include <QTest>
#include <QTimer>

#include "language/language.h"
#include "platform/qt/qt_text.h"
#include "platform/qt/qt_user_settings.h"
#include "support/test.h"
#include "windows/view/page_image.h"
#include "windows/view/page_scroll.h"
#include "windows/view/tfrm_view.h"
#include "windows/view/view_parts.h"

namespace qor::test {

// A report of that many pages with text.
std::string reportOfPages(int pages);

// A report whose pages have text in one line each, behind so many empty ones.
std::string reportWithTextAt(const std::vector<int>& lines);

// The user's settings, and where they are kept.
inline QSettings userSettings() {
  return QSettings(QSettings::IniFormat, QSettings::UserScope, "QOR", "QorUtlView");
}
inline std::string settingsFile() {
  return userSettings().fileName().toStdString();
}

// The first row of a part of a picture that has black dots, -1 where none has.
int firstInk(const QImage& picture, const QRect& part);

// What holds the dots of a colour in a picture.
QRect boxOf(const QImage& picture, const QColor& color);

// Values that the user's settings hold; 1 and 0 for what is on and off.
using Settings = std::map<std::string, int>;

class Window {
 public:
  struct Start {
    std::string report;
    Settings stored{};
    std::string brokenSettings{};  // the whole file, in their place
    ViewCommands commands{};
    bool dynamic = false;
    std::function<void(TfrmView&)> beforeShown{};
  };

  // A stored zoom.
  static Settings zoomed(int entry) { return {{"ZoomID", entry}}; }

  explicit Window(const Start& start);
  ~Window() { close(); }

  TfrmView& form() { return *form_; }
  ViewParts& parts() { return form_->parts(); }
  VDoc& doc() { return doc_; }
  static std::string path() { return AppOptions.FileName; }
  const TemporaryDirectory& directory() const { return directory_; }

  // A control by its name.
  template <class Control = QWidget>
  Control& control(const char* name) {
    return *form_->findChild<Control*>(name);
  }

  // Lets what was posted happen.
  static void settle() { QCoreApplication::processEvents(); }
  void resize(const QSize& size);

  // What the user does. They give the page that is then on view.
  // Clicks on the control or picks the command of this name, or presses such a key as "Ctrl+End".
  int press(const std::string& what, int times = 1);
  int click(QWidget& on, QPoint place = {}, Qt::MouseButton button = Qt::LeftButton);
  // Turns the wheel over a place of the area; a step counts 120, up is positive.
  int wheel(int delta, Qt::KeyboardModifiers modifiers = Qt::NoModifier, QPoint place = {50, 50});

  int page() { return control<QLabel>("lblPageCurrent").text().toInt(); }
  std::string status(const char* panel = "stBarMessage") {
    return control<QLabel>(panel).text().toStdString();
  }
  int scrolled() { return area().verticalScrollBar()->value(); }  // pixels, down
  QWidget& pageControl() { return control("page_control"); }
  PageScroll& area() { return control<PageScroll>("pScroll"); }
  std::map<int, PageImage*> smallPages();  // that are seen, by their numbers

  // What stands on the screen of a control.
  QImage picture(const char* name) { return control(name).grab().toImage(); }

  // The first row of the printable area, as it is seen, that has text; -1 where none has.
  int firstInk();

  // Closes the window and gives the settings that it left.
  Settings close();

 private:
  void prepare(const Start& start);

  OptionsGuard guard_;
  TemporaryDirectory directory_;
  VDoc doc_;
  std::unique_ptr<QtUserSettings> settings_;
  std::unique_ptr<TfrmView> form_;
  std::optional<MessageSink> messages_;
};

// Types a text in the place of an edit's.
inline void typeInto(QLineEdit& edit, const std::string& text) {
  edit.setFocus();
  edit.selectAll();
  QTest::keyClick(&edit, Qt::Key_Delete);
  QTest::keyClicks(&edit, QString::fromStdString(text));
}

// Looks again and again, as long as it lives, for an open dialog of a kind over all others, and
// does something with it.
template <class Form>
class WhileOpen {
 public:
  explicit WhileOpen(std::function<void(Form&)> use) {
    QObject::connect(&timer_, &QTimer::timeout, [use = std::move(use)] {
      if (auto* form = qobject_cast<Form*>(QApplication::activeModalWidget())) use(*form);
    });
    timer_.start(5);
  }

 private:
  QTimer timer_;
};

// Whether a call brings up a modal dialog; does the steps in it and closes it.
template <class Dialog>
bool bringsUp(const std::function<void()>& call, const std::function<void(Dialog&)>& steps = {}) {
  bool seen = false;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) return;
    timer.stop();
    seen = true;
    if (steps) steps(*dialog);
    if (dialog->isVisible()) dialog->close();
  });
  timer.start(0);
  call();
  return seen;
}

// Presses the key of a form and lets the steps be done in it.
template <class Form>
void inForm(Window& window, const char* key, const std::function<void(Form&)>& steps) {
  EXPECT_TRUE(bringsUp<Form>([&] { window.press(key); }, steps));
}

}  // namespace qor::test
