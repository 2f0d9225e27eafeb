// Archives. Sizes are known before a part is written, so nothing is mended later.
#include "platform/workbook/zip_writer.h"

#include <algorithm>
#include <utility>

#include "platform/system/byte_sink.h"
#include "platform/workbook/little_endian.h"

namespace qor {
namespace {

// Large parts repeat themselves so much that effort gains little; small ones need it.
constexpr std::size_t kLargePart = std::size_t{1} << 14;
constexpr int kLittleEffort = 1;
constexpr int kEffort = 5;

constexpr std::uint32_t kLocalHeader = 0x04034B50;
constexpr std::uint32_t kDirectoryHeader = 0x02014B50;
constexpr std::uint32_t kDirectoryEnd = 0x06054B50;
constexpr std::uint32_t kLargeDirectoryEnd = 0x06064B50;
constexpr std::uint32_t kLargeDirectoryPlace = 0x07064B50;
constexpr std::uint16_t kVersion = 20;       // directories and deflate
constexpr std::uint16_t kLargeVersion = 45;  // sizes of 64 bits
constexpr std::uint16_t kNamesAreUtf8 = 0x0800;
constexpr std::uint16_t kDeflated = 8;
constexpr std::uint32_t kFirstDay = 0x00210000;  // 1980-01-01 00:00
constexpr std::uint64_t kLarge32 = 0xFFFFFFFF;
constexpr std::uint64_t kLarge16 = 0xFFFF;
constexpr std::uint16_t kLargeField = 1;

std::uint32_t low32(std::uint64_t value) {
  return static_cast<std::uint32_t>(std::min(value, kLarge32));
}
std::uint16_t low16(std::uint64_t value) {
  return static_cast<std::uint16_t>(std::min(value, kLarge16));
}

}  // namespace

ZipWriter::ZipWriter(ByteSink& sink) : sink_(sink), for_small_(kEffort), for_large_(kLittleEffort) {
}

void ZipWriter::write(std::string_view bytes) {
  sink_.write(bytes);
  position_ += bytes.size();
}

void ZipWriter::add(const std::string& name, std::string_view bytes) {
  Compressor& compressor = bytes.size() < kLargePart ? for_small_ : for_large_;
  const std::string_view packed = compressor.deflate(bytes);
  put({name, crc32Of(bytes), bytes.size(), packed.size(), 0, true}, packed);
}

void ZipWriter::addStored(const std::string& name, std::string_view bytes) {
  put({name, crc32Of(bytes), bytes.size(), bytes.size()}, bytes);
}

void ZipWriter::put(Entry entry, std::string_view data) {
  entry.offset = position_;
  const bool large = std::max(entry.size, entry.packedSize) >= kLarge32;
  LittleEndian header;
  header.u32(kLocalHeader).u16(large ? kLargeVersion : kVersion).u16(kNamesAreUtf8);
  header.u16(entry.packed ? kDeflated : 0).u32(kFirstDay).u32(entry.crc);
  header.u32(large ? low32(kLarge32) : low32(entry.packedSize));
  header.u32(large ? low32(kLarge32) : low32(entry.size));
  header.u16(low16(entry.name.size())).u16(large ? 20 : 0).text(entry.name);
  if (large) header.u16(kLargeField).u16(16).u64(entry.size).u64(entry.packedSize);
  write(header.bytes());
  write(data);
  entries_.push_back(std::move(entry));
}

void ZipWriter::finish() {
  const std::uint64_t start = position_;
  for (const Entry& entry : entries_) {
    const bool large = std::max({entry.size, entry.packedSize, entry.offset}) >= kLarge32;
    LittleEndian header;
    header.u32(kDirectoryHeader).u16(kLargeVersion).u16(large ? kLargeVersion : kVersion);
    header.u16(kNamesAreUtf8).u16(entry.packed ? kDeflated : 0).u32(kFirstDay).u32(entry.crc);
    header.u32(large ? low32(kLarge32) : low32(entry.packedSize));
    header.u32(large ? low32(kLarge32) : low32(entry.size));
    header.u16(low16(entry.name.size())).u16(large ? 28 : 0).u16(0).u16(0).u16(0).u32(0);
    header.u32(large ? low32(kLarge32) : low32(entry.offset)).text(entry.name);
    if (large)
      header.u16(kLargeField).u16(24).u64(entry.size).u64(entry.packedSize).u64(entry.offset);
    write(header.bytes());
  }
  const std::uint64_t end = position_;
  LittleEndian tail;
  if (entries_.size() >= kLarge16 || end >= kLarge32) {
    tail.u32(kLargeDirectoryEnd).u64(44).u16(kLargeVersion).u16(kLargeVersion).u32(0).u32(0);
    tail.u64(entries_.size()).u64(entries_.size()).u64(end - start).u64(start);
    tail.u32(kLargeDirectoryPlace).u32(0).u64(end).u32(1);
  }
  tail.u32(kDirectoryEnd).u16(0).u16(0).u16(low16(entries_.size())).u16(low16(entries_.size()));
  tail.u32(low32(end - start)).u32(low32(start)).u16(0);
  write(tail.bytes());
}

}  // namespace qor
