// Reading options.
#include "bulk/bulk_options.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "base/errors.h"
#include "base/path.h"
#include "base/text.h"
#include "platform/system/long_options.h"
#include "platform/system/process.h"

namespace qor {
namespace {

constexpr BulkFormat kFormats[] = {
    {"txt", ".txt"},
    {"html", ".html"},
    {"pdf", ".pdf"},
    {"drawn", ".pdf", true},
    {"png", ".png", false, true},
    {"jpeg", ".jpeg", false, true},
    {"gif", ".gif", false, true},
    {"bmp", ".bmp", false, true},
    {"ico", ".ico", false, true},
    {"rtf", ".rtf"},
    {"doc", ".doc"},
    {"xls", ".xls"},
    {"xlsx", ".xlsx"},
    {"csv", ".csv"},
};

// An option, and the words of the help: what its value is called, and what it does.
struct OptionRow {
  LongOption option;
  const char* value;
  const char* does;
  void (*take)(BulkOptions& options, const std::string& value);
};

[[noreturn]] void refuse(const char* option, const std::string& value, const char* wanted) {
  throw UsageError(std::string("--") + option + ": \"" + value + "\" is not " + wanted);
}

// A number within bounds, all of the text.
template <class Number>
Number numberOf(const char* option, std::string_view text, Number lowest, Number highest) {
  Number number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc{} || stop != end || !(number >= lowest && number <= highest))
    refuse(option, std::string(text), "such a number");
  return number;
}

const BulkFormat* formatNamed(std::string_view name) {
  const auto* const found =
      std::find_if(std::begin(kFormats), std::end(kFormats),
                   [name](const BulkFormat& format) { return format.name == name; });
  return found == std::end(kFormats) ? nullptr : found;
}

void takeFormat(BulkOptions& options, const std::string& value) {
  const BulkFormat* format = formatNamed(lowerAscii(value));
  if (format == nullptr) refuse("to", value, "a format");
  options.format = *format;
}

void takeCodePage(BulkOptions& options, const std::string& value) {
  options.codePage = numberOf("codepage", value, 1, 65535);
}

void takeSet(BulkOptions& options, const std::string& value) {
  const auto mark = value.rfind('#');
  options.setFile = value.substr(0, mark);
  if (mark != std::string::npos) options.setName = value.substr(mark + 1);
}

void takePages(BulkOptions& options, const std::string& value) {
  try {
    options.pages = PageRanges(value);
  } catch (const ConversionError& error) {
    throw UsageError(std::string("--pages: ") + error.what());
  }
}

void takeJobs(BulkOptions& options, const std::string& value) {
  constexpr std::size_t kMostJobs = 1024;
  options.jobs = numberOf("jobs", value, std::size_t{1}, kMostJobs);
}

// Seconds, with a fraction.
void takeTimeout(BulkOptions& options, const std::string& value) {
  constexpr double kLongest = 1e7;
  constexpr double kShortest = 1e-6;
  const double seconds = numberOf("timeout", value, kShortest, kLongest);
  options.limits.time = std::chrono::milliseconds(std::lround(std::ceil(seconds * 1000)));
}

// Bytes, or with K, M or G behind the number.
void takeMemory(BulkOptions& options, const std::string& value) {
  constexpr std::string_view kUnits = "kmg";
  constexpr std::uint64_t kMost = std::uint64_t{1} << 50U;
  std::string_view number = value;
  const auto unit =
      number.empty() ? kUnits.npos : kUnits.find(lowerAscii(number.substr(number.size() - 1)));
  if (unit != kUnits.npos) number.remove_suffix(1);
  const std::uint64_t shift = unit == kUnits.npos ? 0 : 10 * (unit + 1);
  options.limits.bytes = numberOf("memory", number, std::uint64_t{1}, kMost >> shift) << shift;
}

constexpr OptionRow kRows[] = {
    {{"to", 't', true},
     "FORMAT",
     "txt, html, pdf, drawn (PDF of the pages as drawn), png, jpeg, gif, bmp, ico, rtf, doc, xls, "
     "xlsx or csv; else by the target's extension, else pdf",
     takeFormat},
    {{"output", 'o', true},
     "TEMPLATE",
     "the target: {stem}, {name} and {dir} are those of the report, {ext} is the format's, {page} "
     "the number of a picture's page; - is the standard output; else {stem}.{ext}",
     [](BulkOptions& options, const std::string& value) { options.target = value; }},
    {{"codepage", 'c', true}, "NUMBER", "code page of the reports", takeCodePage},
    {{"settings", 's', true}, "FILE#SET", "set of settings, as of -i of qorutlview", takeSet},
    {{"pages", 'p', true}, "PAGES", "such as 1-3,7-,odd", takePages},
    {{"from-file", 'f', true},
     "LIST",
     "reports named by a file, or by the standard input (-): a line each, or parted by zero bytes",
     [](BulkOptions& options, const std::string& value) { options.list = value; }},
    {{"jobs", 'j', true}, "N", "reports at a time; else as many as there are processors", takeJobs},
    {{"if-newer"},
     "",
     "leaves out reports whose targets are newer than they are",
     [](BulkOptions& options, const std::string&) { options.ifNewer = true; }},
    {{"keep-going", 'k'},
     "",
     "goes on behind a failure, which it does anyway",
     [](BulkOptions& options, const std::string&) { options.failFast = false; }},
    {{"fail-fast"},
     "",
     "begins no further report behind a failure",
     [](BulkOptions& options, const std::string&) { options.failFast = true; }},
    {{"timeout", 0, true}, "SECONDS", "ends a report that takes longer", takeTimeout},
    {{"memory", 0, true}, "BYTES", "most memory for a report, such as 500M", takeMemory},
    {{"progress"},
     "",
     "shows on a terminal how far it is",
     [](BulkOptions& options, const std::string&) { options.progress = true; }},
    {{"json"},
     "",
     "tells of each report in a line of JSON on the standard output",
     [](BulkOptions& options, const std::string&) { options.json = true; }},
    {{"help", 'h'},
     "",
     "this text",
     [](BulkOptions& options, const std::string&) { options.task = BulkTask::help; }},
    {{"version"},
     "",
     "the version",
     [](BulkOptions& options, const std::string&) { options.task = BulkTask::version; }},
};

std::vector<LongOption> knownOptions() {
  std::vector<LongOption> known;
  for (const OptionRow& row : kRows) known.push_back(row.option);
  return known;
}

void take(BulkOptions& options, const GivenOption& given) {
  for (const OptionRow& row : kRows)
    if (row.option.name == given.name) row.take(options, given.value);
}

// The format that nobody named is that of the target's extension.
void settleFormat(BulkOptions& options) {
  if (!options.format.name.empty()) return;
  const std::string extension = lowerAscii(extensionOf(options.target));
  const BulkFormat* format =
      extension.empty() ? nullptr : formatNamed(std::string_view(extension).substr(1));
  options.format = format == nullptr ? *formatNamed("pdf") : *format;
}

void require(bool holds, const char* text) {
  if (!holds) throw UsageError(text);
}

}  // namespace

