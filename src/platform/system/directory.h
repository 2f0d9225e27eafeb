// Directories and whole files: where the program stands, and deleting.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace qor {

// The directory of the start, with a closing "/"; empty where the system doesn't tell.
std::string currentDirectory();

// Where temporary files go, with no closing "/".
std::string temporaryDirectory();

// The program's file, and its directory with a closing "/": where they really are, whatever links
// lead to them.
std::string programFile();
std::string programDirectory();

// The path from the root on.
std::string fullPath(const std::string& path);

// The same without links, "." and "..", as far as it leads to what is there.
std::string realPath(const std::string& path);

// True for a directory, also by a link; and where anything of that name is there, also a link that
// leads nowhere.
bool isDirectory(const std::string& path);
bool isTaken(const std::string& path);

// True for a symbolic link, wherever it leads.
bool isLink(const std::string& path);

// True only where its directory can be looked at and holds nothing of that name.
bool isGone(const std::string& path);

// Makes the directory and those that it stands in, as far as they aren't there. Throws FileError.
void makeDirectories(const std::string& directory);

// Makes it the current directory; one that can't be entered changes nothing.
void enterDirectory(const std::string& directory);

// Deletes a regular file; one that is not there is no failure.
void deleteFile(const std::string& path);

// Deletes regular files, and links themselves, but none of those that are kept: they stay by every
// name of theirs, and a link to one of them doesn't.
void deleteFiles(const std::vector<std::string>& paths, const std::vector<std::string>& kept);

// Full names of the regular files and links in `directory` (empty: the current one) whose names
// start with `prefix` and hold a point behind it. The case of letters counts, but where the file
// system itself takes one for the other.
std::vector<std::string> filesStartingWith(const std::string& directory, std::string_view prefix);

// True where both names lead to the same file.
bool isSameFile(const std::string& first, const std::string& second);

}  // namespace qor
