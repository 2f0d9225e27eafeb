// Choosing palettes; the uncommon colours by giflib.
#include "platform/palette.h"

#include <algorithm>
#include <unordered_map>

#include <gif_lib.h>

#include "base/errors.h"

namespace qor {
namespace {

constexpr std::size_t kMaxColours = 256;
constexpr std::size_t kExactColours = 96;

using Counts = std::unordered_map<std::uint32_t, std::size_t>;
using Places = std::unordered_map<std::uint32_t, std::uint8_t>;

// Neighbours are mostly of one colour: each run of them is one step.
template <class Visit>
void forEachRun(const PixelView& pixels, Visit visit) {
  for (int y = 0; y < pixels.height; ++y) {
    const auto row = pixels.row(y);
    for (auto start = row.begin(); start != row.end();) {
      const std::uint32_t colour = *start & 0xFFFFFF;
      const auto end = std::find_if(
          start, row.end(), [colour](std::uint32_t pixel) { return (pixel & 0xFFFFFF) != colour; });
      visit(colour, static_cast<std::size_t>(end - start));
      start = end;
    }
  }
}

// The commonest colours, the first of them the most common.
std::vector<std::uint32_t> commonest(const Counts& counts, std::size_t limit) {
  std::vector<std::uint32_t> colours;
  for (const auto& entry : counts) colours.push_back(entry.first);
  std::sort(colours.begin(), colours.end(), [&counts](std::uint32_t a, std::uint32_t b) {
    const std::size_t ofA = counts.at(a);
    const std::size_t ofB = counts.at(b);
    return ofA != ofB ? ofA > ofB : a < b;
  });
  colours.resize(std::min(colours.size(), limit));
  return colours;
}

// Adds entries for the colours that have none yet, and their places.
void addNearest(const std::vector<std::uint32_t>& colours, std::vector<std::uint32_t>& palette,
                Places& places) {
  std::vector<GifByteType> red;
  std::vector<GifByteType> green;
  std::vector<GifByteType> blue;
  for (const std::uint32_t colour : colours) {
    red.push_back(static_cast<GifByteType>(colour >> 16));
    green.push_back(static_cast<GifByteType>(colour >> 8 & 0xFF));
    blue.push_back(static_cast<GifByteType>(colour & 0xFF));
  }
  int count = static_cast<int>(kMaxColours - palette.size());
  std::vector<GifByteType> indices(colours.size());
  std::vector<GifColorType> chosen(kMaxColours);
  if (GifQuantizeBuffer(static_cast<unsigned>(colours.size()), 1, &count, red.data(), green.data(),
                        blue.data(), indices.data(), chosen.data()) == GIF_ERROR) {
    throw FileError("the picture can't be reduced to 256 colours");
  }
  for (std::size_t i = 0; i < colours.size(); ++i) {
    places[colours[i]] = static_cast<std::uint8_t>(palette.size() + indices[i]);
  }
  for (int i = 0; i < count; ++i) {
    const GifColorType& colour = chosen[static_cast<std::size_t>(i)];
    palette.push_back(
        static_cast<std::uint32_t>(colour.Red << 16 | colour.Green << 8 | colour.Blue));
  }
}

}  // namespace

IndexedPicture indexed(const PixelView& pixels) {
  Counts counts;
  forEachRun(pixels, [&counts](std::uint32_t colour, std::size_t run) { counts[colour] += run; });
  const bool exact = counts.size() <= kMaxColours;
  IndexedPicture picture;
  picture.palette = commonest(counts, exact ? kMaxColours : kExactColours);
  Places places;
  for (std::size_t i = 0; i < picture.palette.size(); ++i) {
    places[picture.palette[i]] = static_cast<std::uint8_t>(i);
  }
  if (!exact) {
    std::vector<std::uint32_t> others;
    for (const auto& entry : counts) {
      if (!places.contains(entry.first)) others.push_back(entry.first);
    }
    std::sort(others.begin(), others.end());
    addNearest(others, picture.palette, places);
  }
  picture.indices.reserve(static_cast<std::size_t>(pixels.width) *
                          static_cast<std::size_t>(pixels.height));
  forEachRun(pixels, [&](std::uint32_t colour, std::size_t run) {
    picture.indices.insert(picture.indices.end(), run, places.at(colour));
  });
  return picture;
}

}  // namespace qor