BulkOptions readBulkOptions(int argc, char** argv) {
  BulkOptions options;
  options.jobs = processorCount();
  GivenArguments given = readArguments(argc, argv, knownOptions());
  for (const GivenOption& option : given.options) take(options, option);
  options.reports = std::move(given.operands);
  if (options.task != BulkTask::exports) return options;
  settleFormat(options);
  require(!options.reports.empty() || !options.list.empty(), "no report is named");
  const auto streams = std::ranges::count(options.reports, "-") + (options.list == "-" ? 1 : 0);
  require(streams <= 1, "the standard input can be one report or the list of them, and only once");
  require(!options.json || options.target != "-",
          "--json and the target - both need the standard output");
  return options;
}

std::string bulkHelp() {
  constexpr std::size_t kColumn = 26;
  constexpr std::size_t kWidth = 96;
  std::string text =
      "qorexport [OPTION]... REPORT...\n"
      "Exports reports, several at a time. - is a report on the standard input.\n\n";
  for (const OptionRow& row : kRows) {
    const LongOption& option = row.option;
    std::string line =
        option.letter == 0 ? "      --" : std::string("  -") + option.letter + ", --";
    line.append(option.name).append(*row.value == 0 ? "" : "=").append(row.value);
    line.resize(std::max(kColumn, line.size() + 1), ' ');
    std::string_view rest = row.does;
    while (line.size() + rest.size() > kWidth) {
      const auto blank = rest.rfind(' ', kWidth - line.size());
      text += line.append(rest.substr(0, blank)) + '\n';
      rest.remove_prefix(blank + 1);
      line.assign(kColumn, ' ');
    }
    text += line.append(rest) + '\n';
  }
  return text +
         "\nIt ends with 0 where all is done, 1 where some reports failed, and 2 where it can't "
         "tell "
         "what to do.\n";
}

}  // namespace qor
