// The names of files that a signal which ends the program takes away.
#pragma once

#include <string>

namespace qor {

// One of them, for as long as it lives. Beyond a few dozen at a time, the rest stay where they are.
class UnfinishedName {
 public:
  // In a directory that is open for as long.
  UnfinishedName(int directory, const std::string& name);
  ~UnfinishedName();
  UnfinishedName(const UnfinishedName&) = delete;
  UnfinishedName& operator=(const UnfinishedName&) = delete;

 private:
  int slot_ = -1;  // none
};

// From now on the signals that end the program remove the files of all that live before. Those that
// whoever started the program wants to be ignored stay so.
void cleanUpOnSignals();

// Keeps these signals away for a moment: between making a file and noting its name.
class HeldSignals {
 public:
  HeldSignals();
  ~HeldSignals();
  HeldSignals(const HeldSignals&) = delete;
  HeldSignals& operator=(const HeldSignals&) = delete;

 private:
  unsigned held_ = 0;  // a bit for each that nobody else holds
};

}  // namespace qor
