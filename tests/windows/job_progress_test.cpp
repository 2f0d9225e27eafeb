// The progress of a job, by a clock that the tests set.
#include "windows/job_progress.h"

#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <stdexcept>

#include <gtest/gtest.h>

namespace qor::test {
namespace {

using std::chrono::milliseconds;

// A job of twelve pages.
struct Job {
  Job() {
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }

  // The job has ended a page so many milliseconds after its start.
  bool endsPage(int page, int at) {
    now = std::chrono::steady_clock::time_point(milliseconds(at));
    return progress.callback()(page, 12);
  }

  static QProgressDialog* dialog() {
    return qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
  }

  std::chrono::steady_clock::time_point now{};
  QWidget window;
  JobProgress progress{&window, "Printing", "Stop", [this] { return now; }};
};

bool isWaiting() {
  const QCursor* cursor = QApplication::overrideCursor();
  return cursor != nullptr && cursor->shape() == Qt::WaitCursor;
}

TEST(JobProgress, shortJobsShowNothing) {
  {
    Job job;
    EXPECT_TRUE(job.endsPage(1, 30));
    EXPECT_TRUE(job.endsPage(11, 499));
    EXPECT_TRUE(job.endsPage(12, 2000)) << "there is nothing left to wait for";
    EXPECT_EQ(Job::dialog(), nullptr);
    EXPECT_TRUE(isWaiting());
  }
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST(JobProgress, longJobsTellTheirPage) {
  {
    Job job;
    EXPECT_TRUE(job.endsPage(3, 500));
    ASSERT_NE(Job::dialog(), nullptr);
    EXPECT_FALSE(isWaiting());
    EXPECT_EQ(Job::dialog()->windowTitle(), "Printing");
    EXPECT_EQ(Job::dialog()->parentWidget(), &job.window);
    EXPECT_EQ(Job::dialog()->findChild<QPushButton*>()->text(), "Stop");
    // The page, when it ended, and what is then told: no more than each 30 ms.
    const std::tuple<int, int, const char*, int> rows[] = {{4, 529, "Page 3 of 12", 3},
                                                           {5, 530, "Page 5 of 12", 5},
                                                           {6, 559, "Page 5 of 12", 5},
                                                           {12, 800, "Page 12 of 12", 12}};
    for (const auto& [page, at, text, value] : rows) {
      bool handled = false;
      QTimer::singleShot(0, [&handled] { handled = true; });
      EXPECT_TRUE(job.endsPage(page, at));
      EXPECT_EQ(Job::dialog()->labelText(), text);
      EXPECT_EQ(Job::dialog()->value(), value);
      EXPECT_EQ(Job::dialog()->maximum(), 12);
      EXPECT_EQ(handled, value == page);
      QCoreApplication::processEvents();
    }
    EXPECT_TRUE(Job::dialog()->isVisible());
  }
  EXPECT_EQ(Job::dialog(), nullptr);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST(JobProgress, cancelsInEveryWay) {
  const std::pair<const char*, std::function<void()>> rows[] = {
      {"escape", [] { QTest::keyClick(Job::dialog(), Qt::Key_Escape); }},
      {"button",
       [] { QTest::mouseClick(Job::dialog()->findChild<QPushButton*>(), Qt::LeftButton); }},
      {"closed", [] { Job::dialog()->close(); }},
      {"the application is to end", [] { QApplication::closeAllWindows(); }}};
  for (const auto& [what, cancel] : rows) {
    Job job;
    EXPECT_TRUE(job.endsPage(1, 600)) << what;
    QTimer::singleShot(0, cancel);
    EXPECT_FALSE(job.endsPage(2, 700)) << what;
    EXPECT_FALSE(job.endsPage(3, 701)) << what;
    EXPECT_FALSE(job.endsPage(4, 900)) << what;
    EXPECT_EQ(Job::dialog(), nullptr) << what;
  }
}

TEST(JobProgress, leavesNothingBehindAFailure) {
  QApplication::setOverrideCursor(Qt::BusyCursor);  // of whoever runs the job
  for (const int at : {100, 600}) {
    try {
      Job job;
      job.endsPage(1, at);
      throw std::runtime_error("a disk that is full");
    } catch (const std::runtime_error&) {
      EXPECT_EQ(Job::dialog(), nullptr);
      ASSERT_NE(QApplication::overrideCursor(), nullptr);
      EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::BusyCursor);
    }
  }
  QApplication::restoreOverrideCursor();
}

}  // namespace
}  // namespace qor::test
