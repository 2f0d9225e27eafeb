// Directories, on POSIX.
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <set>
#include <system_error>
#include <utility>

#include <sys/stat.h>

#include "base/errors.h"
#include "platform/system/directory.h"
#include "platform/system/text_encoding.h"

namespace qor {
namespace fs = std::filesystem;

namespace {

std::string closed(std::string directory) {
  if (!directory.empty() && directory.back() != '/') directory += '/';
  return directory;
}

// Whether the name starts with the prefix. In another case it does where the file system finds the
// same file by the prefix as it is told.
bool startsWith(const fs::path& file, const std::string& name, std::string_view prefix) {
  if (name.starts_with(prefix)) return true;
  if (name.size() < prefix.size()) return false;
  const std::string start = name.substr(0, prefix.size());
  if (lowerUtf8(start) != lowerUtf8(prefix)) return false;
  const fs::path asTold = file.parent_path() / (std::string(prefix) + name.substr(prefix.size()));
  return isSameFile(file.string(), asTold.string());
}

// A file by what it is and not by its names: its numbers; nothing where there is none.
using FileId = std::pair<dev_t, ino_t>;
std::optional<FileId> idBy(int (*look)(const char*, struct stat*), const std::string& path) {
  struct stat status {};
  if (look(path.c_str(), &status) != 0) return std::nullopt;
  return FileId{status.st_dev, status.st_ino};
}

// There may be very many.
class KeptFiles {
 public:
  explicit KeptFiles(const std::vector<std::string>& paths) {
    for (const std::string& path : paths) {
      for (auto* const look : {::lstat, ::stat})
        if (const auto id = idBy(look, path)) ids_.insert(*id);
    }
  }

  // A link counts as itself, wherever it leads.
  bool hold(const std::string& path) const {
    const auto id = idBy(::lstat, path);
    return id && ids_.contains(*id);
  }

 private:
  std::set<FileId> ids_;
};

}  // namespace

bool isSameFile(const std::string& first, const std::string& second) {
  std::error_code error;
  return fs::equivalent(first, second, error);
}

std::string currentDirectory() {
  std::error_code error;
  return closed(fs::current_path(error).string());
}

std::string temporaryDirectory() {
  const char* named = std::getenv("TMPDIR");
  return named == nullptr || *named == 0 ? "/tmp" : named;
}

std::string programFile() {
  // An upgrade puts another file in its place, and the system says so behind the name.
  constexpr std::string_view kReplaced = " (deleted)";
  std::error_code error;
  std::string file = fs::read_symlink("/proc/self/exe", error).string();
  if (file.ends_with(kReplaced)) file.resize(file.size() - kReplaced.size());
  return file;
}

std::string programDirectory() {
  return closed(fs::path(programFile()).parent_path().string());
}

std::string fullPath(const std::string& path) {
  std::error_code error;
  const std::string full = fs::absolute(path, error).string();
  return error ? path : full;
}

std::string realPath(const std::string& path) {
  std::error_code error;
  const fs::path real = fs::weakly_canonical(path, error);
  return error ? fullPath(path) : real.string();
}

bool isDirectory(const std::string& path) {
  std::error_code error;
  return fs::is_directory(path, error);
}

bool isTaken(const std::string& path) {
  std::error_code error;
  return fs::exists(fs::symlink_status(path, error));
}

bool isLink(const std::string& path) {
  std::error_code error;
  return fs::is_symlink(fs::symlink_status(path, error));
}

bool isGone(const std::string& path) {
  std::error_code error;
  const fs::directory_iterator readable(fs::path(path).parent_path(), error);
  return !error && fs::symlink_status(path, error).type() == fs::file_type::not_found;
}

void makeDirectories(const std::string& directory) {
  std::error_code error;
  if (directory.empty() || isDirectory(directory)) return;
  std::filesystem::create_directories(directory, error);
  if (error) throw FileError(directory + ": " + error.message(), ErrorKind::cannotWrite);
}

void enterDirectory(const std::string& directory) {
  std::error_code error;
  fs::current_path(directory, error);
}

void deleteFile(const std::string& path) {
  std::error_code error;
  const auto kind = fs::symlink_status(path, error).type();
  if (kind == fs::file_type::regular || kind == fs::file_type::symlink) fs::remove(path, error);
}

void deleteFiles(const std::vector<std::string>& paths, const std::vector<std::string>& kept) {
  const KeptFiles keptFiles(kept);
  for (const std::string& path : paths)
    if (!keptFiles.hold(path)) deleteFile(path);
}

std::vector<std::string> filesStartingWith(const std::string& directory, std::string_view prefix) {
  std::vector<std::string> found;
  std::error_code error;
  const fs::path place = directory.empty() ? fs::path(".") : fs::path(directory);
  for (fs::directory_iterator entry(place, error), end; !error && entry != end;
       entry.increment(error)) {
    const std::string name = entry->path().filename().string();
    std::error_code ignored;
    const auto kind = entry->symlink_status(ignored).type();
    const bool isFile = kind == fs::file_type::regular || kind == fs::file_type::symlink;
    if (isFile && startsWith(entry->path(), name, prefix) &&
        name.find('.', prefix.size()) != std::string::npos) {
      found.push_back(directory + name);
    }
  }
  return found;
}

}  // namespace qor
