// The names of files that a signal which ends the program takes away.
#pragma once

#include <string>

namespace qor {

// A directory goes where it is empty by then.
enum class UnfinishedKind { file, directory };

// One of them, for as long as it lives. Beyond a few dozen at a time, the rest stay where they are.
class UnfinishedName {
 public:
  // In a directory that is open for as long.
  UnfinishedName(int directory, const std::string& name,
                 UnfinishedKind kind = UnfinishedKind::file);
  ~UnfinishedName();
  UnfinishedName(const UnfinishedName&) = delete;
  UnfinishedName& operator=(const UnfinishedName&) = delete;

 private:
  int slot_ = -1;  // none
};

// From now on the signals that end the program remove the files of all that live before. Those that
// whoever started the program wants to be ignored stay so.
void cleanUpOnSignals();

// For a process that is a copy of another one, whose names they are.
void forgetUnfinishedNames();

// Keeps these signals away: between making a file and noting its name, or until what no name stands
// for is cleared away.
class HeldSignals {
 public:
  HeldSignals();
  ~HeldSignals();
  HeldSignals(const HeldSignals&) = delete;
  HeldSignals& operator=(const HeldSignals&) = delete;

  // Whether one of them has come meanwhile.
  static bool oneWaits();

 private:
  unsigned held_ = 0;  // a bit for each that nobody else holds
};

}  // namespace qor
