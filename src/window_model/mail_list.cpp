// Lists of files for mail.
#include "window_model/mail_list.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>

#include "base/errors.h"
#include "base/path.h"
#include "base/text.h"
#include "platform/system/directory.h"
#include "platform/system/input_file.h"
#include "platform/system/text_file.h"
#include "settings/set_lines.h"

namespace qor {
namespace {

using Names = std::vector<std::string>;

constexpr std::uint64_t kMaxListFile = 64U << 20;
constexpr int kLooksAtTheClock = 100;
constexpr const char* kMark = "\xEF\xBB\xBF";

// Such as "mail0712", at second 7 and 123 milliseconds.
std::string tempStem(std::chrono::system_clock::time_point time) {
  using std::chrono::milliseconds;
  const auto sinceStart = std::chrono::floor<milliseconds>(time.time_since_epoch()).count();
  std::array<char, 16> digits{};
  std::snprintf(digits.data(), digits.size(), "%02d%02d", static_cast<int>(sinceStart / 1000 % 60),
                static_cast<int>(sinceStart % 1000));
  return std::string("mail").append(digits.data(), 4);
}

bool isAnsi(const std::string& name) {
  return utf8OfFileText(fileText(name)) == name;
}

// A name that went on to the next line would make the next mail delete another file.
std::string lineOf(const std::string& file, const std::string& list) {
  std::string line = fullPath(file);
  if (line.find_first_of("\r\n") != std::string::npos)
    throw FileError(list + ": a name with a line end can't stand in it", ErrorKind::cannotWrite);
  return line;
}

void writeList(const std::string& list, const Names& files) {
  Names lines;
  lines.reserve(files.size());
  for (const std::string& file : files) lines.push_back(lineOf(file, list));
  if (std::all_of(lines.begin(), lines.end(), isAnsi)) {
    for (std::string& line : lines) line = fileText(line);
  } else {
    lines.front().insert(0, kMark);
  }
  // Nobody means a link in its place: it may lead to the report, or to somebody else's file.
  saveLines(list, lines, LinkTarget::spared);
}

// What somebody else has put there, or a link, would make the user delete files of theirs.
std::string bytesOfLastMail(const std::string& report) {
  try {
    const InputFile list(lastMailList(report), LinkSource::refused);
    return list.isOfUserOrOwnerOf(report) ? list.whole(kMaxListFile) : std::string();
  } catch (const FileError&) {
    return {};
  }
}

}  // namespace

std::string MakeTempName(const std::string& directory, const MailClock& clock) {
  const auto taken = [&directory](const std::string& stem) {
    return isTaken(directory + stem + ".tmp");
  };
  std::string stem = tempStem(clock());
  for (int i = 1; i < kLooksAtTheClock && taken(stem); ++i) stem = tempStem(clock());
  std::string name = stem;
  for (int i = 0; taken(name); ++i) name = stem + std::to_string(i);
  return name + ".tmp";
}

std::string writeMailList(const Names& files) {
  const std::string directory(directoryOf(fullPath(files.front())));
  std::string list = directory + MakeTempName(directory);
  writeList(list, files);
  return list;
}

Names mailArguments(int mailProgram, const std::string& listName) {
  return {"qorsil", std::to_string(mailProgram), listName, " "};
}

std::string lastMailList(const std::string& report) {
  std::string name(directoryOf(report));
  const std::string_view file = fileNameOf(report);
  // The point of a hidden file is no end.
  return name.append(file.substr(0, file.find('.', 1))).append("_mail.tmp");
}

void rememberMail(const std::string& report, const Names& files) {
  writeList(lastMailList(report), files);
}

Names filesOfLastMail(const std::string& report) {
  const std::string bytes = bytesOfLastMail(report);
  Names names = linesOf(utf8ByMark(bytes).value_or(utf8OfFileText(bytes)));
  std::erase_if(names, [](const std::string& line) { return line.empty(); });
  for (std::string& name : names) name = withSystemSeparators(name);
  return names;
}

void deleteLastMail(const std::string& report, Names kept) {
  kept.push_back(report);
  Names names = filesOfLastMail(report);
  names.push_back(lastMailList(report));
  deleteFiles(names, kept);
}

}  // namespace qor
