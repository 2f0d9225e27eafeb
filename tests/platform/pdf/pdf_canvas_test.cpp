// Paper against the layout, and against bitmaps of the same drawing.
#include "platform/pdf/pdf_canvas.h"

#include <cmath>
#include <numbers>
#include <random>

#include "platform/pictures/picture_store.h"
#include "support/paper.h"
#include "support/test.h"

namespace qor::test {
namespace {

LogFont fontOf(const char* face, std::int32_t height) {
  LogFont font;
  font.Height = height;
  font.setFaceName(face);
  return font;
}

// Every letter of ASCII, and some that come from other faces.
std::u32string allLetters() {
  std::u32string text;
  for (char32_t c = U'~'; c >= U' '; --c) text += c;
  return text + U"żЖ─▒";
}

struct TextRow {
  LogFont font;
  std::int32_t extra = 0;
  double scale = 1;         // of the mapping
  Point printer{600, 600};  // dots per inch
  std::u32string text = allLetters();
  std::size_t piece = 1000;  // letters of a colour
};

std::vector<TextRow> textRows() {
  std::vector<TextRow> rows;
  for (const char* face : {"Arial", "Times New Roman", "Courier New"})
    for (const std::int32_t height : {-60, -200, -480, 300}) rows.push_back({fontOf(face, height)});
  rows.push_back({fontOf("Arial", -160), 30});
  rows.push_back({fontOf("Arial", -160), -7, 0.73});
  rows.push_back({fontOf("Arial", -160), 5, 0.41, {240, 144}});
  for (const std::int32_t turn : {300, 900, 1234, 2700, -450, 3600}) {
    rows.push_back({fontOf("Times New Roman", -110)});
    rows.back().font.Escapement = turn;
    rows.back().font.Width = 87;
    rows.back().extra = turn / 100;
    rows.back().printer = {180, 360};
  }
  rows.push_back({fontOf("Arial", -150)});
  rows.back().font.Width = 31;
  rows.push_back({fontOf("Arial", 3000)});
  rows.back().font.Width = 1;
  // What a piece lacks must not add up.
  rows.push_back({fontOf("DejaVu Sans", -160), 0, 1, {600, 600}, std::u32string(60, U'0'), 5});
  return rows;
}

TEST(PdfCanvas, putsEveryLetterWhereLayoutHasIt) {
  for (const TextRow& row : textRows()) {
    SCOPED_TRACE(std::string(row.font.faceName()) + std::to_string(row.font.Height) + " turned " +
                 std::to_string(row.font.Escapement));
    const TemporaryDirectory place;
    const double angle = row.font.Escapement * std::numbers::pi / 1800;
    std::vector<PaperLetter> wanted;
    printOn(place, row.printer, [&](Canvas& canvas) {
      const Mapping mapping = {row.printer.x * row.scale, row.printer.y * row.scale, 11, 23};
      canvas.setMapping(mapping);
      canvas.setFont(row.font);
      canvas.setCharacterExtra(row.extra);
      canvas.moveTo({5000, 7000});
      for (std::size_t i = 0; i < row.text.size(); i += row.piece) {
        canvas.setTextColor(i / row.piece % 2 == 0 ? kBlack : Color{0x0000FF});
        canvas.textOut(std::u32string_view(row.text).substr(i, row.piece));
      }
      const auto font = scaledFont(row.font);
      const double ascent = canvas.textMetrics().ascent;
      const double em = font->emSize() * row.scale;
      const double wide = em * font->widthScale();
      for (std::size_t i = 0; i < row.text.size(); ++i) {
        const double along = canvas.textLength(std::u32string_view(row.text).substr(0, i));
        const double x = 5000 + along * std::cos(angle) + ascent * std::sin(angle);
        const double y = 7000 - along * std::sin(angle) + ascent * std::cos(angle);
        wanted.push_back({row.text[i], x * row.scale + 11 * 1440.0 / row.printer.x,
                          y * row.scale + 23 * 1440.0 / row.printer.y, wide * std::cos(angle),
                          -wide * std::sin(angle), -em * std::sin(angle), -em * std::cos(angle)});
      }
    });
    const auto found = lettersOf(place);
    ASSERT_EQ(found.size(), wanted.size());
    for (std::size_t i = 0; i < found.size(); ++i) {
      EXPECT_EQ(found[i].letter, wanted[i].letter) << i;
      EXPECT_LT(std::hypot(found[i].x - wanted[i].x, found[i].y - wanted[i].y), 2) << i;
      const double across =
          std::hypot(found[i].acrossX - wanted[i].acrossX, found[i].acrossY - wanted[i].acrossY);
      const double up = std::hypot(found[i].upX - wanted[i].upX, found[i].upY - wanted[i].upY);
      EXPECT_LT(across, 0.3) << i;
      EXPECT_LT(up, 0.3) << i;
    }
  }
}

// Shapes of every kind at random places, some of them beyond the sheet.
class Scene {
 public:
  // Pens are so many times as wide as `unit`, in twips.
  Scene(unsigned seed, int unit, std::shared_ptr<const StoredPicture> picture)
      : seed_(seed), unit_(unit), picture_(std::move(picture)) {}

