// The pictures of files. A report shows its logo on each page and a photo in a corner: what was
// read and decoded is kept while there is room, as long as the file stays as it is.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/system/file_stamp.h"
#include "platform/system/input_file.h"

namespace qor {

struct Picture;

class StoredPicture : public std::enable_shared_from_this<StoredPicture> {
 public:
  // Of a file's bytes. Null where they are no picture that can be shown.
  static std::shared_ptr<const StoredPicture> read(std::string path, const FileStamp& stamp,
                                                   std::string file);
  ~StoredPicture();
  StoredPicture(const StoredPicture&) = delete;
  StoredPicture& operator=(const StoredPicture&) = delete;

  int width() const { return width_; }  // pixels
  int height() const { return height_; }

  // The same for files of the same bytes; for others as long as nobody makes them for it.
  const std::string& key() const { return key_; }

  // The decoded picture, which stays for as long as somebody holds it. Null where it had to be read
  // again and the file has changed since.
  std::shared_ptr<const Picture> pixels() const;

  // The bytes of the file, where it is a JPEG that is whole and looks the same to all who read it;
  // null for all others, and as above.
  std::shared_ptr<const std::string> jpeg() const;

  // The same of a PNG that is plain (plain_png.h). It is read again each time.
  std::shared_ptr<const std::string> png() const { return is_plain_png_ ? file() : nullptr; }

 private:
  friend class PictureMemory;

  StoredPicture(std::string path, const FileStamp& stamp);

  bool decode(const std::string& file) const;
  void keep(std::shared_ptr<const std::string> file) const;
  std::shared_ptr<const std::string> file() const;

  std::string path_;
  FileStamp stamp_;
  std::string key_;
  int width_ = 0;
  int height_ = 0;
  bool is_plain_jpeg_ = false;
  bool is_plain_png_ = false;
  mutable std::shared_ptr<const Picture> pixels_;
  mutable std::shared_ptr<const std::string> jpeg_;
};

// Larger files are no pictures.
inline constexpr std::uint64_t kMaxPictureFile = 256U << 20;

// The picture of a file by its path. Null where it can't be read, or shows nothing.
std::shared_ptr<const StoredPicture> storedPicture(const std::string& path,
                                                   LinkSource link = LinkSource::followed);

}  // namespace qor
