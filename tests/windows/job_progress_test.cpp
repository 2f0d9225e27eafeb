// The progress of a job, by a clock that the tests set.
#include "windows/job_progress.h"

#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QTest>
#include <QTimer>

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
  return QApplication::overrideCursor()->shape() == Qt::WaitCursor;
}

// Whoever runs a job has a cursor that comes back with the job's end.
class Runner {
 public:
  Runner() { QApplication::setOverrideCursor(Qt::BusyCursor); }
  ~Runner() {
    EXPECT_EQ(Job::dialog(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::BusyCursor);
    QApplication::restoreOverrideCursor();
  }
};

TEST(JobProgress, shortJobsShowNothing) {
  const Runner runner;
  Job job;
  EXPECT_TRUE(job.endsPage(1, 30));
  EXPECT_TRUE(job.endsPage(11, 499));
  EXPECT_TRUE(job.endsPage(12, 2000)) << "there is nothing left to wait for";
  EXPECT_EQ(Job::dialog(), nullptr);
  EXPECT_TRUE(isWaiting());
}

TEST(JobProgress, longJobsTellTheirPage) {
  const Runner runner;
  Job job;
  EXPECT_TRUE(job.endsPage(3, 500));
  ASSERT_NE(Job::dialog(), nullptr);
  EXPECT_FALSE(isWaiting());
  EXPECT_EQ(Job::dialog()->windowTitle(), "Printing");
  EXPECT_EQ(Job::dialog()->parentWidget(), &job.window);
  EXPECT_GE(Job::dialog()->width(), 320);
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

TEST(JobProgress, cancelsInEveryWay) {
  const std::pair<const char*, std::function<void()>> rows[] = {
      {"escape", [] { QTest::keyClick(Job::dialog(), Qt::Key_Escape); }},
      {"button",
       [] { QTest::mouseClick(Job::dialog()->findChild<QPushButton*>(), Qt::LeftButton); }},
      {"closed", [] { Job::dialog()->close(); }},
      {"the application is to end", [] { QApplication::closeAllWindows(); }}};
  for (const auto& [what, cancel] : rows) {
    Job job;
    EXPECT_TRUE(job.endsPage(11, 600)) << what;
    QTimer::singleShot(0, cancel);
    EXPECT_FALSE(job.endsPage(12, 700)) << what;
    EXPECT_FALSE(job.endsPage(12, 701)) << what;
    EXPECT_FALSE(job.endsPage(12, 900)) << what;
    EXPECT_EQ(Job::dialog(), nullptr) << what;
  }
}

}  // namespace
}  // namespace qor::test
