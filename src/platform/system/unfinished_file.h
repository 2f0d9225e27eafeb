// A file that is being written beside its target, under a hidden name that is made of the target's.
// It is locked while its writer lives: a later one that wants the name knows by that what a dead
// one has left, and takes it away.
#pragma once

#include <optional>
#include <string>

#include "platform/system/file_place.h"
#include "platform/system/unfinished_name.h"

namespace qor {

class UnfinishedFile {
 public:
  // With the mode of the file that it will replace. Throws FileError with the reason, and for a
  // target that is a directory, a device or may not be written.
  explicit UnfinishedFile(const std::string& target);
  ~UnfinishedFile();
  UnfinishedFile(const UnfinishedFile&) = delete;
  UnfinishedFile& operator=(const UnfinishedFile&) = delete;

  const FilePlace& target() const { return target_; }
  int handle() const { return handle_; }

  // Puts it in the target's place: a link there goes, and where a file there has further names,
  // they keep what it was. Throws FileError.
  void replaceTarget();

 private:
  FilePlace target_;
  std::string name_;  // empty once it is the target's
  int handle_ = -1;
  std::optional<UnfinishedName> noted_;
};

}  // namespace qor
