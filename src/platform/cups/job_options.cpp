// Reading the options of a print job.
#include "platform/cups/job_options.h"

#include <cups/cups.h>

namespace qor {

std::map<std::string, std::string> jobOptions(const std::string& text) {
  cups_option_t* options = nullptr;
  const int count = cupsParseOptions(text.c_str(), 0, &options);
  std::map<std::string, std::string> values;
  for (int i = 0; i < count; ++i) values.insert_or_assign(options[i].name, options[i].value);
  cupsFreeOptions(count, options);
  return values;
}

}  // namespace qor
