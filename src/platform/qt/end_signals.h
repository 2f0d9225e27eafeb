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

  // Whether one has come.
  bool came() const { return came_; }

 private:
  void close();

  QSocketNotifier* notifier_ = nullptr;
  bool came_ = false;
};

}  // namespace qor
