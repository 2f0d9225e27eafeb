// How soon the settings dialog has been painted, from the call that opens it: dialog_bench REPORT
// QUEUES FAMILIES, on the display in force. The dialog is opened twice. Each time its lists must
// come to these numbers, and every tab is shown, before it is closed. Prints lines "name seconds".
#include <QAbstractItemView>
#include <QApplication>
#include <QDeadlineTimer>
#include <QDialog>
#include <QEvent>
#include <QTabWidget>
#include <QThread>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <utility>

#include "shown_report.h"
#include "windows/settings/settings_form.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kPatience = 20'000;  // milliseconds
constexpr int kPause = 5;

// Waits for the first painting of a dialog, and calls when the whole of it has gone to the display.
class FirstPainting : public QObject {
 public:
  explicit FirstPainting(std::function<void(QDialog&)> painted) : painted_(std::move(painted)) {
    qApp->installEventFilter(this);
  }

  bool eventFilter(QObject* object, QEvent* event) override {
    auto* dialog = event->type() == QEvent::Paint ? qobject_cast<QDialog*>(object) : nullptr;
    if (dialog != nullptr && !std::exchange(seen_, true))
      QMetaObject::invokeMethod(
          dialog, [this, dialog] { painted_(*dialog); }, Qt::QueuedConnection);
    return false;
  }

 private:
  std::function<void(QDialog&)> painted_;
  bool seen_ = false;
};

int rowsOf(const QDialog& dialog, const char* list) {
  return dialog.findChild<QAbstractItemView*>(list)->model()->rowCount();
}

// The queues come from the background.
void waitForLists(const QDialog& dialog, int queues, int families) {
  const QDeadlineTimer deadline(kPatience);
  while (rowsOf(dialog, "treePrinters") < queues || rowsOf(dialog, "lstFonts") < families) {
    QApplication::processEvents();
    QThread::msleep(kPause);
    if (!deadline.hasExpired()) continue;
    std::fprintf(stderr, "dialog_bench: %d queues and %d families are listed\n",
                 rowsOf(dialog, "treePrinters"), rowsOf(dialog, "lstFonts"));
    std::exit(1);
  }
}

double secondsSince(Clock::time_point start) {
  return std::chrono::duration<double>(Clock::now() - start).count();
}

// Shows every tab and gives the seconds of the slowest.
double visitTabs(const QDialog& dialog) {
  auto* tabs = dialog.findChild<QTabWidget*>();
  double slowest = 0;
  for (int i = 0; i < tabs->count(); ++i) {
    const auto start = Clock::now();
    tabs->setCurrentIndex(i);
    QApplication::processEvents();
    slowest = std::max(slowest, secondsSince(start));
  }
  return slowest;
}

struct Opening {
  double seconds = 0;
  double slowestTab = 0;
};

Opening openingOf(const std::function<void()>& open, int queues, int families) {
  Opening opening;
  const auto start = Clock::now();
  const FirstPainting watch([&](QDialog& dialog) {
    opening.seconds = secondsSince(start);
    waitForLists(dialog, queues, families);
    opening.slowestTab = visitTabs(dialog);
    dialog.reject();
  });
  open();
  QApplication::processEvents();
  return opening;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) return 2;
  const QApplication application(argc, argv);
  const int queues = std::atoi(argv[2]);
  const int families = std::atoi(argv[3]);
  ShownReport report(argv[1]);
  qor::TfrmView& window = report.window();
  window.show();
  QApplication::processEvents();
  auto ask = qor::settingsForm();
  const auto open = [&] { ask(window, report.doc(), qor::kNormalView); };
  const Opening first = openingOf(open, queues, families);
  const Opening second = openingOf(open, queues, families);
  std::printf("first_seconds %.6f\nsecond_seconds %.6f\ntab_seconds %.6f\n", first.seconds,
              second.seconds, first.slowestTab);
}
