// The desktop, by Qt.
#include "platform/qt/desktop.h"

#include <QApplication>
#include <QMessageLogContext>
#include <clocale>
#include <cstdlib>
#include <string>

#include "base/app_options.h"
#include "language/language.h"
#include "platform/qt/end_signals.h"
#include "platform/qt/qt_language.h"
#include "platform/system/failure.h"
#include "platform/system/messages.h"

namespace qor {
namespace {

// Qt wants these for as long as it runs.
int argumentCount = 1;
char programName[] = "qorutlview";
char* arguments[] = {programName, nullptr};

// The first thing that Qt said while it started: the reason where it then gives up.
std::string startWarning;
bool started = false;
std::optional<int> silentExitCode;

void handleMessage(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (type == QtFatalMsg) {
    if (!started && silentExitCode) std::_Exit(*silentExitCode);
    const std::string reason = startWarning.empty() ? text.toStdString() : startWarning;
    writeErrorLine(AppOptions.FileName + ": no window can be opened: " + reason);
    std::_Exit(EXIT_SUCCESS);
  }
  if (type != QtWarningMsg && type != QtCriticalMsg) return;
  if (started) {
    writeErrorLine(text.toStdString());
  } else if (startWarning.empty()) {
    startWarning = text.trimmed().toStdString();
  }
}

// What a handler lets through is shown, and the program goes on.
class Application : public QApplication {
 public:
  using QApplication::QApplication;

  bool notify(QObject* receiver, QEvent* event) override {
    try {
      return QApplication::notify(receiver, event);
    } catch (...) {
      const Failure failure = caughtFailure();
      if (!failure.wasTold()) showError(failure.text);
    }
    return true;
  }
};

}  // namespace

Desktop::Desktop(std::optional<int> exitCodeWithout) {
  silentExitCode = exitCodeWithout;
  qInstallMessageHandler(handleMessage);
  application_ = std::make_unique<Application>(argumentCount, arguments);
  // Qt has told the C library the user's locale; numbers in files are not to depend on it.
  std::setlocale(LC_NUMERIC, "C");
  started = true;
  end_signals_ = std::make_unique<EndSignals>();
  QApplication::setApplicationName("QorUtlView");
  QApplication::setOrganizationName("QOR");
  translateQt(currentLanguage().id);
}

Desktop::~Desktop() = default;

bool Desktop::isAskedToEnd() const {
  return end_signals_->came();
}

void Desktop::run() {
  QApplication::exec();
}

}  // namespace qor
