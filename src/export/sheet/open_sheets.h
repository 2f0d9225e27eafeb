// The sheets of a workbook that cells may still come to. One that nothing can reach any more goes
// to the writer and leaves memory.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "platform/workbook/sheet.h"

namespace qor {

class WorkbookWriter;

class OpenSheets {
 public:
  // A workbook starts with one sheet. The writer must outlive it.
  explicit OpenSheets(WorkbookWriter& writer);

  std::size_t count() const { return count_; }

  // The sheet of this number, from 0; null for one that isn't there, or that is written.
  Sheet* at(std::size_t number);
  Sheet& last() { return *sheets_.rbegin()->second; }

  void add();

  // Writes the sheets but for the last one, that are not wanted.
  void release(const std::function<bool(std::size_t number)>& isWanted);
  void releaseAll();

 private:
  void write(std::size_t number, std::unique_ptr<Sheet> sheet);

  WorkbookWriter& writer_;
  std::size_t count_ = 0;
  std::map<std::size_t, std::unique_ptr<Sheet>> sheets_;
  std::vector<std::unique_ptr<Sheet>> unused_;
};

}  // namespace qor
