// Maps of texts.
#include "render/text_map.h"

#include <algorithm>
#include <limits>

#include "document/item_texts.h"
#include "document/side_picture.h"
#include "document/vdata.h"
#include "document/vdocpage.h"
#include "render/line_layout.h"
#include "render/page_walk.h"
#include "render/silent_canvas.h"

namespace qor {
namespace {

constexpr double kFar = std::numeric_limits<double>::max();

// Takes down where lines start.
class LineStarts : public SilentCanvas {
 public:
  void beginLine() override { corners.push_back(currentPosition()); }

  std::vector<Point> corners;
};

TextBand bandOf(const TextLine& line) {
  TextBand all = {kFar, -kFar};
  for (const TextStretch& stretch : line.stretches) {
    const TextBand band = stretch.band();
    all = {std::min(all.top, band.top), std::max(all.bottom, band.bottom)};
  }
  return all;
}

double distance(const TextBand& band, double y) {
  return std::max({0.0, band.top - y, y - band.bottom});
}

}  // namespace

TextMap::TextMap(VDocPage& page, const DocumentLetters& letters) : letters_(letters) {
  const UntoldSidePictures looksOnly;
  LineStarts walk;
  DrawPage(page, walk);
  auto corner = walk.corners.begin();
  for (VDocStr& line : page.lines()) {
    const Point at = *corner++;
    starts_.push_back({&line, at});
    bands_.push_back({double(at.y), double(at.y) + line.Height});
  }
  addRows(page);
}

void TextMap::addRows(const VDocPage& page) {
  ItemTexts texts(letters_);
  for (const VDocStr& line : page.lines()) {
    line.tell(texts);
    addOffset(texts.line.size());
    texts.line.clear();
  }
  for (const std::span<PlacedText> row : orderInRows(texts.placed)) {
    std::vector<VData*>& items = rows_.emplace_back();
    for (const PlacedText& text : row) items.push_back(text.item);
    const TextLine line = layOutRow(items, letters_);
    bands_.push_back(bandOf(line));
    addOffset(line.text.size());
  }
}

void TextMap::addOffset(std::size_t length) {
  offsets_.push_back(offsets_.back() + length + 1);
}

TextPlace TextMap::placeOf(std::size_t offset) const {
  if (lineCount() == 0) return {};
  const std::size_t held = std::min(offset, offsets_.back() - 1);
  const auto behind = std::upper_bound(offsets_.begin(), offsets_.end(), held);
  const auto line = static_cast<std::size_t>(behind - offsets_.begin()) - 1;
  return {line, held - offsets_[line]};
}

std::u32string TextMap::text(std::size_t line) const {
  if (line >= starts_.size()) return this->line(line).text;
  ItemTexts texts(letters_);
  starts_[line].line->tell(texts);
  return std::move(texts.line);
}

TextLine TextMap::line(std::size_t line) const {
  if (line >= starts_.size()) return layOutRow(rows_[line - starts_.size()], letters_);
  return layOutLine(*starts_[line].line, starts_[line].corner, letters_);
}

std::vector<std::size_t> TextMap::linesAt(double y) const {
  std::vector<std::size_t> lines;
  double nearest = kFar;
  for (std::size_t i = 0; i < bands_.size(); ++i) {
    const double away = distance(bands_[i], y);
    if (away > nearest) continue;
    if (away < nearest) lines.clear();
    nearest = away;
    lines.push_back(i);
  }
  return lines;
}

TextPlace TextMap::placeNear(const Spot& spot) const {
  const std::vector<std::size_t> lines = linesAt(spot.y);
  TextPlace place;
  if (!lines.empty()) place.line = lines.front();
  TextDistance nearest = {kFar, 0};
  for (const std::size_t i : lines) {
    const TextLine candidate = line(i);
    for (const TextStretch& stretch : candidate.stretches) {
      const TextDistance from = stretch.from(spot);
      const TextDistance outside = stretch.outside(from);
      if (!(outside < nearest)) continue;
      nearest = outside;
      place = {i, stretch.gapAt(from.along)};
    }
  }
  return place;
}

}  // namespace qor
