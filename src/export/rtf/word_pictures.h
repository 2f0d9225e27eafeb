// The picture files of a document of text, read again only when they have changed.
#pragma once

#include <memory>
#include <string>

#include "platform/pictures/embedded_picture.h"
#include "platform/system/file_cache.h"

namespace qor {

class VData_BarCode;
class VData_Image;

class WordPictures {
 public:
  // `stem` is that of pictures beside the report.
  explicit WordPictures(std::string stem) : stem_(std::move(stem)) {}

  const std::string& stem() const { return stem_; }

  // The item's picture; null where there is none to be shown.
  std::shared_ptr<const EmbeddedPicture> pictureOf(const VData_Image& image);
  std::shared_ptr<const EmbeddedPicture> pictureOf(const VData_BarCode& code) const;

 private:
  std::string stem_;
  FileCache<std::shared_ptr<const EmbeddedPicture>> known_;
  std::size_t known_bytes_ = 0;
};

}  // namespace qor
