// The names of files that a signal which ends the program takes away.
#pragma once

#include <string>

namespace qor {

// One of them, for as long as it lives. Beyond a few dozen at a time, the rest stay where they are.
class UnfinishedName {
 public:
  // In a directory that is open for as long.
  UnfinishedName(int directory, const std::string& name);
  ~UnfinishedName() { forget(); }
  UnfinishedName(const UnfinishedName&) = delete;
  UnfinishedName& operator=(const UnfinishedName&) = delete;

  void forget();

 private:
  int slot_ = -1;  // none
};

// Removes the files of all that live. May be called by a signal's handler.
void removeUnfinishedFiles();

}  // namespace qor
