// Measures the index of a report's pages and prints what it finds as "name value" lines:
//   page_index_bench scan REPORT.txt    seconds, pages, bytes of memory for a page
//   page_index_bench open REPORT.txt    seconds to open and let go the first, middle and last page
//   page_index_bench walk REPORT.txt    seconds a page to open all pages in turn
//   page_index_bench peak REPORT.txt    bytes by which the peak of memory grows with the first page
#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include <malloc.h>

#include "base/app_options.h"
#include "document/vdoc.h"

namespace {

constexpr int kWarmUps = 2000;
constexpr int kOpenings = 5001;

double now() {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

double allocatedBytes() {
  const struct mallinfo2 info = mallinfo2();
  return static_cast<double>(info.uordblks + info.hblkhd);
}

void print(const char* name, double value) {
  std::printf("%s %.9g\n", name, value);
}

void scan() {
  qor::VDoc doc;
  const double before = allocatedBytes();
  const double start = now();
  doc.ScanPages(false);
  print("seconds", now() - start);
  print("pages", doc.PageCount);
  print("bytes_a_page", (allocatedBytes() - before) / std::max(1, doc.PageCount));
}

double secondsToOpen(qor::VDoc& doc, std::int32_t number) {
  const double start = now();
  doc.GetPage(number);
  doc.ReleasePage(number);
  return now() - start;
}

double median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

void open() {
  qor::VDoc doc;
  doc.ScanPages(false);
  constexpr std::array names = {"first", "middle", "last"};
  const std::array numbers = {1, doc.PageCount / 2 + 1, doc.PageCount};
  std::array<std::vector<double>, 3> seconds;
  for (int round = 0; round < kWarmUps; ++round) secondsToOpen(doc, doc.PageCount);
  // In turn, so that a disturbance falls on all three.
  for (int round = 0; round < kOpenings; ++round) {
    for (std::size_t i = 0; i < names.size(); ++i)
      seconds[i].push_back(secondsToOpen(doc, numbers[i]));
  }
  for (std::size_t i = 0; i < names.size(); ++i) print(names[i], median(seconds[i]));
}

void walk() {
  qor::VDoc doc;
  doc.ScanPages(false);
  const double start = now();
  for (std::int32_t number = 1; number <= doc.PageCount; ++number) secondsToOpen(doc, number);
  print("seconds_a_page", (now() - start) / std::max(1, doc.PageCount));
}

// Of this program alone: what getrusage tells starts with the peak of whoever started it.
double peakBytes() {
  std::ifstream status("/proc/self/status");
  double kilobytes = 0;
  for (std::string word; status >> word;) {
    if (word == "VmHWM:") status >> kilobytes;
  }
  return kilobytes * 1024;
}

void peak() {
  qor::VDoc doc;
  doc.ScanPages(false);
  const double before = peakBytes();
  doc.GetPage(1);
  print("bytes", peakBytes() - before);
}

}  // namespace

int main(int argc, char** argv) {
  const std::string_view what = argc == 3 ? argv[1] : "";
  void (*const run)() = what == "scan"   ? scan
                        : what == "open" ? open
                        : what == "walk" ? walk
                        : what == "peak" ? peak
                                         : nullptr;
  if (run == nullptr) {
    std::fputs("page_index_bench scan|open|walk|peak REPORT.txt\n", stderr);
    return 2;
  }
  qor::AppOptions.FileName = argv[2];
  run();
}
