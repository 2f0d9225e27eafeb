// A file that other parts of the program reach by its name, and that is gone with the object, also
// where a signal ends the program.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/system/private_directory.h"
#include "platform/system/unfinished_name.h"

namespace qor {

class TemporaryFile {
 public:
  // By this name in a directory of its own, for this user only. What stands beside it in the end
  // goes with it. Throws FileError.
  explicit TemporaryFile(const std::string& name);
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
  PrivateDirectory place_;
  std::string path_;
  int directory_ = -1;
  std::optional<UnfinishedName> name_;
};

}  // namespace qor
