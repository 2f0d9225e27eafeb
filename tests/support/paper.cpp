#include "support/paper.h"

#include <algorithm>
#include <cstdio>

#include "base/units.h"
#include "platform/canvas/bitmap_canvas.h"
#include "platform/pdf/pdf_canvas.h"
#include "platform/system/output_file.h"
#include "platform/system/text_encoding.h"
#include "support/page_picture.h"
#include "support/program.h"
#include "support/rows.h"

namespace qor::test {
namespace {

constexpr double kWidth = 210;
constexpr double kHeight = 297;

Point sheetDots(Point dotsPerInch) {
  return {pixelsFromMillimetres(kWidth, dotsPerInch.x),
          pixelsFromMillimetres(kHeight, dotsPerInch.y)};
}

// The numbers of an attribute.
std::vector<double> numbersOf(const std::string& line, const std::string& key) {
  const auto start = line.find(" " + key + "=\"");
  std::vector<double> numbers;
  if (start == std::string::npos) return numbers;
  const auto first = start + key.size() + 3;
  for (const std::string& word : wordsOf(line.substr(first, line.find('"', first) - first)))
    numbers.push_back(std::stod(word));
  return numbers;
}

char32_t letterOf(const std::string& line) {
  const auto first = line.find("unicode=\"") + 9;
  const std::string text = line.substr(first, line.find('"', first) - first);
  if (text.starts_with("&#x"))
    return static_cast<char32_t>(std::stoul(text.substr(3), nullptr, 16));
  for (const auto& [name, letter] : {std::pair{"&lt;", U'<'},
                                     {"&gt;", U'>'},
                                     {"&amp;", U'&'},
                                     {"&quot;", U'"'},
                                     {"&apos;", U'\''}})
    if (text == name) return letter;
  return codePointsFromUtf8(text).front();
}

}  // namespace

void printOn(const TemporaryDirectory& place, Point dotsPerInch, const DrawOn& draw) {
  OutputFile file(place.path("paper.pdf"));
  PdfPages pages(file, {.title = "T", .language = "", .producer = "P", .created = 0});
  pages.setPageSize(kWidth * kPointsPerInch / kMillimetresPerInch,
                    kHeight * kPointsPerInch / kMillimetresPerInch);
  PdfCanvas canvas(pages, sheetDots(dotsPerInch), dotsPerInch);
  canvas.beginPage();
  draw(canvas);
  canvas.endPage();
  pages.finish();
  file.commit();
}

std::vector<PaperLetter> lettersOf(const TemporaryDirectory& place) {
  std::vector<PaperLetter> letters;
  std::vector<double> page, text;
  for (const std::string& line :
       linesOf(run({"mutool", "trace", place.path("paper.pdf"), "1"}).output)) {
    if (line.find("_text ") != std::string::npos) page = numbersOf(line, "transform");
    if (line.find("<span ") != std::string::npos) text = numbersOf(line, "trm");
    if (line.find("<g ") == std::string::npos) continue;
    const auto onPage = [&page](double x, double y) {
      return std::pair{(page[0] * x + page[2] * y) * 20, (page[1] * x + page[3] * y) * 20};
    };
    const double x = numbersOf(line, "x").at(0);
    const double y = numbersOf(line, "y").at(0);
    const auto [acrossX, acrossY] = onPage(text[0], text[1]);
    const auto [upX, upY] = onPage(text[2], text[3]);
    letters.push_back({letterOf(line), (page[0] * x + page[2] * y + page[4]) * 20,
                       (page[1] * x + page[3] * y + page[5]) * 20, acrossX, acrossY, upX, upY});
  }
  return letters;
}

Picture paperDots(const TemporaryDirectory& place, int dpi) {
  run({"pdftoppm", "-r", std::to_string(dpi), "-png", "-singlefile", place.path("paper.pdf"),
       place.path("paper")});
  return decodePicture(place.read("paper.png")).value();
}

Picture bitmapDots(int dpi, const DrawOn& draw) {
  const Point size = sheetDots({dpi, dpi});
  BitmapCanvas bitmap(size.x, size.y, dpi);
  draw(bitmap.canvas());
  const PixelView seen = bitmap.pixels();
  Picture picture{seen.width, seen.height, {}};
  for (int y = 0; y < seen.height; ++y)
    picture.pixels.insert(picture.pixels.end(), seen.row(y).begin(), seen.row(y).end());
  return picture;
}

int strangers(const Picture& here, const Picture& there, int tolerance) {
  const auto hasLike = [&](int x, int y) {
    for (const int shift : {0, 8, 16}) {
      const auto part = [shift](std::uint32_t dot) {
        return static_cast<int>(dot >> shift & 0xFF);
      };
      int least = 255, most = 0;
      for (int i = 0; i < 9; ++i) {
        const int near = part(dotAt(there, x + i % 3 - 1, y + i / 3 - 1));
        least = std::min(least, near);
        most = std::max(most, near);
      }
      const int dot = part(dotAt(here, x, y));
      if (dot < least - tolerance || dot > most + tolerance) return false;
    }
    return true;
  };
  int count = 0;
  for (int y = 0; y < here.height; ++y) {
    for (int x = 0; x < here.width; ++x) {
      // Most of a page is white in both.
      const bool alike = dotAt(here, x, y) == dotAt(there, x, y);
      count += alike || hasLike(x, y) ? 0 : 1;
    }
  }
  return count;
}

}  // namespace qor::test
