// Shows how far a long job has come, and lets the user cancel it. A job of less than half a second
// shows the wait cursor only; one of more than five tells how fast it goes, too.
#pragma once

#include <QString>
#include <chrono>
#include <functional>
#include <memory>

#include "document/page_loop.h"

class QProgressDialog;
class QWidget;

namespace qor {

// Lives on the stack for as long as the job runs. While it does, nothing else in the application
// can be used; timers go on, once there is a dialog.
class JobProgress {
 public:
  using Clock = std::function<std::chrono::steady_clock::time_point()>;

  // For a job of that window.
  JobProgress(QWidget* window, QString title, QString cancelText,
              Clock clock = std::chrono::steady_clock::now);
  ~JobProgress();
  JobProgress(const JobProgress&) = delete;
  JobProgress& operator=(const JobProgress&) = delete;

  // To be called behind each page; false once the user has cancelled, or the application is to end.
  // Valid for as long as the object lives.
  PageProgress callback();

 private:
  bool goesOn(std::int32_t page, std::int32_t pages);
  void open();
  void tell(std::int32_t page, std::int32_t pages);

  QWidget* window_;
  QString title_;
  QString cancel_text_;
  Clock clock_;
  std::chrono::steady_clock::time_point started_;
  std::chrono::steady_clock::time_point looked_;  // the last time that events were handled
  std::unique_ptr<QProgressDialog> dialog_;
};

}  // namespace qor
