// Finds a text in a report and prints "name value" lines:
//   find_bench list REPORT TEXT      seconds until all hits are known, and how many there are
//   find_bench window REPORT TEXT    the same in the window: until the first one is seen, until all
//                                    are known, and the longest time without an answer from then on
//   find_bench marks REPORT TEXT     seconds by which the marks of all hits lengthen a repaint
//   find_bench memory REPORT TEXT    bytes by which knowing the hits lets the program grow
// It stands on the display in force at 1920 by 1080.
#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include <malloc.h>

#include "search/report_search.h"
#include "shown_report.h"
#include "windows/qt_letters.h"
#include "windows/view/view_parts.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kRepaints = 31;

double secondsOf(const std::function<void()>& work) {
  const auto start = Clock::now();
  work();
  return std::chrono::duration<double>(Clock::now() - start).count();
}

void print(const char* name, double value) {
  std::printf("%s %.9g\n", name, value);
}

qor::FindQuery queryOf(const char* text) {
  return {QString::fromUtf8(text).toStdU32String()};
}

void list(const char* report, const char* text) {
  qor::AppOptions.FileName = report;
  qor::VDoc doc;
  doc.ScanPages(false);
  std::uint64_t hits = 0;
  print("seconds", secondsOf([&] {
          qor::ReportSearch search(doc, queryOf(text), qor::kQtLetters, 1);
          search.goOn([] { return true; });
          hits = search.hits().total();
        }));
  print("hits", static_cast<double>(hits));
}

void memory(const char* report, const char* text) {
  qor::AppOptions.FileName = report;
  qor::VDoc doc;
  doc.ScanPages(false);
  const auto allocated = [] { return static_cast<double>(mallinfo2().uordblks); };
  const double before = allocated();
  qor::ReportSearch search(doc, queryOf(text), qor::kQtLetters, 1);
  search.goOn([] { return true; });
  print("bytes", allocated() - before);
}

void show(qor::TfrmView& window) {
  window.resize(1920, 1080);
  window.show();
  if (!QTest::qWaitForWindowExposed(&window)) std::fputs("The window isn't seen.\n", stderr);
}

// Types all of the text but its last letter, and measures from that on: the bar is open, as it is
// for whoever looks for something.
void window(const char* path, const char* text) {
  ShownReport report(path);
  show(report.window());
  qor::FindPanel& panel = report.window().parts().find;
  panel.mnuFindClick();
  auto* edit = report.window().findChild<QLineEdit*>("txtFind");
  const QString wanted = QString::fromUtf8(text);
  edit->setText(wanted.chopped(1));
  panel.finder().stop();
  const auto start = Clock::now();
  const auto passed = [start] {
    return std::chrono::duration<double>(Clock::now() - start).count();
  };
  QTest::keyClick(edit, wanted.back().toLatin1());
  while (!panel.finder().present() && panel.finder().isSearching()) QApplication::processEvents();
  QApplication::processEvents();
  print("first_hit", passed());
  double longest = 0;
  while (panel.finder().isSearching())
    longest = std::max(longest, secondsOf([] { QApplication::processEvents(); }));
  print("all", passed());
  print("longest", longest);
  print("hits", static_cast<double>(panel.finder().search().hits().total()));
}

// Qt puts off repaints that come in one picture of the screen; a picture of the widget is painted.
double secondsOfRepaint(QWidget& widget) {
  std::vector<double> seconds;
  for (int i = 0; i < kRepaints; ++i) seconds.push_back(secondsOf([&] { widget.grab(); }));
  std::nth_element(seconds.begin(), seconds.begin() + kRepaints / 2, seconds.end());
  return seconds[kRepaints / 2];
}

void marks(const char* path, const char* text) {
  ShownReport report(path);
  show(report.window());
  QWidget* area = report.window().findChild<QWidget*>("pageOverlay")->parentWidget();
  const double plain = secondsOfRepaint(*area);
  qor::FindPanel& panel = report.window().parts().find;
  panel.finder().start(queryOf(text));
  while (panel.finder().isSearching()) QApplication::processEvents();
  QApplication::processEvents();
  print("seconds", secondsOfRepaint(*area) - plain);
  print("hits", static_cast<double>(panel.finder().search().hits().total()));
}

}  // namespace

int main(int argc, char** argv) {
  const std::string_view what = argc == 4 ? argv[1] : "";
  void (*const run)(const char*, const char*) = what == "list"     ? list
                                                : what == "window" ? window
                                                : what == "marks"  ? marks
                                                : what == "memory" ? memory
                                                                   : nullptr;
  if (run == nullptr) {
    std::fputs("find_bench list|window|marks|memory REPORT TEXT\n", stderr);
    return 2;
  }
  const QApplication application(argc, argv);
  run(argv[2], argv[3]);
}
