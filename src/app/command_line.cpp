// The option parser.
#include "app/command_line.h"

#include <algorithm>
#include <initializer_list>
#include <optional>

#include "base/app_options.h"
#include "base/path.h"
#include "base/text.h"
#include "export/export_formats.h"
#include "language/language.h"
#include "platform/system/input_file.h"
#include "platform/system/locale.h"
#include "platform/system/messages.h"
#include "platform/system/text_encoding.h"

namespace qor {
namespace {

constexpr std::size_t kMaxRest = 1024;    // characters kept behind a value
constexpr std::size_t kMaxSetName = 255;  // characters

using Spellings = std::initializer_list<std::string_view>;

bool holdsAny(std::string_view parameters, Spellings spellings) {
  return std::any_of(spellings.begin(), spellings.end(), [parameters](std::string_view spelling) {
    return parameters.find(spelling) != std::string_view::npos;
  });
}

bool asksForPrint(std::string_view parameters) {
  return holdsAny(parameters, {" -g", " -G", "-g ", "-G "});
}

// An option with a value: what announces it, and the key that is cut out.
struct ValueOption {
  Spellings announcements;
  std::string_view key;
};

std::optional<std::string> takeValue(std::string& parameters,
                                     std::initializer_list<ValueOption> spellings) {
  std::string value;
  for (const ValueOption& option : spellings) {
    if (holdsAny(parameters, option.announcements) &&
        GetOptionValue(value, parameters, option.key)) {
      return value;
    }
  }
  return std::nullopt;
}

std::string inWorkDir(const std::string& name) {
  return hasSeparator(name) ? name : AppOptions.WorkDir + name;
}

void warnOfMissingFile(const std::string& value) {
  showWarning(value + "\n" + std::string(interfaceTexts().FileNotExists));
}

bool isHelp(std::string_view parameters) {
  return trimmed(parameters).size() == 2 && holdsAny(parameters, {"/?", "/h", "/H", "-h", "-H"});
}

// False if the report doesn't exist.
bool takeReport(std::string& parameters) {
  const auto value = takeValue(parameters, {{{" -f", "-f "}, "-f"}, {{" -F", "-F "}, "-F"}});
  if (!value) return true;
  const std::string name = inWorkDir(*value);
  if (!fileExists(name)) {
    warnOfMissingFile(*value);
    return false;
  }
  AppOptions.FileName = name;
  return true;
}

// The file and the name of the set in it stand in one value, with "#" between them.
void takeSettings(std::string& parameters) {
  const auto value = takeValue(parameters, {{{" -i", "-i "}, "-i"}, {{" -I", "-I "}, "-I"}});
  if (!value) return;
  const auto mark = value->rfind('#');
  const std::string file = inWorkDir(value->substr(0, mark));
  const bool exists = fileExists(file);
  AppOptions.IniFileName = exists ? file : "";
  AppOptions.SetName = exists && mark != std::string::npos
                           ? firstCharacters(std::string_view(*value).substr(mark + 1), kMaxSetName)
                           : std::string_view();
  if (!exists) warnOfMissingFile(*value);
}

void takeCodePage(std::string& parameters) {
  const auto value =
      takeValue(parameters, {{{"-codepage"}, "-codepage"}, {{"-CODEPAGE"}, "-CODEPAGE"}});
  const auto number = value ? parseInteger(*value) : std::nullopt;
  AppOptions.CodePageGiven = number.has_value();
  AppOptions.DocCodePage = number.value_or(systemAnsiCodePage());
}

void takeMailProgram(std::string& parameters) {
  const auto value = takeValue(parameters, {{{" -mail"}, "-mail"}, {{" -MAIL"}, "-MAIL"}});
  if (!value) return;
  AppOptions.MailProgram = parseInteger(*value).value_or(AppOptions.MailProgram);
}

// The file name of a target is lower-cased, its directory is not: here that would be another one.
std::string lowerFileName(const std::string& target) {
  return std::string(directoryOf(target)) + lowerUtf8(fileNameOf(target));
}

}  // namespace

std::string parameterString(int argc, const char* const* argv) {
  std::string parameters;
  for (int i = 1; i < argc; ++i) {
    const std::string argument = argv[i];
    const bool quoted = argument.empty() || argument.find(' ') != std::string::npos;
    if (i > 1) parameters += ' ';
    parameters += quoted ? '"' + argument + '"' : argument;
  }
  return parameters;
}

bool asksForWindow(std::string_view parameters) {
  return !asksForPrint(parameters) && !holdsAny(parameters, {"-export", "-EXPORT"});
}

bool GetOptionValue(std::string& value, std::string& parameters, std::string_view key) {
  const auto place = parameters.find(key);
  if (place == std::string::npos) return false;
  std::string_view tail = std::string_view(parameters).substr(place + key.size());
  if (const auto blank = tail.find(' '); blank != std::string_view::npos) {
    tail.remove_prefix(blank + 1);
  }
  tail = trimmedLeft(tail);
  const bool quoted = tail.starts_with('"');
  if (quoted) tail.remove_prefix(1);
  const auto end = tail.find(quoted ? '"' : ' ');
  if (quoted && end == std::string_view::npos) return false;
  value = tail.substr(0, end);
  if (end != std::string_view::npos) {
    const std::string_view rest = firstCharacters(tail.substr(end + (quoted ? 1 : 0)), kMaxRest);
    parameters = parameters.substr(0, place).append(rest);
  }
  return true;
}

RunMode ParseCommandLine(std::string parameters) {
  RunMode mode = kRunPreview;
  if (auto value =
          takeValue(parameters, {{{"-caption"}, "-caption"}, {{"-CAPTION"}, "-CAPTION"}})) {
    AppOptions.WindowCaption = *value;
  }
  if (isHelp(parameters)) {
    showInformation(HelpText(extensionsInHelp()));
    return kRunStop;
  }
  if (asksForPrint(parameters)) mode = kRunPrint;
  if (!takeReport(parameters)) return kRunStop;
  takeSettings(parameters);
  if (auto value = takeValue(parameters, {{{" -p", "-p "}, "-p"}, {{" -P", "-P "}, "-P"}})) {
    AppOptions.PrinterName = *value;
  }
  takeCodePage(parameters);
  takeMailProgram(parameters);
  AppOptions.DeleteAfterPrint = holdsAny(parameters, {" -dd", " -DD", "-dd ", "-DD "});
  AppOptions.DynamicMode = holdsAny(parameters, {" -dynamic", " -DYNAMIC"});
  AppOptions.Drawn = holdsAny(parameters, {" -drawn", " -DRAWN"});
  AppOptions.TestMode = holdsAny(parameters, {" -test", " -TEST"});
  if (auto value = takeValue(parameters, {{{"-export"}, "-export"}, {{"-EXPORT"}, "-EXPORT"}})) {
    mode = kRunExport;
    AppOptions.ExportTarget = lowerFileName(*value);
  }
  if (auto value = takeValue(parameters, {{{"-handle"}, "-handle"}, {{"-HANDLE"}, "-HANDLE"}})) {
    AppOptions.OwnerWindow = static_cast<std::uint32_t>(parseInteger(*value).value_or(0));
  }
  return mode;
}

}  // namespace qor
