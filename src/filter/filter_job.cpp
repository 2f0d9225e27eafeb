// Reading the arguments of a filter.
#include "filter/filter_job.h"

#include "base/text.h"
#include "platform/cups/job_options.h"
#include "platform/system/long_options.h"

namespace qor {
namespace {

constexpr int kArguments = 6;  // with the program's name, without the file

int codePageOf(const std::string& text) {
  constexpr int kHighest = 65535;
  const auto number = parseInteger(text);
  if (!number || *number < 1 || *number > kHighest)
    throw UsageError(std::string(kCodePageOption) + ": \"" + text + "\" is not such a number");
  return *number;
}

}  // namespace

FilterJob readFilterJob(int argc, char** argv) {
  if (argc != kArguments && argc != kArguments + 1)
    throw UsageError("usage: qorreporttopdf job-id user title copies options [file]");
  FilterJob job;
  job.title = argv[3];
  if (argc > kArguments) job.file = argv[kArguments];
  const auto options = jobOptions(argv[kArguments - 1]);
  if (const auto given = options.find(kCodePageOption); given != options.end())
    job.codePage = codePageOf(given->second);
  if (const auto given = options.find(kSettingsOption); given != options.end())
    job.setName = given->second;
  return job;
}

}  // namespace qor
