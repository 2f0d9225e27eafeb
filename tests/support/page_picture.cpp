#include "support/page_picture.h"

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

#include "platform/print/pdf_file_printer.h"
#include "support/pdf_reader.h"
#include "support/program.h"
#include "support/rows.h"

namespace qor::test {

Picture pageBy(Road road, const TemporaryDirectory& place, const std::string& report,
               const std::string& codePage, int page) {
  place.write("r.txt", report);
  const std::vector<std::string> ways[] = {
      {"-export", "r.png"}, {"-g", "-p", kPdfFilePrinter}, {"-export", "r.pdf"}};
  const auto& way = ways[static_cast<int>(road)];
  const Outcome outcome = runViewer(joined({"-f", "r.txt", "-codepage", codePage}, way), in(place));
  // A PDF tells what it shows otherwise.
  const bool mayTell = road == Road::document;
  if (!mayTell && !outcome.errors.empty()) throw std::runtime_error(outcome.errors);
  if (road != Road::picture)
    return renderPdf(place.path(road == Road::print ? "r(print).pdf" : "r.pdf"), page);
  // Several pages are numbered.
  const std::string numbered = "r(" + std::to_string(page) + ").png";
  return decodePicture(place.read(place.has(numbered) ? numbered : "r.png")).value();
}

std::string text(const Rect& box) {
  return std::to_string(box.left) + "," + std::to_string(box.top) + " " +
         std::to_string(box.right) + "," + std::to_string(box.bottom);
}

std::string itemTag(const std::string& name, const Rect& place, const std::string& keys) {
  const auto key = [](const char* side, int value) { return side + std::to_string(value); };
  std::string tag = "<" + name + key(" left=", place.left) + key(" top=", place.top);
  if (place.right != 0) tag += key(" right=", place.right) + key(" bottom=", place.bottom);
  return tag + " " + keys + "/>\r\n";
}

std::uint32_t dotAt(const Picture& picture, int x, int y) {
  if (x < 0 || y < 0 || x >= picture.width || y >= picture.height) return 0xFFFFFF;
  const auto row = static_cast<std::size_t>(y) * static_cast<std::size_t>(picture.width);
  return picture.pixels[row + static_cast<std::size_t>(x)] & 0xFFFFFF;
}

bool isInk(const Picture& picture, int x, int y) {
  const std::uint32_t dot = dotAt(picture, x, y);
  return (dot >> 16) + (dot >> 8 & 0xFF) + (dot & 0xFF) < 3 * 128;
}

int apart(std::uint32_t first, std::uint32_t second) {
  int most = 0;
  for (const int shift : {0, 8, 16}) {
    const auto part = [shift](std::uint32_t dot) { return static_cast<int>(dot >> shift & 0xFF); };
    most = std::max(most, std::abs(part(first) - part(second)));
  }
  return most;
}

Rect inkBox(const Picture& picture, const Rect& within) {
  Rect box = {within.right, within.bottom, within.left, within.top};
  for (int y = within.top; y < within.bottom; ++y) {
    for (int x = within.left; x < within.right; ++x) {
      if (dotAt(picture, x, y) == 0xFFFFFF) continue;
      box = {std::min(box.left, x), std::min(box.top, y), std::max(box.right, x + 1),
             std::max(box.bottom, y + 1)};
    }
  }
  return box;
}

double dotOf(double millimetres) {
  return static_cast<int>(millimetres * 1440 / 25.4) / 15.0;
}

}  // namespace qor::test
