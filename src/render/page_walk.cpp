// The walk over a page: it places lines, items draw themselves.
#include "render/page_walk.h"

#include <algorithm>

#include "base/errors.h"
#include "base/units.h"
#include "document/vdocpage.h"
#include "document/vset.h"
#include "platform/canvas/canvas.h"
#include "platform/system/messages.h"

namespace qor {
namespace {

// A line that prints over the one before it starts this much further right, which looks bold.
constexpr std::int32_t kOverprintShift = 10;

struct Grid {
  std::int32_t rowHeight = 0;
  std::int32_t charWidth = 0;
};

Grid gridOf(const VDocPage& page, Canvas& canvas) {
  Grid grid;
  LineCellMetrics(page, canvas, grid.rowHeight, grid.charWidth);
  return grid;
}

// Margins of 0 or more are millimetres, negative ones count cells.
std::int32_t marginTwips(std::int32_t margin, std::int32_t cell) {
  return margin >= 0 ? twipsFromMillimetres(margin) : clamped(-std::int64_t{margin} * cell);
}

Point startOf(const VDocPage& page, Canvas& canvas) {
  const Grid grid = gridOf(page, canvas);
  const VSetPage& options = page.Settings->Page;
  return {marginTwips(options.MarginLeft, grid.charWidth),
          marginTwips(options.MarginTop, grid.rowHeight)};
}

// The row of a line behind a form feed: the middle of the printable area, less the top margin.
std::int32_t middleRow(const VSetPrn& device, std::int32_t topMargin) {
  if (device.LogPixelsY == 0) return 0;
  return clamped(std::int64_t{twipsFromDots(device.VertRes, device.LogPixelsY)} / 2 - topMargin);
}

// What an item can't make of its value costs the item and nothing else.
template <class DrawItem>
void tryToDraw(const VDocPage& page, VData& item, DrawItem drawItem) {
  try {
    drawItem(item);
  } catch (const ConversionError& error) {
    showWarning(placeInReport(page.Number) + error.what());
  }
}

// Walks the lines; `drawItem` draws each item. Returns the height of the last line.
template <class DrawItem>
std::int32_t walkLines(VDocPage& page, Canvas& canvas, DrawItem drawItem) {
  const Point start = startOf(page, canvas);
  canvas.moveTo(start);
  std::int32_t previousHeight = 0;
  for (VDocStr& line : page.lines()) {
    Point at = {
        clamped(std::int64_t{line.Overprint} * kOverprintShift + start.x),
        clamped(std::int64_t{previousHeight} * line.LineFeeds + canvas.currentPosition().y)};
    if (line.AfterFormFeed) at.y = middleRow(page.Settings->Prn, start.y);
    canvas.moveTo(at);
    canvas.beginLine();
    line.Height = 0;
    for (VData& item : line.items()) {
      tryToDraw(page, item, drawItem);
      line.Height = std::max(line.Height, item.heightOnLine());
    }
    if (line.RowHeight > 0) line.Height = line.RowHeight;
    previousHeight = line.Height;
  }
  return previousHeight;
}

}  // namespace

void LineCellMetrics(const VDocPage& page, Canvas& canvas, std::int32_t& row_height,
                     std::int32_t& char_width) {
  const FontState& font = page.Font ? *page.Font : page.Settings->Font;
  LogFont record = font.LogFont;
  // Positive: the height of the cell, where texts give the height of the character.
  record.Height = twipsFromPoints(font.Height);
  if (font.Width != 0) record.Width = twipsFromPoints(font.Width);
  canvas.setFont(record);
  const TextMetrics& metrics = canvas.textMetrics();
  row_height = metrics.height + metrics.externalLeading;
  char_width = metrics.averageWidth;
  // Millimetres between lines count as units of rows here, as they always have.
  const double rowUnits = font.RowHeight != 0 ? font.RowHeight : font.LineSpacing;
  if (rowUnits != 0) row_height = twipsFromRowUnits(rowUnits);
}

void DrawPage(VDocPage& page, Canvas& canvas) {
  walkLines(page, canvas, [&canvas](VData& item) { item.DrawOnPage(canvas); });
}

void MeasurePage(VDocPage& page, Canvas& canvas, std::int32_t& width, std::int32_t& height) {
  const Point dotsPerInch = canvas.dotsPerInch();
  const std::int32_t twipsPerDotX = std::max(1, wholeTwipsPerDot(std::max(1, dotsPerInch.x)));
  const std::int32_t twipsPerDotY = std::max(1, wholeTwipsPerDot(std::max(1, dotsPerInch.y)));
  Point extent;
  const auto include = [&extent](Point position) {
    extent = {std::max(extent.x, position.x), std::max(extent.y, position.y)};
  };
  const std::int32_t lastHeight = walkLines(page, canvas, [&](VData& item) {
    include(canvas.currentPosition());
    item.Draw(canvas);
    include(canvas.currentPosition());
  });
  width = extent.x / twipsPerDotX;
  height = clamped(std::int64_t{extent.y} + lastHeight) / twipsPerDotY;
}

}  // namespace qor
