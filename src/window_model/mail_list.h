// Files that go out by mail: the lists of them, and the program of the suite that sends them. A
// list holds a file's name a line, each ended by CR LF, in the system's ANSI code page, or in UTF-8
// behind a byte-order mark.
#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace qor {

inline constexpr const char* kMailCompanion = "QorUtlMail";

using MailClock = std::function<std::chrono::system_clock::time_point()>;

// A name that nothing in the directory (with its closing separator; empty: the current one) has
// yet: "mail", the second of the minute, the first two of the digits that tell the milliseconds,
// two at least, and ".tmp". Where that stays taken, further digits stand before the point.
std::string MakeTempName(const std::string& directory,
                         const MailClock& clock = std::chrono::system_clock::now);

// Writes the list for the companion, who then owns it, beside the first of the files, which there
// must be; its full name. The list tells full names. Throws FileError, also for a name that can't
// stand on a line; no list is there then.
std::string writeMailList(const std::vector<std::string>& files);

// What the companion is started with, to send by the program of this number.
std::vector<std::string> mailArguments(int mailProgram, const std::string& listName);

// The list beside the report that remembers its last mail.
std::string lastMailList(const std::string& report);

// Makes it the list of these files. Throws as writeMailList.
void rememberMail(const std::string& report, const std::vector<std::string>& files);

// The files that it names; none where it can't be read, is a link, or belongs neither to the user
// nor to the report's owner.
std::vector<std::string> filesOfLastMail(const std::string& report);

// Deletes these files and the list, but neither the report nor any of the files that are kept.
void deleteLastMail(const std::string& report, std::vector<std::string> kept);

}  // namespace qor
