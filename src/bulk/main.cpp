// qorexport: reports to files by the thousand, for servers.

#include "app/program_start.h"
#include "base/app_options.h"
#include "base/errors.h"
#include "bulk/bulk_options.h"
#include "bulk/bulk_run.h"
#include "platform/system/failure.h"
#include "platform/system/long_options.h"
#include "platform/system/messages.h"
#include "platform/system/process.h"

namespace qor {
namespace {

constexpr int kExitDone = 0;
constexpr int kExitFailed = 1;
constexpr int kExitUsage = 2;

int tell(const std::string& text) {
  if (!writeOutput(text))
    throw FileError("the standard output can't be written", ErrorKind::cannotWrite);
  return kExitDone;
}

int exportReports(int argc, char** argv) {
  const BulkOptions options = readBulkOptions(argc, argv);
  switch (options.task) {
    case BulkTask::help: return tell(bulkHelp());
    case BulkTask::version: return tell("qorexport " + AppOptions.ProgramVersion);
    default: return runExports(options) ? kExitDone : kExitFailed;
  }
}

int guarded(int argc, char** argv) {
  try {
    return exportReports(argc, argv);
  } catch (const UsageError& error) {
    writeErrorLine(std::string("qorexport: ") + error.what() + " (--help tells more)");
    return kExitUsage;
  } catch (...) {
    tellFailure();
    return kExitFailed;
  }
}

}  // namespace
}  // namespace qor

int main(int argc, char** argv) {
  qor::prepareProcess();
  qor::startProgram();
  return qor::guarded(argc, argv);
}
