// How soon the window has painted what a command asks for: preview_bench REPORT. It stands on the
// display in force at 1920 by 1080 and prints lines "name seconds", medians.
#include <QApplication>
#include <QMouseEvent>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "shown_report.h"
#include "window_model/zoom_list.h"
#include "windows/view/view_parts.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kRounds = 15;

double secondsOf(const std::function<void()>& command) {
  const auto start = Clock::now();
  command();
  QApplication::processEvents();
  return std::chrono::duration<double>(Clock::now() - start).count();
}

void print(const std::string& name, std::vector<double> seconds) {
  std::sort(seconds.begin(), seconds.end());
  std::printf("%s %.6f\n", name.c_str(), seconds[seconds.size() / 2]);
}

// A step from one entry of the zoom list to the next larger one.
void measureZoom(qor::TfrmView& window, int entry) {
  std::vector<double> seconds;
  for (int i = 0; i < kRounds; ++i) {
    secondsOf([&] { window.parts().zoom.mnuZoomListClick(entry + 1); });
    seconds.push_back(secondsOf([&] { window.parts().zoom.mnuZoomListClick(entry); }));
  }
  print("zoom_" + std::to_string(qor::zoomPercent(entry)), seconds);
}

void measureSeveral(qor::TfrmView& window) {
  window.parts().zoom.mnuZoomListClick(9);
  std::vector<double> seconds;
  for (int i = 0; i < kRounds; ++i) {
    secondsOf([&] { window.parts().switches.rbMultiPageViewClick(false); });
    seconds.push_back(secondsOf([&] { window.parts().switches.rbMultiPageViewClick(true); }));
  }
  print("several_pages", seconds);
}

// A step of dragging an alignment line over the page.
void measureLine(qor::TfrmView& window) {
  window.parts().lines.mnuShapeLineClick();
  auto* line = window.findChild<qor::TShapeRow*>();
  const auto send = [line](QEvent::Type type, Qt::MouseButton button, int y) {
    const QPointF spot(100, y);
    QMouseEvent event(type, spot, line->mapToGlobal(spot), button, Qt::LeftButton, {});
    QApplication::sendEvent(line, &event);
  };
  line->putTo(60);
  send(QEvent::MouseButtonPress, Qt::LeftButton, 5);
  std::vector<double> seconds;
  for (int i = 0; i < 100; ++i)
    seconds.push_back(secondsOf([&] { send(QEvent::MouseMove, Qt::NoButton, 5 + 8); }));
  window.parts().lines.mnuShapeLineClick();
  print("line_step", seconds);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  const QApplication application(argc, argv);
  ShownReport report(argv[1]);
  qor::TfrmView& window = report.window();
  window.resize(1920, 1080);
  window.show();
  secondsOf([] {});
  for (const int entry : {0, 2, 3, 4, 5, 6, 8, 10}) measureZoom(window, entry);
  window.parts().zoom.mnuZoomListClick(6);
  measureLine(window);
  measureSeveral(window);
}
