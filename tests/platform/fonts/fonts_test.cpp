// Metrics and advances of outlines. The expected values follow from the fonts' own tables.
#include "platform/fonts/fonts.h"

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

// Arial's stand-in has 2048 units, an ascent of 1854, a descent of 434, a gap of 67, a width of
// 1187.
TEST(Fonts, measureAsTheWindowsTextMapperDoes) {
  const TextMetrics& arial = scaledFont(record("Arial", -2048))->metrics();
  EXPECT_EQ((std::array{arial.ascent, arial.descent, arial.height, arial.externalLeading,
                        arial.averageWidth}),
            (std::array{1854, 434, 2288, 67, 1187}));
  EXPECT_DOUBLE_EQ(scaledFont(record("Arial", 0))->emSize(), 240);
  EXPECT_DOUBLE_EQ(scaledFont(record("Arial", 2288))->emSize(), 2048);
  EXPECT_EQ(scaledFont(record("Arial", -200, -72))->metrics().averageWidth, 72);
}

TEST(Fonts, charactersWithoutAPlaceInTheFaceStillCount) {
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

TEST(Fonts, unknownFacesAndSizesFindAStandIn) {
  for (const char* face : {"No Such Face", "", "MS Sans Serif", "Terminal"})
    EXPECT_GT(scaledFont(record(face, -200))->glyph(U'a').advance, 0) << face;
  for (const int height : {2147483647, -2147483647 - 1})
    EXPECT_GT(scaledFont(record("Arial", height))->metrics().height, 0);
}

}  // namespace
}  // namespace qor::test