  void operator()(Canvas& canvas) const {
    std::mt19937 chance(seed_);
    const auto upTo = [&chance](int limit) { return static_cast<std::int32_t>(chance() % limit); };
    const auto color = [&] { return static_cast<Color>(upTo(0x1000000)); };
    for (int i = 0; i < 30; ++i) {
      const int wide = i % 9 == 0 ? 0 : 150 + upTo(4000);
      const int high = i % 8 == 0 ? 0 : 150 + upTo(4000);
      Rect rect = {upTo(10000) - 500, upTo(15000) - 500, 0, 0};
      rect.right = rect.left + wide;
      rect.bottom = rect.top + high;
      canvas.setPen(
          {static_cast<PenStyle>(upTo(6)), (upTo(3) == 0 ? 1 + upTo(9) : 1) * unit_, color()});
      canvas.setBrush({static_cast<BrushStyle>(upTo(8)), color()});
      switch (upTo(6)) {
        case 0: canvas.line({rect.left, rect.top}, {rect.right, rect.bottom}); break;
        case 1: canvas.line({rect.right, rect.top}, {rect.left, rect.bottom}); break;
        case 2: canvas.roundRect(rect, upTo(3000), upTo(3000)); break;
        case 3: canvas.ellipse(rect); break;
        case 4: canvas.drawPicture(*picture_, rect); break;
        default: canvas.rectangle(rect);
      }
    }
  }

