// The picture files of a workbook, each once.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace qor {

class WorkbookWriter;

struct KnownPicture {
  std::size_t number = 0;  // of the workbook
  int width = 0;           // pixels
  int height = 0;
};

class SheetPictures {
 public:
  explicit SheetPictures(WorkbookWriter& writer) : writer_(writer) {}

  // The picture of a file's bytes; nothing where they are none. PNG and JPEG go into the workbook
  // as they are, others as PNG on white.
  std::optional<KnownPicture> pictureOf(std::string_view file);

 private:
  WorkbookWriter& writer_;
  std::map<std::string, std::optional<KnownPicture>> known_;  // by hash and size
};

}  // namespace qor
