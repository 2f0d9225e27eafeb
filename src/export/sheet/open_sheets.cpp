// Sheets that come and go.
#include "export/sheet/open_sheets.h"

#include <utility>

#include "platform/workbook/workbook_writer.h"

namespace qor {

OpenSheets::OpenSheets(WorkbookWriter& writer) : writer_(writer) {
  add();
}

Sheet* OpenSheets::at(std::size_t number) {
  const auto found = sheets_.find(number);
  return found == sheets_.end() ? nullptr : found->second.get();
}

void OpenSheets::add() {
  std::unique_ptr<Sheet> sheet;
  if (!unused_.empty()) {
    sheet = std::move(unused_.back());
    unused_.pop_back();
  } else {
    sheet = std::make_unique<Sheet>();
  }
  sheets_.emplace(count_++, std::move(sheet));
}

void OpenSheets::write(std::size_t number, std::unique_ptr<Sheet> sheet) {
  writer_.addSheet(number, *sheet);
  sheet->clear();
  if (unused_.empty()) unused_.push_back(std::move(sheet));
}

void OpenSheets::release(const std::function<bool(std::size_t)>& isWanted) {
  for (auto sheet = sheets_.begin(); std::next(sheet) != sheets_.end();) {
    if (isWanted(sheet->first)) {
      ++sheet;
    } else {
      write(sheet->first, std::move(sheet->second));
      sheet = sheets_.erase(sheet);
    }
  }
}

void OpenSheets::releaseAll() {
  for (auto& [number, sheet] : sheets_) write(number, std::move(sheet));
  sheets_.clear();
}

}  // namespace qor
