// Looking through texts of which nearly all bytes are plain: in blocks, which processors compare as
// a whole.
#pragma once

#include <cstddef>
#include <string_view>

namespace qor {

// Where the first byte is that the predicate, which is without branches, is true of; the size of
// the text where there is none.
template <class Predicate>
std::size_t firstByteOf(std::string_view text, Predicate predicate) {
  constexpr std::size_t kBlock = 32;
  std::size_t place = 0;
  for (; text.size() - place >= kBlock; place += kBlock) {
    unsigned char found = 0;
    for (std::size_t i = 0; i < kBlock; ++i)
      found |= static_cast<unsigned char>(predicate(text[place + i]));
    if (found != 0) break;
  }
  while (place < text.size() && !predicate(text[place])) ++place;
  return place;
}

template <class Predicate>
bool holdsByteOf(std::string_view text, Predicate predicate) {
  return firstByteOf(text, predicate) < text.size();
}

}  // namespace qor
