// The names of the pictures that an export writes.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "export/export_task.h"

namespace qor {

// By ImageFormat.
inline constexpr std::array<std::string_view, kImageFormatCount> kImageExtensions = {
    ".bmp", ".jpeg", ".gif", ".ico", ".png"};

// The target's name without its extension, and the page's number where the report has not just one
// page; or names of the task's own. The task must live as long.
class PictureNames {
 public:
  PictureNames(const std::string& target, std::int32_t pageCount);
  explicit PictureNames(const ExportTask& task);

  // The file of a page, counted from 1.
  std::string name(std::int32_t page, std::size_t imageFormat) const;

 private:
  std::string stem_;
  bool numbered_;
  const ExportTask* task_ = nullptr;
};

// The formats that are written: the chosen ones, and JPEG for a target without an extension.
ImageFormatSet writtenFormats(const std::string& target, ImageFormatSet chosen);

// The pictures of a task, whose names may be its own.
std::vector<std::string> pictureFiles(const ExportTask& task);

// All files of an export, in the order in which they are written.
std::vector<std::string> pictureFiles(const std::string& target, ImageFormatSet chosen,
                                      std::int32_t pageCount);

}  // namespace qor
