// Pictures as drawing records.
#include "platform/workbook/xls_drawings.h"

#include <algorithm>

#include "base/path.h"
#include "platform/workbook/biff_records.h"
#include "platform/workbook/sheet.h"

namespace qor {
namespace {

constexpr std::uint32_t kContainer = 0xF;  // version of records that hold others
constexpr std::uint32_t kClusterShapes = 1024;
// Their numbers have twelve bits.
constexpr std::uint32_t kMostDrawings = 0xFFE;
constexpr std::uint32_t kMostPictures = 0xFFF;
constexpr std::size_t kHead = 8;
constexpr std::uint32_t kPictureFrame = 75;
constexpr std::size_t kShapeSize = kHead + 8;
constexpr std::size_t kPictureShapeSize = 5 * kHead + 8 + 6 + 18;
constexpr int kDefaultColumn = 64;  // pixels

// The head of a drawing record.
void appendHead(std::uint32_t type, std::uint32_t version, std::uint32_t instance, std::size_t size,
                LittleEndian& out) {
  out.u16(version | instance << 4).u16(type).u32(size);
}

void appendShape(std::uint32_t kind, std::uint32_t number, std::uint32_t flags, LittleEndian& out) {
  appendHead(0xF00A, 2, kind, 8, out);
  out.u32(number).u32(flags);
}

// A cell, and how far into it, in parts of its size.
struct Corner {
  std::uint32_t cell = 0;
  std::uint32_t part = 0;
};

// So many pixels behind the start of a cell.
template <class SizeOf>
Corner cornerBehind(std::uint32_t cell, int pixels, std::uint32_t parts, std::uint32_t last,
                    SizeOf sizeOf) {
  while (cell < last && pixels >= sizeOf(cell)) pixels -= sizeOf(cell++);
  const int size = sizeOf(cell);
  return {cell, static_cast<std::uint32_t>(std::min(pixels, size - 1)) * parts /
                    static_cast<std::uint32_t>(size)};
}

int columnPixels(const Sheet& sheet, std::uint32_t column) {
  const auto width = sheet.columnWidths().find(column);
  return width == sheet.columnWidths().end() ? kDefaultColumn : static_cast<int>(width->second) * 7;
}

int rowPixels(const Sheet& sheet, std::uint32_t row) {
  const auto height = sheet.rowHeights().find(row);
  return static_cast<int>(height == sheet.rowHeights().end() ? kUsualRowHeight : height->second) /
         15;
}

void appendAnchor(const Sheet& sheet, const SheetPicture& picture, LittleEndian& out) {
  const Corner right =
      cornerBehind(picture.column, picture.width, 1024, 255,
                   [&sheet](std::uint32_t column) { return columnPixels(sheet, column); });
  const Corner bottom = cornerBehind(picture.row, picture.height, 256, kMostRows - 1,
                                     [&sheet](std::uint32_t row) { return rowPixels(sheet, row); });
  constexpr std::uint32_t kMovesWithCells = 2;
  appendHead(0xF010, 0, 0, 18, out);
  out.u16(kMovesWithCells).u16(picture.column).u16(0).u16(picture.row).u16(0);
  out.u16(right.cell).u16(right.part).u16(bottom.cell).u16(bottom.part);
}

void appendPictureShape(const Sheet& sheet, const SheetPicture& picture, std::uint32_t number,
                        LittleEndian& out) {
  constexpr std::uint32_t kHasAnchorAndKind = 0x0A00;
  constexpr std::uint32_t kPictureOfTheWorkbook = 0x4104;
  appendHead(0xF004, kContainer, 0, kPictureShapeSize - kHead, out);
  appendShape(kPictureFrame, number, kHasAnchorAndKind, out);
  appendHead(0xF00B, 3, 1, 6, out);
  out.u16(kPictureOfTheWorkbook).u32(picture.picture + 1);
  appendAnchor(sheet, picture, out);
  appendHead(0xF011, 0, 0, 0, out);
}

// What makes the shape an object of its sheet.
LittleEndian pictureObject(std::uint32_t number) {
  LittleEndian body;
  body.u16(0x15).u16(0x12).u16(8).u16(number).u16(0x6011).zeros(12);
  body.u16(7).u16(2).u16(0xFFFF);
  body.u16(8).u16(2).u16(1);
  body.u16(0).u16(0);
  return body;
}

// The head of a sheet's drawing: how large all of it is, and the group that its shapes stand in.
LittleEndian drawingHead(std::uint32_t drawing, std::uint32_t firstNumber, std::uint32_t pictures) {
  const std::size_t shapes = kHead + 16 + kShapeSize + kHead + pictures * kPictureShapeSize;
  LittleEndian out;
  appendHead(0xF002, kContainer, 0, kHead + 8 + kHead + shapes, out);
  appendHead(0xF008, 0, drawing, 8, out);
  out.u32(pictures + 1).u32(firstNumber + pictures);
  appendHead(0xF003, kContainer, 0, shapes, out);
  appendHead(0xF004, kContainer, 0, kHead + 16 + kShapeSize, out);
  appendHead(0xF009, 1, 0, 16, out);
  out.zeros(16);
  constexpr std::uint32_t kGroupOfAll = 5;
  appendShape(0, firstNumber, kGroupOfAll, out);
  return out;
}

// What drawings start with, and the colours of menus: every file has them.
std::string groupTail() {
  LittleEndian out;
  appendHead(0xF00B, 3, 3, 18, out);
  out.u16(0x00BF).u32(0x00080008).u16(0x0181).u32(0x08000041).u16(0x01C0).u32(0x08000040);
  appendHead(0xF11E, 0, 4, 16, out);
  out.u32(0x0800000D).u32(0x0800000C).u32(0x08000017).u32(0x100000F7);
  return out.bytes();
}

}  // namespace

std::size_t XlsDrawings::addPicture(const EmbeddedPicture& picture) {
  if (pictures_ == kMostPictures) return kMostPictures;
  const bool png = picture.kind == EmbeddedKind::png;
  const std::uint32_t type = png ? 6 : 5;
  const std::string id = hashText(picture.bytes);
  const std::size_t size = kHead + id.size() + 1 + picture.bytes.size();
  LittleEndian head;
  appendHead(0xF007, 2, type, 36 + size, head);
  head.u8(type).u8(type).text(id).u16(0xFF).u32(size).u32(1).u32(0).u32(0);
  appendHead(png ? 0xF01E : 0xF01D, 0, png ? 0x6E0 : 0x46A, size - kHead, head);
  head.text(id).u8(0xFF);
  files_.write(head.bytes());
  files_.write(picture.bytes);
  return pictures_++;
}

// The first of the numbers of a drawing's shapes.
std::uint32_t XlsDrawings::takeNumbers(std::uint32_t shapes) {
  const auto first = static_cast<std::uint32_t>(clusters_.size() + 1) * kClusterShapes;
  for (std::uint32_t left = shapes; left > 0; left -= std::min(left, kClusterShapes))
    clusters_.push_back({drawings_, std::min(left, kClusterShapes)});
  return first;
}

void XlsDrawings::appendSheet(const Sheet& sheet, std::string& records) {
  std::vector<SheetPicture> pictures = sheet.pictures();
  std::erase_if(pictures, [this](const SheetPicture& picture) {
    return picture.picture == kMostPictures || drawings_ == kMostDrawings;
  });
  left_out_ += static_cast<std::int64_t>(sheet.pictures().size() - pictures.size());
  if (pictures.empty()) return;
  const auto count = static_cast<std::uint32_t>(pictures.size());
  ++drawings_;
  shapes_ += count + 1;
  const std::uint32_t first = takeNumbers(count + 1);
  LittleEndian drawing = drawingHead(drawings_, first, count);
  std::uint32_t number = 0;
  for (const SheetPicture& picture : pictures) {
    ++number;
    appendPictureShape(sheet, picture, first + number, drawing);
    appendRecord(kBiffDrawing, drawing, records);
    appendRecord(kBiffObject, pictureObject(number), records);
    drawing.clear();
  }
}

std::string XlsDrawings::groupHead() const {
  const std::size_t list = 16 + clusters_.size() * 8;
  LittleEndian out;
  appendHead(0xF000, kContainer, 0, static_cast<std::size_t>(groupSize()) - kHead, out);
  appendHead(0xF006, 0, 0, list, out);
  out.u32((clusters_.size() + 1) * kClusterShapes).u32(clusters_.size() + 1);
  out.u32(shapes_).u32(drawings_);
  for (const Cluster& cluster : clusters_) out.u32(cluster.drawing).u32(cluster.shapes);
  appendHead(0xF001, kContainer, pictures_, static_cast<std::size_t>(files_.size()), out);
  return out.bytes();
}

std::uint64_t XlsDrawings::groupSize() const {
  return kHead + kHead + 16 + clusters_.size() * 8 + kHead + files_.size() + groupTail().size();
}

std::uint64_t XlsDrawings::size() const {
  return pictures_ == 0 ? 0 : SplitRecord::wholeSize(groupSize());
}

void XlsDrawings::writeTo(ByteSink& sink) {
  if (pictures_ == 0) return;
  SplitRecord record(sink, kBiffDrawingGroup, groupSize());
  record.write(groupHead());
  files_.copyTo(record);
  record.write(groupTail());
}

}  // namespace qor
