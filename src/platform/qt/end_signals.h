// Signals that ask the program to end (SIGTERM, SIGINT, SIGHUP) close its windows in the ordinary
// way, so that settings are stored and the owner is told. A second one of a kind ends it at once;
// those that the program was started to ignore stay ignored.
#pragma once

#include <QObject>

class QSocketNotifier;

namespace qor {

// One object for the process, beside the application.
class EndSignals : public QObject {
  Q_OBJECT

 public:
  EndSignals();
  ~EndSignals() override;

 private:
  void close();

  QSocketNotifier* notifier_ = nullptr;
};

}  // namespace qor
