// qorreporttopdf: the filter by which print queues take reports.

#include <algorithm>
#include <cstdlib>
#include <string>

#include "app/program_start.h"
#include "filter/filter_job.h"
#include "filter/report_filter.h"
#include "platform/system/failure.h"
#include "platform/system/long_options.h"
#include "platform/system/messages.h"
#include "platform/system/process.h"

namespace qor {
namespace {

// The scheduler reads a line each, and takes the words of some for orders.
void tellScheduler(const char* level, std::string text) {
  std::ranges::replace_if(
      text, [](unsigned char c) { return c < ' '; }, ' ');
  writeErrorLine(level + text);
}

int filter(int argc, char** argv) {
  try {
    const std::string notice = filterReport(readFilterJob(argc, argv));
    if (!notice.empty()) tellScheduler("WARNING: ", notice);
    return EXIT_SUCCESS;
  } catch (const UsageError& error) {
    tellScheduler("ERROR: ", error.what());
  } catch (...) {
    tellScheduler("ERROR: ", caughtFailure().text);
  }
  return EXIT_FAILURE;
}

}  // namespace
}  // namespace qor

int main(int argc, char** argv) {
  qor::prepareProcess();
  qor::startProgram();
  return qor::filter(argc, argv);
}