 private:
  unsigned seed_;
  int unit_;
  std::shared_ptr<const StoredPicture> picture_;
};

TEST(PdfCanvas, showsShapesAsBitmapsDo) {
  const TemporaryDirectory place;
  run({"convert-im6.q16", "-size", "400x400", "xc:none", "-fill", "#FF000080", "-draw",
       "rectangle 0,0 199,399", "-fill", "#0000FF", "-draw", "rectangle 200,200 399,399",
       place.path("p.png")});
  const auto picture = storedPicture(place.path("p.png"));
  for (unsigned seed = 1; seed <= 8; ++seed) {
    SCOPED_TRACE(seed);
    // Whole dots: bitmaps have no other pens.
    const auto [dpi, unit] = seed % 2 == 0 ? std::pair(96, 15) : std::pair(300, 24);
    const Scene scene(seed, unit, picture);
    printOn(place, {600, 600}, scene);
    const Picture paper = paperDots(place, dpi);
    const Picture bitmap = bitmapDots(dpi, scene);
    // Dashes meet otherwise in corners.
    EXPECT_LT(strangers(paper, bitmap, 64), 5 * dpi);
    EXPECT_LT(strangers(bitmap, paper, 64), 5 * dpi);
  }
}

// Where letters are shapes, also once they were turned, and where texts turn back on themselves: a
// letter behind one that no font has, and frames of which only those are seen that go on to the
// right.
TEST(PdfCanvas, showsOddTextsAsBitmapsDo) {
  const std::tuple<std::u32string, std::u32string, int> rows[] = {
      {U"\xFDD0", U"B", 0},
      {U"iiiiiiiiiiiiiiiiiiii██iiiiiiiiiiiiiiiiiiii", U"", -120},
      {U"A██", U"", -500}};
  for (const auto& [first, second, extra] : rows) {
    const TemporaryDirectory place;
    const auto draw = [&](Canvas& canvas) {
      LogFont font = fontOf("Arial", -400);
      font.Underline = extra != 0;
      canvas.setFont(font);
      canvas.setCharacterExtra(extra);
      for (const auto& text : {first, second}) {
        canvas.moveTo({5000, 7000});
        canvas.textOut(text);
      }
      font.Escapement = 300;
      canvas.setFont(font);
      canvas.textOut(U"\xFDD0");
    };
    const Picture bitmap = bitmapDots(96, draw);
    printOn(place, {600, 600}, draw);
    const Picture paper = paperDots(place, 96);
    EXPECT_LT(strangers(paper, bitmap, 200), 5) << extra;
    EXPECT_LT(strangers(bitmap, paper, 200), 5) << extra;
  }
}

// What a reader makes of the drawing's operators, without the corner of the page.
std::string traceOf(const TemporaryDirectory& place, const DrawOn& draw) {
  printOn(place, {600, 600}, draw);
  std::string trace;
  for (const std::string& line :
       linesOf(run({"mutool", "trace", place.path("paper.pdf"), "1"}).output)) {
    for (const std::string key : {" color=\"", " linewidth=\"", " linecap=\"", " dash=\""}) {
      const auto at = line.find(key);
      if (at == std::string::npos) continue;
      trace += line.substr(at, line.find('"', at + key.size()) - at + 1);
    }
  }
  return trace;
}

TEST(PdfCanvas, usesPensAndBrushesAsTheyAreToldEachTime) {
  const TemporaryDirectory place;
  const auto traced = [&](Pen pen, Brush brush, Point end) {
    return traceOf(place, [=](Canvas& canvas) {
      canvas.setPen({PenStyle::dot, 60, 0x0000FF});
      canvas.line({100, 100}, {100, 900});
      canvas.setPen(pen);
      canvas.setBrush(brush);
      if (brush.style == BrushStyle::none)
        canvas.line({100, 100}, end);
      else
        canvas.rectangle({100, 100, end.x, end.y});
    });
  };
  const std::string before = R"( color="1 0 0" linewidth="60" linecap="0,0,0" dash="60 60")";
  // A unit of dashes is three dots of a screen, 45 twips, or the width.
  const std::tuple<Pen, Brush, Point, std::string> rows[] = {
      {{PenStyle::solid, 15, 0x008000},
       {BrushStyle::none, 0},
       {900, 100},
       R"( color="0 .502 0" linewidth="15" linecap="0,0,0")"},
      {{PenStyle::solid, 0, 0x008000},
       {BrushStyle::none, 0},
       {900, 900},
       R"( color="0 .502 0" linewidth="2.4" linecap="1,1,1")"},
      {{PenStyle::dash, 15, 0xFF0000},
       {BrushStyle::none, 0},
       {100, 900},
       R"( color="0 0 1" linewidth="15" linecap="0,0,0" dash="270 90")"},
      {{PenStyle::dashDot, 100, 0},
       {BrushStyle::none, 0},
       {100, 900},
       R"( color="0 0 0" linewidth="100" linecap="0,0,0" dash="300 200 100 200")"},
      {{PenStyle::dashDotDot, 44, 0},
       {BrushStyle::none, 0},
       {100, 900},
       R"( color="0 0 0" linewidth="44" linecap="0,0,0" dash="135 45 45 45 45 45")"},
      {{PenStyle::none, 15, 0}, {BrushStyle::none, 0}, {900, 100}, ""},
      {{PenStyle::none, 15, 0}, {BrushStyle::solid, 0x00FF00}, {900, 900}, R"( color="0 1 0")"},
      {{PenStyle::none, 15, 0}, {BrushStyle::solid, 0x00FF00}, {900, 100}, ""},
      {{PenStyle::solid, 15, 0},
       {BrushStyle::solid, 0xFF00FF},
       {900, 900},
       R"( color="1 0 1" color="0 0 0" linewidth="15" linecap="0,0,0")"}};
  for (const auto& [pen, brush, end, expected] : rows)
    EXPECT_EQ(traced(pen, brush, end), before + expected);
}

// Of a hatch the document holds one tile, whatever its colours.
TEST(PdfCanvas, embedsHatchesOnce) {
  const TemporaryDirectory place;
  printOn(place, {600, 600}, [](Canvas& canvas) {
    for (int i = 0; i < 20; ++i) {
      canvas.setBrush(
          {i % 2 == 0 ? BrushStyle::cross : BrushStyle::vertical, static_cast<Color>(i * 10)});
      canvas.rectangle({i * 100, 0, i * 100 + 90, 500});
    }
  });
  const std::string file = unpackedPdf(place.path("paper.pdf"));
  EXPECT_EQ(countOf("/PatternType 1", file), 2U);
  EXPECT_EQ(countOf("/P0 scn", file), 10U);
  EXPECT_EQ(countOf("/P1 scn", file), 10U);
}

}  // namespace
}  // namespace qor::test
