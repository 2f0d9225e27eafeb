// A directory for files of this run, which goes with the object and all that is in it. A signal
// that ends the program takes it away where it is empty: hold signals where that isn't enough.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/system/unfinished_name.h"

namespace qor {

class PrivateDirectory {
 public:
  // Among the temporary files, for this user only. Throws FileError.
  PrivateDirectory();
  ~PrivateDirectory();
  PrivateDirectory(const PrivateDirectory&) = delete;
  PrivateDirectory& operator=(const PrivateDirectory&) = delete;

  // The full name of a file in it.
  std::string path(std::string_view name) const;

 private:
  std::string path_;
  int parent_;  // open
  std::optional<UnfinishedName> name_;
};

}  // namespace qor
