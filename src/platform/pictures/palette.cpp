// Choosing palettes; the uncommon colours by giflib.
#include "platform/pictures/palette.h"

#include <algorithm>
#include <unordered_map>

#include <gif_lib.h>

#include "base/errors.h"

namespace qor {
namespace {

constexpr std::size_t kMaxColors = 256;
constexpr std::size_t kExactColors = 96;

using Counts = std::unordered_map<std::uint32_t, std::size_t>;
using Places = std::unordered_map<std::uint32_t, std::uint8_t>;

// Neighbours are mostly of one colour: each run of them is one step.
template <class Visit>
void forEachRun(const PixelView& pixels, Visit visit) {
  for (int y = 0; y < pixels.height; ++y) {
    const auto row = pixels.row(y);
    for (auto start = row.begin(); start != row.end();) {
      const std::uint32_t color = *start & 0xFFFFFF;
      const auto end = std::find_if(
          start, row.end(), [color](std::uint32_t pixel) { return (pixel & 0xFFFFFF) != color; });
      visit(color, static_cast<std::size_t>(end - start));
      start = end;
    }
  }
}

// The commonest colours, the first of them the most common.
std::vector<std::uint32_t> commonest(const Counts& counts, std::size_t limit) {
  std::vector<std::uint32_t> colors;
  for (const auto& entry : counts) colors.push_back(entry.first);
  std::sort(colors.begin(), colors.end(), [&counts](std::uint32_t a, std::uint32_t b) {
    const std::size_t ofA = counts.at(a);
    const std::size_t ofB = counts.at(b);
    return ofA != ofB ? ofA > ofB : a < b;
  });
  colors.resize(std::min(colors.size(), limit));
  return colors;
}

// Adds entries for the colours that have none yet, and their places.
void addNearest(const std::vector<std::uint32_t>& colors, std::vector<std::uint32_t>& palette,
                Places& places) {
  std::vector<GifByteType> red;
  std::vector<GifByteType> green;
  std::vector<GifByteType> blue;
  for (const std::uint32_t color : colors) {
    red.push_back(static_cast<GifByteType>(color >> 16));
    green.push_back(static_cast<GifByteType>(color >> 8 & 0xFF));
    blue.push_back(static_cast<GifByteType>(color & 0xFF));
  }
  int count = static_cast<int>(kMaxColors - palette.size());
  std::vector<GifByteType> indices(colors.size());
  std::vector<GifColorType> chosen(kMaxColors);
  if (GifQuantizeBuffer(static_cast<unsigned>(colors.size()), 1, &count, red.data(), green.data(),
                        blue.data(), indices.data(), chosen.data()) == GIF_ERROR) {
    throw PictureError("the picture can't be reduced to 256 colours");
  }
  for (std::size_t i = 0; i < colors.size(); ++i) {
    places[colors[i]] = static_cast<std::uint8_t>(palette.size() + indices[i]);
  }
  for (int i = 0; i < count; ++i) {
    const GifColorType& color = chosen[static_cast<std::size_t>(i)];
    palette.push_back(static_cast<std::uint32_t>(color.Red << 16 | color.Green << 8 | color.Blue));
  }
}

}  // namespace

IndexedPicture indexed(const PixelView& pixels) {
  Counts counts;
  forEachRun(pixels, [&counts](std::uint32_t color, std::size_t run) { counts[color] += run; });
  const bool exact = counts.size() <= kMaxColors;
  IndexedPicture picture;
  picture.palette = commonest(counts, exact ? kMaxColors : kExactColors);
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
  forEachRun(pixels, [&](std::uint32_t color, std::size_t run) {
    picture.indices.insert(picture.indices.end(), run, places.at(color));
  });
  return picture;
}

}  // namespace qor
