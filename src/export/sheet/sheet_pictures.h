// The picture files of a workbook, each once.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>

#include "platform/system/file_cache.h"

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

  // The picture of a file's bytes; nothing where they are none.
  std::optional<KnownPicture> pictureOf(std::string file);

  // The same of a file as the report names it, which is read again only when it has changed.
  std::optional<KnownPicture> pictureNamed(const std::string& name, int codePage);

 private:
  WorkbookWriter& writer_;
  std::map<std::string, std::optional<KnownPicture>> known_;  // by hash and size
  FileCache<std::optional<KnownPicture>> named_;
};

}  // namespace qor
