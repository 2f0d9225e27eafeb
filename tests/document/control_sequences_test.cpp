// Printer control sequences: what they change, and how much of the text they take.
#include "document/control_sequences.h"

#include <sstream>

#include <gtest/gtest.h>

#include "document/vset.h"

namespace qor::test {
namespace {

// Everything that sequences can change, where it differs from the defaults.
std::string changes(const FontState& font, const VSetPage& page) {
  std::ostringstream out;
  if (font.WidthFactor != 1) out << "factor=" << font.WidthFactor << " ";
  if (font.Height != 10) out << "height=" << font.Height << " ";
  if (font.Width != 0) out << "width=" << font.Width << " ";
  if (font.LogFont.Weight != 400) out << "weight=" << font.LogFont.Weight << " ";
  if (font.LogFont.Underline != 0) out << "underline ";
  if (font.CharSpacing != 0) out << "hs=" << font.CharSpacing << " ";
  if (font.LineSpacing != 0) out << "vs=" << font.LineSpacing << " ";
  if (page.NumOfCopies != 1) out << "copies=" << page.NumOfCopies << " ";
  if (page.Orientation != 1) out << "orientation=" << page.Orientation << " ";
  const std::int32_t margins[] = {page.MarginLeft, page.MarginTop, page.MarginRight,
                                  page.MarginBottom};
  for (int i = 0; i < 4; ++i) {
    if (margins[i] != 0)
      out << "margin"
          << "LTRB"[i] << "=" << margins[i] << " ";
  }
  if (page.BaseCodePage != 1252) out << "codepage=" << page.BaseCodePage << " ";
  return out.str();
}

struct Row {
  std::string text;  // behind the ESC
  std::string changes;
  std::string rest;  // what is left to be read
};

std::string escaped(const std::string& text) {
  return "\x1B" + text;
}

TEST(ControlSequences, ChangeFontAndPageAndAreSteppedOver) {
  const std::string nul(1, '\0');
  const std::vector<Row> rows = {{"\x0F"
                                  "x",
                                  "factor=0.6 ", "x"},
                                 {"W1x", "factor=2 ", "x"},
                                 {"W0x", "factor=0.5 ", "x"},
                                 {"W\x01x", "", "x"},
                                 {"w1x", "height=20 ", "x"},
                                 {"w0x", "height=5.5 ", "x"},
                                 {"C\x42x", "", "x"},
                                 {"C" + nul + "\x0Cx", "", "x"},
                                 {"=x", "", "x"},
                                 {"Yx", "", "x"},
                                 {"3abx", "", "x"},
                                 {"2ax", "", "x"},
                                 {"Qx", "", "Qx"},
                                 {"&a5Lx", "marginL=-5 ", "x"},
                                 {"&a7mx", "marginR=-7 ", "x"},
                                 {"&a6Px", "orientation=3 ", "x"},
                                 {"&a2px", "", "x"},
                                 {"&a5Vx", "", "x"},
                                 {"&aLx", "", "Lx"},
                                 {"&d3Dx", "underline ", "x"},
                                 {"&d5Dx", "", "x"},
                                 {"&k10Hx", "hs=2 ", "x"},
                                 {"&k0Sx", "width=7.2 ", "x"},
                                 {"&k2Sx", "width=4.2 ", "x"},
                                 {"&k4sx", "width=6 ", "x"},
                                 {"&k9Sx", "", "x"},
                                 {"&l8Cx", "vs=8 ", "x"},
                                 {"&l7Dx", "height=10.2 ", "x"},
                                 {"&l0Dx", "", "x"},
                                 {"&l6Ex", "marginT=-6 ", "x"},
                                 {"&l6Fx", "marginB=-6 ", "x"},
                                 {"&l2Ox", "orientation=3 ", "x"},
                                 {"&l9Ox", "", "x"},
                                 {"&l4Xx", "copies=4 ", "x"},
                                 {"&l1000Xx", "", "x"},
                                 {"&u300Dx", "", "x"},
                                 {"&z5Dx", "", "z5Dx"},
                                 {"(s12Hx", "width=6 ", "x"},
                                 {"(s16.66Hx", "width=4.3 ", "x"},
                                 {"(s0Hx", "", "x"},
                                 {"(s14.5Vx", "height=14.5 ", "x"},
                                 {"(s3Bx", "weight=700 ", "x"},
                                 {"(s0Bx", "weight=500 ", "x"},
                                 {"(s-7Bx", "weight=0 ", "x"},
                                 {"(s8Bx", "", "x"},
                                 {"(s1Px", "", "x"},
                                 {"(9Tx", "codepage=857 ", "x"},
                                 {"(8Ux", "", "x"},
                                 {"*5Xx", "", "x"},
                                 {"*p20Yx", "", "x"},
                                 {"(s1V\x1B(s3Bx", "height=1 weight=700 ", "x"},
                                 {"&l2.5Cx", "vs=2.5 ", "x"},
                                 {"&l2.99999Cx", "vs=2.9999 ", "x"},
                                 {"&l+3Cx", "vs=3 ", "x"},
                                 {"(s5", "", ""},
                                 {"&", "", ""},
                                 {"", "", ""}};
  for (const Row& row : rows) {
    FontState font;
    VSetPage page;
    page.BaseCodePage = 1252;
    std::size_t cursor = 0;
    const std::string text = escaped(row.text);
    RunControlSequences(text, cursor, &page, font);
    EXPECT_EQ(changes(font, page), row.changes) << row.text;
    EXPECT_EQ(text.substr(cursor), row.rest) << row.text;
  }
}

TEST(ControlSequences, TakeOneControlByteBehindThem) {
  FontState font;
  std::size_t cursor = 0;
  RunControlSequences("\x1BW1\r\n\x0Fx", cursor, nullptr, font);
  EXPECT_EQ(cursor, 4U);
  EXPECT_EQ(font.WidthFactor, 2);
}

TEST(ControlSequences, LeaveThePageAloneInsideALine) {
  FontState font;
  for (const char* text : {"\x1B&l2O", "\x1B&a5L", "\x1B(9T",
                           "\x1B"
                           "9",
                           "\x1B&l4X",
                           "\x1B"
                           "E"}) {
    std::size_t cursor = 0;
    font.Height = 12;
    RunControlSequences(text, cursor, nullptr, font);
    EXPECT_EQ(cursor, std::string(text).size()) << text;
    EXPECT_EQ(font.Height, std::string(text) ==
                                   "\x1B"
                                   "E"
                               ? 10
                               : 12)
        << text;
  }
}

TEST(ControlSequences, ResetBringsBackTheDefaults) {
  FontState font;
  VSetPage page;
  font.Height = 20;
  font.LogFont.setFaceName("Arial");
  page.MarginLeft = 5;
  std::size_t cursor = 0;
  RunControlSequences(
      "\x1B"
      "E",
      cursor, &page, font);
  page.BaseCodePage = 1252;
  EXPECT_EQ(changes(font, page), "");
  EXPECT_EQ(font.LogFont.faceName(), "Courier New");
}

}  // namespace
}  // namespace qor::test
