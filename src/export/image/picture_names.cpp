// Naming pictures of pages.
#include "export/image/picture_names.h"

#include "base/path.h"
#include "document/vdoc.h"

namespace qor {

PictureNames::PictureNames(const std::string& target, std::int32_t pageCount)
    : stem_(std::string(directoryOf(target)).append(baseNameOf(target))),
      numbered_(pageCount != 1) {
}

std::string PictureNames::name(std::int32_t page, std::size_t imageFormat) const {
  const std::string number = numbered_ ? "(" + std::to_string(page) + ")" : "";
  return (stem_ + number).append(kImageExtensions[imageFormat]);
}

ImageFormatSet writtenFormats(const std::string& target, ImageFormatSet chosen) {
  if (extensionOf(target).empty()) chosen.set(kImageJpeg);
  return chosen;
}

std::vector<std::string> pictureFiles(const ExportTask& task) {
  const ImageFormatSet formats = writtenFormats(task.target, task.options.ImageFormats);
  const PictureNames names(task.target, task.doc.PageCount);
  std::vector<std::string> files;
  for (std::int32_t page = 1; page <= task.doc.PageCount; ++page) {
    for (std::size_t i = 0; i < formats.size(); ++i) {
      if (!formats.test(i) || !task.pages.has(page)) continue;
      files.push_back(task.pictureName ? task.pictureName(page, kImageExtensions[i])
                                       : names.name(page, i));
    }
  }
  return files;
}

std::vector<std::string> pictureFiles(const std::string& target, ImageFormatSet chosen,
                                      std::int32_t pageCount) {
  const ImageFormatSet formats = writtenFormats(target, chosen);
  const PictureNames names(target, pageCount);
  std::vector<std::string> files;
  for (std::int32_t page = 1; page <= pageCount; ++page) {
    for (std::size_t i = 0; i < formats.size(); ++i)
      if (formats.test(i)) files.push_back(names.name(page, i));
  }
  return files;
}

}  // namespace qor
