// A file that other parts of the program reach by its name, and that is gone with the object, also
// where a signal ends the program.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/system/unfinished_name.h"

namespace qor {

class TemporaryFile {
 public:
  // In the directory of temporary files, for this user only; its name ends as told. Throws
  // FileError.
  explicit TemporaryFile(const std::string& suffix);
  ~TemporaryFile();
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  const std::string& path() const { return path_; }

  // Takes a text; or all of the standard input; or gives all of it to the standard output. Throw
  // FileError.
  void fill(std::string_view text) const;
  void takeInput() const;
  void giveToOutput() const;

 private:
  std::string path_;
  int directory_ = -1;
  std::optional<UnfinishedName> name_;
};

}  // namespace qor
