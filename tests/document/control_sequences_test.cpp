// Printer control sequences: what they change, and how much of the text they take.
#include "document/control_sequences.h"

#include <cctype>
#include <sstream>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "document/vset.h"

namespace qor::test {
namespace {

// Everything that sequences can change, where it differs from the defaults.
std::string changes(const FontState& font, const VSetPage& page) {
  std::ostringstream out;
  const auto tell = [&out](const char* name, double value, double usual) {
    if (value != usual) out << name << "=" << value << " ";
  };
  tell("factor", font.WidthFactor, 1);
  tell("height", font.Height, 10);
  tell("width", font.Width, 0);
  tell("weight", font.LogFont.Weight, 400);
  tell("underline", font.LogFont.Underline, 0);
  tell("hs", font.CharSpacing, 0);
  tell("vs", font.LineSpacing, 0);
  tell("copies", page.NumOfCopies, 1);
  tell("orientation", page.Orientation, 1);
  tell("left", page.MarginLeft, 0);
  tell("top", page.MarginTop, 0);
  tell("right", page.MarginRight, 0);
  tell("bottom", page.MarginBottom, 0);
  tell("codepage", page.BaseCodePage, 1252);
  return out.str();
}

// Runs what stands behind an ESC; gives what is left to be read.
std::string run(const std::string& sequence, VSetPage* page, FontState& font) {
  std::size_t cursor = 0;
  const std::string text = "\033" + sequence;
  RunControlSequences(text, cursor, page, font);
  return text.substr(cursor);
}

// The changes and what is left to be read.
std::string told(const std::string& sequence) {
  FontState font;
  VSetPage page;
  page.BaseCodePage = 1252;
  const std::string rest = run(sequence, &page, font);
  return changes(font, page) + rest;
}

TEST(ControlSequences, ChangeFontAndPage) {
  const std::pair<std::string, std::string> rows[] = {
      {"\017x", "factor=0.6 x"},
      {"W1x", "factor=2 x"},
      {"W0x", "factor=0.5 x"},
      {"w1x", "height=20 x"},
      {"w0x", "height=5.5 x"},
      {"&a5Lx", "left=-5 x"},
      {"&a7Mx", "right=-7 x"},
      {"&d3Dx", "underline=1 x"},
      {"&d0Dx", "underline=1 x"},
      {"&d4Dx", "underline=1 x"},
      {"&d4D\033&d@x", "x"},
      {"&d4D\033&d5Dx", "x"},
      {"&k10Hx", "hs=2 x"},
      {"&k0Sx", "width=7.2 x"},
      {"&k2Sx", "width=4.2 x"},
      {"&k4Sx", "width=6 x"},
      {"&l8Cx", "vs=8 x"},
      {"&l7Dx", "height=10.2 x"},
      {"&l6Ex", "top=-6 x"},
      {"&l6Fx", "bottom=-6 x"},
      {"&l1Ox", "orientation=2 x"},
      {"&l2Ox", "orientation=3 x"},
      {"&l3Ox", "orientation=4 x"},
      {"&l2O\033&l4Ox", "x"},
      {"&l4Xx", "copies=4 x"},
      {"&l999Xx", "copies=999 x"},
      {"(s12Hx", "width=6 x"},
      {"(s16.66Hx", "width=4.3 x"},
      {"(s14.5Vx", "height=14.5 x"},
      {"(9Tx", "codepage=857 x"},
      {"&l2.5Cx", "vs=2.5 x"},
      {"&l2.99999Cx", "vs=2.9999 x"},
      {"&l+3Cx", "vs=3 x"},
      {"(s-7Bx", "weight=0 x"},
      {"(s-6Bx", "weight=100 x"},
      {"(s-5Bx", "weight=200 x"},
      {"(s-4Bx", "weight=200 x"},
      {"(s-3Bx", "weight=300 x"},
      {"(s-2Bx", "x"},
      {"(s-1Bx", "x"},
      {"(s0Bx", "weight=500 x"},
      {"(s1Bx", "weight=600 x"},
      {"(s2Bx", "weight=600 x"},
      {"(s3Bx", "weight=700 x"},
      {"(s4Bx", "weight=800 x"},
      {"(s5Bx", "weight=800 x"},
      {"(s6Bx", "weight=900 x"},
      {"(s7Bx", "weight=900 x"},
  };
  for (const auto& [sequence, expected] : rows) {
    EXPECT_EQ(told(sequence), expected) << sequence;
    // The last letter of a group may be a small one.
    if (sequence.find_first_of("&(") != 0) continue;
    std::string small = sequence;
    for (std::size_t i = 2; i < small.size(); ++i) {
      if (small[i - 1] != '\033') small[i] = static_cast<char>(std::tolower(small[i]));
    }
    EXPECT_EQ(told(small), expected) << small;
  }
  EXPECT_EQ(told("(s1V\033(s3Bx"), "height=1 weight=700 x");
  // But for this one, which is counted by four.
  EXPECT_EQ(told("&a6Px"), "orientation=3 x");
  EXPECT_EQ(told("&a5Px"), "orientation=2 x");
}

TEST(ControlSequences, AreSteppedOverWhereTheyChangeNothing) {
  for (const char* sequence :
       {"W\1",  "CB",   "=",       "Y",      "3ab",  "2a",   "&a2p", "&a5V", "&d5D", "&k9S",
        "&l0D", "&l9O", "&l1000X", "&u300D", "(s0H", "(s8B", "(s1P", "(8U",  "*5X",  "*p20Y"}) {
    EXPECT_EQ(told(std::string(sequence) + "x"), "x") << sequence;
  }
  EXPECT_EQ(told(std::string("C\0\fx", 4)), "x");
}

TEST(ControlSequences, LeaveWhatIsNotTheirs) {
  const std::pair<std::string, std::string> rows[] = {
      {"Qx", "Qx"}, {"&aLx", "Lx"}, {"&z5Dx", "z5Dx"}, {"(s5", ""}, {"&", ""}, {"", ""},
  };
  for (const auto& [sequence, expected] : rows) EXPECT_EQ(told(sequence), expected) << sequence;
  EXPECT_EQ(told("W1\r\n\017x"), "factor=2 \n\017x") << "takes one control byte";
}

TEST(ControlSequences, LeaveThePageAloneInsideALine) {
  const std::pair<const char*, double> rows[] = {{"&l2O", 12}, {"&a5L", 12}, {"(9T", 12},
                                                 {"9", 12},    {"&l4X", 12}, {"E", 10}};
  for (const auto& [sequence, height] : rows) {
    FontState font;
    font.Height = 12;
    EXPECT_EQ(run(sequence, nullptr, font), "") << sequence;
    EXPECT_EQ(font.Height, height) << sequence;
  }
}

TEST(ControlSequences, ResetBringsBackTheDefaults) {
  FontState font;
  VSetPage page;
  font.Height = 20;
  font.LogFont.setFaceName("Arial");
  page.MarginLeft = 5;
  run("E", &page, font);
  page.BaseCodePage = 1252;
  EXPECT_EQ(changes(font, page), "");
  EXPECT_EQ(font.LogFont.faceName(), "Courier New");
}

}  // namespace
}  // namespace qor::test
