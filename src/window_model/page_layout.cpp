// Pages in rows and columns.
#include "window_model/page_layout.h"

#include <algorithm>

namespace qor {
namespace {

// Places along one direction: how many, and the room between them.
struct Row {
  std::int32_t count = 1;
  std::int32_t gap = 0;
};

Row rowOf(std::int32_t cell, std::int32_t client) {
  if (std::int64_t{2} * cell >= client) return {};
  const std::int32_t count = client / cell;
  return {count, client % cell / (count + 1)};
}

// Where the places start: what they and their gaps leave stands at both ends. A single one that is
// larger than the area starts with it.
std::int32_t startOf(std::int32_t cell, const Row& row, std::int32_t client) {
  return std::max(0, (client - (cell + row.gap) * row.count) / 2);
}

// Rows and columns that no page is left for go.
void cutTo(std::int32_t pages, Row& columns, Row& rows) {
  if (columns.count * rows.count <= pages) return;
  if (pages < columns.count) {
    rows.count = 1;
    columns.count = pages;
  } else {
    rows.count = (pages + columns.count - 1) / columns.count;
  }
}

// What stands between a number and its sheet, pixels: room for the frame of a page that is marked,
// and no more than keeps them together.
constexpr std::int32_t kLeastDistance = 2;
constexpr std::int32_t kLargestDistance = 8;

// From a sheet's end to the next place in one direction, or to the end of the board.
std::int32_t roomBehind(const std::vector<PagePlace>& places, std::int32_t Point::*along,
                        std::int32_t start, std::int32_t sheet, std::int32_t board) {
  std::int32_t next = board;
  for (const PagePlace& place : places) {
    if (place.corner.*along > start) next = std::min(next, place.corner.*along);
  }
  return next - start - sheet;
}

std::int32_t distanceIn(std::int32_t room, std::int32_t label) {
  return std::min(kLargestDistance, (room - label) / 2);
}

}  // namespace

std::optional<std::vector<PagePlace>> layOutPages(const Extent& cell, const Extent& client,
                                                  std::int32_t first, std::int32_t total) {
  if (first < 1 || total < first) return std::nullopt;
  if (cell.Width < 1 || cell.Height < 1) return std::vector<PagePlace>();
  Row columns = rowOf(cell.Width, client.Width);
  Row rows = rowOf(cell.Height, client.Height);
  if (columns.count == 1 && rows.count == 1) return std::vector<PagePlace>();
  const std::int32_t left = total - first + 1;
  cutTo(left, columns, rows);
  const std::int32_t startX = startOf(cell.Width, columns, client.Width);
  const std::int32_t startY = startOf(cell.Height, rows, client.Height);
  std::vector<PagePlace> places;
  for (std::int32_t i = 0; i < std::min(left, columns.count * rows.count); ++i) {
    places.push_back({first + i,
                      {startX + i % columns.count * (cell.Width + columns.gap),
                       startY + i / columns.count * (cell.Height + rows.gap)}});
  }
  return places;
}

Point numberCorner(const std::vector<PagePlace>& places, std::size_t index, const Extent& sheet,
                   const Extent& board, const Extent& label) {
  const Point& corner = places[index].corner;
  const Point end = {corner.x + sheet.Width, corner.y + sheet.Height};
  const std::int32_t below =
      distanceIn(roomBehind(places, &Point::y, corner.y, sheet.Height, board.Height), label.Height);
  if (below >= kLeastDistance) return {corner.x + (sheet.Width - label.Width) / 2, end.y + below};
  const std::int32_t beside =
      distanceIn(roomBehind(places, &Point::x, corner.x, sheet.Width, board.Width), label.Width);
  if (beside >= kLeastDistance) return {end.x + beside, end.y - label.Height};
  return {end.x - label.Width - kLeastDistance, end.y - label.Height - kLeastDistance};
}

}  // namespace qor
