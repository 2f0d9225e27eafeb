// A place for a file: a directory that stays open and a name in it, so that nobody can put another
// directory or a link in the way between a look and a write.
#pragma once

#include <string>

namespace qor {

class FilePlace {
 public:
  // Throws FileError where the directory can't be opened.
  explicit FilePlace(const std::string& path);
  ~FilePlace();
  FilePlace(const FilePlace&) = delete;
  FilePlace& operator=(const FilePlace&) = delete;

  const std::string& path() const { return path_; }
  const char* name() const { return path_.c_str() + name_; }
  int directory() const { return directory_; }

  // Throws FileError that tells the path and the system's reason, by its number.
  [[noreturn]] void fail(int error) const;

 private:
  std::string path_;
  std::size_t name_;  // where it starts in the path
  int directory_;
};

// The name that a chain of links ends in, which may be that of no file; the path itself where it is
// no link. Throws FileError for a chain without an end.
std::string endOfLinks(std::string path);

}  // namespace qor
