// A directory for files of this run, which goes with the object and all that is in it. A signal
// that ends the program leaves it: hold signals as long.
#pragma once

#include <string>
#include <string_view>

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
};

}  // namespace qor
