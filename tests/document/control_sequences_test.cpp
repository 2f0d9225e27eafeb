// Printer control sequences: what they change, and how much of the text they take.
#include "document/control_sequences.h"

#include <cctype>

#include "document/vset.h"
#include "support/test.h"

namespace qor::test {
namespace {

// Everything that sequences can change, where it differs from the defaults.
std::string changes(const FontState& font, const VSetPage& page) {
  std::ostringstream out;
  out << differences(font);
  const std::tuple<const char*, double, double> values[] = {
      {"row", font.RowHeight, 0},           {"copies", page.NumOfCopies, 1},
      {"orientation", page.Orientation, 1}, {"left", page.MarginLeft, 0},
      {"top", page.MarginTop, 0},           {"right", page.MarginRight, 0},
      {"bottom", page.MarginBottom, 0},     {"codepage", page.BaseCodePage, 1252}};
  for (const auto& [name, value, usual] : values)
    if (value != usual) out << " " << name << "=" << value;
  return out.str().empty() ? "" : out.str().substr(1) + " ";
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

TEST(ControlSequences, changeFontAndPage) {
  for (const auto& [sequence, change] :
       rowsOf("\017 factor=0.6|W1 factor=2|W0 factor=0.5|w1 height=20|w0 height=5.5|"
              "&a6P orientation=3|&a5P orientation=2|(s1V\033(s3B height=1 weight=700"))
    EXPECT_EQ(told(sequence + "x"), change + " x") << sequence;
  // The letters of all others may be small ones.
  for (const auto& [sequence, change] : rowsOf(
           "&a5L left=-5|&a7M right=-7|&d3D underline=1|&d0D underline=1|&d4D underline=1|"
           "&k10H hs=2|&k0S width=7.2|&k2S width=4.2|&k4S width=6|&l8C row=8|&l7D height=10.2|"
           "&l6E top=-6|&l6F bottom=-6|&l1O orientation=2|&l2O orientation=3|&l3O orientation=4|"
           "&l4X copies=4|&l999X copies=999|(s12H width=6|(s16.66H width=4.3|(s14.5V height=14.5|"
           "(9T codepage=857|&l2.5C row=2.5|&l2.99999C row=2.9999|&l+3C row=3|(s-7B weight=0|"
           "(s-6B weight=100|(s-5B weight=200|(s-4B weight=200|(s-3B weight=300|(s-2B weight=400|"
           "(s-1B weight=400|(s0B weight=500|(s1B weight=600|(s2B weight=600|(s3B weight=700|"
           "(s4B weight=800|(s5B weight=800|(s6B weight=900|(s7B weight=900")) {
    const std::string expected = change == "weight=400" ? "x" : change + " x";
    std::string small = sequence;
    small.back() = static_cast<char>(std::tolower(small.back()));
    for (const std::string& each : {sequence, small}) {
      // A weight that is the usual one must come from another.
      const std::string before = change.starts_with("weight") ? "(s7B\033" : "";
      EXPECT_EQ(told(before + each + "x"), expected) << each;
    }
  }
  for (const char* off : {"&d@", "&d5D"}) EXPECT_EQ(told("&d4D\033" + std::string(off)), "") << off;
  EXPECT_EQ(told("&l2O\033&l4O"), "");
  EXPECT_EQ(told("&a5L\033&l8C\033E"), told("E"));
}

TEST(ControlSequences, areSteppedOverWhereTheyChangeNothing) {
  for (const char* sequence :
       {"W\1",  "CB",   "=",       "Y",      "3ab",  "2a",   "&a2p", "&a5V", "&d5D", "&k9S",
        "&l0D", "&l9O", "&l1000X", "&u300D", "(s0H", "(s8B", "(s1P", "(8U",  "*5X",  "*p20Y"})
    EXPECT_EQ(told(std::string(sequence) + "x"), "x") << sequence;
  EXPECT_EQ(told(std::string("C\0\fx", 4)), "x");
}

TEST(ControlSequences, leaveWhatIsNotTheirs) {
  const std::pair<std::string, std::string> rows[] = {
      {"Qx", "Qx"}, {"&aLx", "Lx"}, {"&z5Dx", "z5Dx"}, {"(s5", ""}, {"&", ""}, {"", ""}};
  for (const auto& [sequence, expected] : rows) EXPECT_EQ(told(sequence), expected) << sequence;
  EXPECT_EQ(told("W1\r\n\017x"), "factor=2 \n\017x") << "takes one control byte";
}

TEST(ControlSequences, leaveThePageAloneInsideALine) {
  for (const std::string sequence : {"&l2O", "&a5L", "(9T", "9", "&l4X", "E"}) {
    FontState font;
    font.Height = 12;
    font.LogFont.setFaceName("Arial");
    EXPECT_EQ(run(sequence, nullptr, font), "") << sequence;
    EXPECT_EQ(differences(font), sequence == "E" ? "" : " face=Arial height=12") << sequence;
  }
}

}  // namespace
}  // namespace qor::test
