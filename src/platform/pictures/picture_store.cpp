// Keeping pictures, and the memory that they may take together.
#include "platform/pictures/picture_store.h"

#include <functional>
#include <list>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "platform/pictures/jpeg_header.h"
#include "platform/pictures/picture.h"
#include "platform/pictures/plain_png.h"
#include "platform/system/file_cache.h"

namespace qor {
namespace {

// With the file and what decoding it takes.
constexpr std::uint64_t kMaxWhileDecoding = 256U << 20;
// The rest is for whoever makes something of the pictures.
constexpr std::uint64_t kMaxKept = 128U << 20;

// What is known of more files is forgotten: barcodes have a file each.
constexpr std::size_t kMostFiles = 10'000;

// Two hashes with nothing in common: the library's, and a sum that depends on places.
std::string keyOf(std::string_view bytes) {
  std::uint64_t sum = 0;
  for (const char byte : bytes) sum = sum * 1099511628211ULL + static_cast<unsigned char>(byte);
  return std::to_string(bytes.size()) + "-" + std::to_string(std::hash<std::string_view>()(bytes)) +
         "-" + std::to_string(sum);
}

}  // namespace

// The pictures that have something in memory.
class PictureMemory {
 public:
  static PictureMemory& all() {
    static PictureMemory memory;
    return memory;
  }

  // Lets pictures go, the one first whose last use is the longest ago, until `bytes` more fit below
  // `limit`. What somebody holds stays, and counts.
  void makeRoom(std::uint64_t bytes, std::uint64_t limit) {
    for (auto place = order_.end(); place != order_.begin() && bytes_ + bytes > limit;) {
      const StoredPicture& picture = **--place;
      if (picture.pixels_.use_count() == 1) picture.pixels_.reset();
      if (picture.jpeg_.use_count() == 1) picture.jpeg_.reset();
      const auto known = places_.find(&picture);
      bytes_ -= known->second.bytes - bytesOf(picture);
      known->second.bytes = bytesOf(picture);
      if (known->second.bytes > 0) continue;
      place = order_.erase(place);
      places_.erase(known);
    }
  }

  // The picture has something in memory.
  void keep(const StoredPicture& picture) {
    forget(picture);
    const std::uint64_t bytes = bytesOf(picture);
    makeRoom(bytes, kMaxKept);
    order_.push_front(&picture);
    places_[&picture] = {order_.begin(), bytes};
    bytes_ += bytes;
  }

  void use(const StoredPicture& picture) {
    const auto known = places_.find(&picture);
    if (known != places_.end()) order_.splice(order_.begin(), order_, known->second.place);
  }

  void forget(const StoredPicture& picture) {
    const auto known = places_.find(&picture);
    if (known == places_.end()) return;
    bytes_ -= known->second.bytes;
    order_.erase(known->second.place);
    places_.erase(known);
  }

  std::shared_ptr<const StoredPicture> pictureOf(const std::string& path, LinkSource link) {
    return files_.valueOf(path, [&]() -> std::shared_ptr<const StoredPicture> {
      if (++file_count_ > kMostFiles) {
        files_.clear();
        file_count_ = 1;
      }
      const auto stamp = fileStamp(path);
      auto file = stamp ? readFile(path, *stamp, link) : std::nullopt;
      return file ? StoredPicture::read(path, *stamp, *std::move(file)) : nullptr;
    });
  }

  std::optional<std::string> readFile(const std::string& path, const FileStamp& stamp,
                                      LinkSource link = LinkSource::followed) {
    makeRoom(stamp.size, kMaxWhileDecoding);
    return readWholeFile(path, kMaxPictureFile, link);
  }

 private:
  using Order = std::list<const StoredPicture*>;

  struct Place {
    Order::iterator place;
    std::uint64_t bytes = 0;
  };

  static std::uint64_t bytesOf(const StoredPicture& picture) {
    return (picture.pixels_ ? picture.pixels_->pixels.size() * 4 : 0) +
           (picture.jpeg_ ? picture.jpeg_->size() : 0);
  }

  Order order_;  // the one used last first
  std::unordered_map<const StoredPicture*, Place> places_;
  std::uint64_t bytes_ = 0;
  std::size_t file_count_ = 0;
  // Goes first: its pictures say goodbye to the memory.
  FileCache<std::shared_ptr<const StoredPicture>> files_;
};

StoredPicture::StoredPicture(std::string path, const FileStamp& stamp)
    : path_(std::move(path)), stamp_(stamp) {
}

StoredPicture::~StoredPicture() {
  PictureMemory::all().forget(*this);
}

std::shared_ptr<const StoredPicture> StoredPicture::read(std::string path, const FileStamp& stamp,
                                                         std::string file) {
  const std::shared_ptr<StoredPicture> stored(new StoredPicture(std::move(path), stamp));
  stored->key_ = keyOf(file);
  const auto header = readJpegHeader(file);
  if (!stored->decode(file)) return nullptr;
  stored->width_ = stored->pixels_->width;
  stored->height_ = stored->pixels_->height;
  stored->is_plain_jpeg_ = header && header->plain && stored->pixels_->whole;
  stored->is_plain_png_ = stored->pixels_->whole && readPlainPng(file);
  stored->keep(std::make_shared<const std::string>(std::move(file)));
  return stored;
}

bool StoredPicture::decode(const std::string& file) const {
  PictureMemory::all().makeRoom(file.size() + decodingBytes(file), kMaxWhileDecoding);
  auto picture = decodePicture(file);
  if (picture) pixels_ = std::make_shared<const Picture>(*std::move(picture));
  return pixels_ != nullptr;
}

void StoredPicture::keep(std::shared_ptr<const std::string> file) const {
  if (is_plain_jpeg_) jpeg_ = std::move(file);
  PictureMemory::all().keep(*this);
}

std::shared_ptr<const std::string> StoredPicture::file() const {
  if (jpeg_) return jpeg_;
  if (fileStamp(path_) != stamp_) return nullptr;
  auto bytes = PictureMemory::all().readFile(path_, stamp_);
  // The stamp tells much, and the bytes tell all.
  if (!bytes || keyOf(*bytes) != key_) return nullptr;
  return std::make_shared<const std::string>(*std::move(bytes));
}

std::shared_ptr<const Picture> StoredPicture::pixels() const {
  if (!pixels_) {
    auto bytes = file();
    if (!bytes || !decode(*bytes)) return nullptr;
    keep(std::move(bytes));
  }
  PictureMemory::all().use(*this);
  return pixels_;
}

std::shared_ptr<const std::string> StoredPicture::jpeg() const {
  if (is_plain_jpeg_ && !jpeg_) {
    auto bytes = file();
    if (!bytes) return nullptr;
    keep(std::move(bytes));
  }
  PictureMemory::all().use(*this);
  return jpeg_;
}

std::shared_ptr<const StoredPicture> storedPicture(const std::string& path, LinkSource link) {
  return PictureMemory::all().pictureOf(path, link);
}

}  // namespace qor
