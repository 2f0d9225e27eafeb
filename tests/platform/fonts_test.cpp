// Metrics and advances of outlines. The expected values follow from the fonts' own tables.
#include "platform/fonts.h"

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

TEST(Fonts, MeasureAsTheWindowsTextMapperDoes) {
  struct Row {
    const char* name;
    LogFont font;
    double em;
    TextMetrics metrics;  // ascent, descent, height, external leading, average width
  };
  // Courier New's stand-in: 2048 units, ascent 1705, descent 615, gap 0, width 1229.
  // Arial's: 2048 units, ascent 1854, descent 434, gap 67, width 1187.
  const Row rows[] = {
      {"character of 10 points", record("Courier New", -200), 200, {167, 60, 227, 0, 120}},
      {"cell of 200", record("Courier New", 200), 200 * 2048.0 / 2320, {147, 53, 200, 0, 106}},
      {"height 0", record("Courier New", 0), 240, {200, 72, 272, 0, 144}},
      {"own width", record("Courier New", -200, 72), 200, {167, 60, 227, 0, 72}},
      {"own width, negative", record("Courier New", -200, -72), 200, {167, 60, 227, 0, 72}},
      {"gap", record("Arial", -2048), 2048, {1854, 434, 2288, 67, 1187}},
  };
  for (const Row& row : rows) {
    const auto font = scaledFont(row.font);
    EXPECT_DOUBLE_EQ(font->emSize(), row.em) << row.name;
    EXPECT_EQ(font->metrics().ascent, row.metrics.ascent) << row.name;
    EXPECT_EQ(font->metrics().descent, row.metrics.descent) << row.name;
    EXPECT_EQ(font->metrics().height, row.metrics.height) << row.name;
    EXPECT_EQ(font->metrics().externalLeading, row.metrics.externalLeading) << row.name;
    EXPECT_EQ(font->metrics().averageWidth, row.metrics.averageWidth) << row.name;
  }
}

TEST(Fonts, AdvancesAreThoseOfTheOutline) {
  EXPECT_DOUBLE_EQ(scaledFont(record("Courier New", -200))->glyph(U'i').advance,
                   200 * 1229 / 2048.0);
  EXPECT_DOUBLE_EQ(scaledFont(record("Courier New", -200, 60))->glyph(U'W').advance, 60);
  EXPECT_DOUBLE_EQ(scaledFont(record("Arial", -2048))->glyph(U'i').advance, 455);
  EXPECT_DOUBLE_EQ(scaledFont(record("Arial", -2048, 0, 700))->glyph(U'i').advance, 569);
}

TEST(Fonts, CharactersWithoutAPlaceInTheFaceStillCount) {
  const auto font = scaledFont(record("Courier New", -200));
  // The character 0 stands for letters of code pages without a table: a blank as wide as any.
  EXPECT_EQ(font->glyph(0).index, font->glyph(U' ').index);
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
