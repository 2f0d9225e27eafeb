// The marks at the start of a JPEG (ITU-T T.81, annex B).
#include "platform/pictures/jpeg_header.h"

#include <cstddef>

namespace qor {
namespace {

constexpr std::size_t kFrameSize = 10;  // mark, length, bits, sides, number of components

constexpr int kFirstFrame = 0xC0;
constexpr int kLastPlainFrame = 0xC2;  // Huffman's code, without differences between frames
constexpr int kLastFrame = 0xCF;

int byteAt(std::string_view file, std::size_t place) {
  return static_cast<unsigned char>(file[place]);
}

int wordAt(std::string_view file, std::size_t place) {
  return byteAt(file, place) << 8 | byteAt(file, place + 1);
}

// Tables of codes, and what is set aside, have numbers among those of frames.
bool isFrame(int mark) {
  return mark >= kFirstFrame && mark <= kLastFrame && mark != 0xC4 && mark != 0xC8 && mark != 0xCC;
}

// Marks without a length can't stand before a frame.
bool hasLength(int mark) {
  return mark >= kFirstFrame && mark < 0xFF && (mark < 0xD0 || mark > 0xD9);
}

// Components by these names are red, green and blue to some readers and to others not.
bool isNamedRgb(std::string_view frame) {
  constexpr std::size_t kComponentSize = 3;
  if (frame.size() < kFrameSize + 3 * kComponentSize) return false;
  const auto name = [frame](std::size_t i) { return frame[kFrameSize + i * kComponentSize]; };
  return name(0) == 'R' && name(1) == 'G' && name(2) == 'B';
}

JpegHeader readFrame(std::string_view frame) {
  const int components = byteAt(frame, 9);
  const bool usual = components == 1 || (components == 3 && !isNamedRgb(frame));
  return {wordAt(frame, 7), wordAt(frame, 5), components,
          usual && byteAt(frame, 1) <= kLastPlainFrame && byteAt(frame, 4) == 8};
}

}  // namespace

std::optional<JpegHeader> readJpegHeader(std::string_view file) {
  constexpr std::size_t kSignature = 2;
  for (std::size_t at = kSignature; at + kFrameSize <= file.size();) {
    const int mark = byteAt(file, at + 1);
    if (byteAt(file, at) != 0xFF || !hasLength(mark)) return std::nullopt;
    if (isFrame(mark)) return readFrame(file.substr(at));
    at += 2 + static_cast<std::size_t>(wordAt(file, at + 2));
  }
  return std::nullopt;
}

}  // namespace qor
