// Metrics and advances of outlines. The expected values follow from the fonts' own tables.
#include "platform/fonts.h"

#include <array>

#include <gtest/gtest.h>

namespace qor::test {
namespace {

LogFont record(const char* face, int height, int width = 0, int weight = 400) {
  LogFont font;
  font.setFaceName(face);
  font.Height = height;
  font.Width = width;
  font.Weight = weight;
  return font;
}

// Courier New's stand-in: 2048 units, ascent 1705, descent 615, gap 0, width 1229.
// Arial's: 2048 units, ascent 1854, descent 434, gap 67, width 1187.
TEST(Fonts, MeasureAsTheWindowsTextMapperDoes) {
  struct Row {
    LogFont font;
    double em;
    std::array<std::int32_t, 5> metrics;  // ascent, descent, height, external leading, width
  };
  for (const auto& [font, em, metrics] :
       {Row{record("Courier New", -200), 200, {167, 60, 227, 0, 120}},
        Row{record("Courier New", 200), 200 * 2048.0 / 2320, {147, 53, 200, 0, 106}},
        Row{record("Courier New", 0), 240, {200, 72, 272, 0, 144}},
        Row{record("Courier New", -200, 72), 200, {167, 60, 227, 0, 72}},
        Row{record("Courier New", -200, -72), 200, {167, 60, 227, 0, 72}},
        Row{record("Arial", -2048), 2048, {1854, 434, 2288, 67, 1187}}}) {
    const auto scaled = scaledFont(font);
    const TextMetrics& found = scaled->metrics();
    EXPECT_DOUBLE_EQ(scaled->emSize(), em);
    EXPECT_EQ((std::array{found.ascent, found.descent, found.height, found.externalLeading,
                          found.averageWidth}),
              metrics);
  }
}

TEST(Fonts, CharactersWithoutAPlaceInTheFaceStillCount) {
  const auto font = scaledFont(record("Courier New", -200));
  // The character 0 stands for letters of code pages without a table: a blank as wide as any.
  EXPECT_EQ(font->glyph(0).index, font->glyph(U' ').index);
  EXPECT_DOUBLE_EQ(font->glyph(U'a').advance, 200 * 1229 / 2048.0);
  EXPECT_DOUBLE_EQ(font->glyph(0).advance, font->glyph(U'a').advance);
  // A fallback face has what the face lacks.
  const Glyph star = font->glyph(U'\u2730');
  EXPECT_NE(star.face, font->glyph(U'a').face);
  EXPECT_NE(star.index, 0U);
}

TEST(Fonts, UnknownFacesAndSizesFindAStandIn) {
  for (const char* face : {"No Such Face", "", "MS Sans Serif", "Terminal"}) {
    EXPECT_GT(scaledFont(record(face, -200))->glyph(U'a').advance, 0) << face;
  }
  for (const int height : {2147483647, -2147483647 - 1}) {
    EXPECT_GT(scaledFont(record("Arial", height))->metrics().height, 0);
  }
}

}  // namespace
}  // namespace qor::test
