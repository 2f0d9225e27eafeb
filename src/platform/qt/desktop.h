// The desktop that windows stand on: one object for the process, made before the first window.
#pragma once

#include <memory>
#include <optional>

class QApplication;

namespace qor {

class EndSignals;

class Desktop {
 public:
  // Connects to it. Where there is none the process ends, Qt knows no other way back: with one line
  // on standard error and exit code 0, or, for whoever has told all there is to tell, with that
  // exit code and no line.
  explicit Desktop(std::optional<int> exitCodeWithout = {});
  ~Desktop();
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  // Whether a signal has asked for the end.
  bool isAskedToEnd() const;

  // Handles events until the last window is closed, or a signal asks for the end.
  void run();

 private:
  std::unique_ptr<QApplication> application_;
  std::unique_ptr<EndSignals> end_signals_;
};

}  // namespace qor
