// Naming pictures of pages.
#include "export/image/picture_names.h"

#include "base/path.h"
#include "document/vdoc.h"

namespace qor {

PictureNames::PictureNames(const std::string& target, std::int32_t pageCount)
    : stem_(std::string(directoryOf(target)).append(baseNameOf(target))),
      numbered_(pageCount != 1) {
}

PictureNames::PictureNames(const ExportTask& task) : PictureNames(task.target, task.doc.PageCount) {
  task_ = &task;
}

std::string PictureNames::name(std::int32_t page, std::size_t imageFormat) const {
  if (task_ != nullptr && task_->pictureName) return task_->pictureName(page);
  const std::string number = numbered_ ? "(" + std::to_string(page) + ")" : "";
  return (stem_ + number).append(kImageExtensions[imageFormat]);
}

ImageFormatSet writtenFormats(const std::string& target, ImageFormatSet chosen) {
  if (extensionOf(target).empty()) chosen.set(kImageJpeg);
  return chosen;
}

namespace {

std::vector<std::string> namesOf(const PictureNames& names, ImageFormatSet formats,
                                 const PageRanges& pages, std::int32_t pageCount) {
  std::vector<std::string> files;
  for (std::int32_t page = 1; page <= pageCount; ++page) {
    for (std::size_t i = 0; i < formats.size(); ++i)
      if (formats.test(i) && pages.has(page)) files.push_back(names.name(page, i));
  }
  return files;
}

}  // namespace

std::vector<std::string> pictureFiles(const ExportTask& task) {
  return namesOf(PictureNames(task), writtenFormats(task.target, task.options.ImageFormats),
                 task.pages, task.doc.PageCount);
}

std::vector<std::string> pictureFiles(const std::string& target, ImageFormatSet chosen,
                                      std::int32_t pageCount) {
  return namesOf({target, pageCount}, writtenFormats(target, chosen), {}, pageCount);
}

}  // namespace qor
