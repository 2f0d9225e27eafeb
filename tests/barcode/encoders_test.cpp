// Symbols of each symbology as a reader takes them, and the rules of values.
#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include <ZXing/ReadBarcode.h>
#include <gtest/gtest.h>

#include "barcode/vbarcodecalc.h"
#include "base/errors.h"
#include "document/vdata.h"

namespace qor::test {
namespace {

// The patterns of the calculator's entries, blanks between them.
std::string patterns(const VBarCodeCalc& calc) {
  VBarCodeCalc::Texts entries;
  VBarCodeCalc::Texts labels;
  calc.Layout(entries, labels);
  std::string result;
  for (std::size_t i = 1; i + 1 < entries.size(); ++i) result += (i > 1 ? " " : "") + entries[i];
  return result;
}

std::string labels(const VBarCodeCalc& calc) {
  VBarCodeCalc::Texts entries;
  VBarCodeCalc::Texts texts;
  calc.Layout(entries, texts);
  std::string result;
  for (std::size_t i = 1; i + 1 < texts.size(); ++i) result += (i > 1 ? "|" : "") + texts[i];
  return result;
}

// "Format text" as a reader takes it from bars of three dots a module.
std::string read(const std::string& modules) {
  constexpr int kDots = 3;
  constexpr int kHeight = 40;
  const std::string line = std::string(20, '0') + modules + std::string(20, '0');
  std::vector<std::uint8_t> row;
  for (const char module : line) row.insert(row.end(), kDots, module == '1' ? 0 : 255);
  std::vector<std::uint8_t> pixels;
  for (int y = 0; y < kHeight; ++y) pixels.insert(pixels.end(), row.begin(), row.end());
  const ZXing::ImageView view(pixels.data(), static_cast<int>(row.size()), kHeight,
                              ZXing::ImageFormat::Lum);
  const ZXing::Result result = ZXing::ReadBarcode(view);
  return std::string(ZXing::ToString(result.format())) + " " + result.text();
}

constexpr std::string_view kAlphabet = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%";

TEST(Encoders, MakeSymbolsThatAreRead) {
  VBarCodeCalc calc;
  // The first digit decides which set each of the next ones comes from.
  for (const char first : std::string_view("123456789")) {
    const std::string digits = first + std::string("12345678906");
    const std::string found = read(calc.EAN13(digits));
    EXPECT_EQ(found.substr(0, found.size() - 1), "EAN-13 " + digits);
  }
  EXPECT_EQ(read(calc.EAN8("1234567")), "EAN-8 12345670");
  EXPECT_EQ(read(calc.EAN8("9080604")), "EAN-8 90806049");
  EXPECT_EQ(read(calc.UPCA("03600029145")), "UPC-A 036000291452");
  EXPECT_EQ(read(calc.UPCA("98765432109")), "UPC-A 987654321098");
  EXPECT_EQ(read(calc.ITF("0123456789012")), "ITF 01234567890128");
  // Set A has its check symbol right always, set B where the sum allows it.
  for (const char* text : {" !\"#$%&'()*+,-./0123456789:;<=>?@", "ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^_",
                           "abcdefghijklmnopqrstuvwxyzA{", "`{|}~amkellsdzdw"}) {
    EXPECT_EQ(read(calc.Code128(text)), std::string("Code128 ") + text);
  }
  // Readers want gaps between the characters of Code 39, and the check symbols of Code 93.
  calc.Code39(kAlphabet, false);
  std::string spaced = patterns(calc);
  std::ranges::replace(spaced, ' ', '0');
  EXPECT_EQ(read(spaced), "Code39 " + std::string(kAlphabet));
  EXPECT_EQ(read(calc.Code93(std::string(kAlphabet) + "/B")), "Code93 " + std::string(kAlphabet));
  EXPECT_EQ(read(calc.Code93("!A#B&C@DKT")), "Code93 \x01\x1C#d");
}

TEST(Encoders, MakeUpcEOfBothNumberSystems) {
  VBarCodeCalc calc;
  // By check digit, which decides the sets of digits.
  const std::array<const char*, 10> systems[] = {
      {"0461096", "0510276", "0860129", "0350496", "0398259", "0558418", "0483379", "0944118",
       "0876236", "0055528"},
      {"1181809", "1186159", "1819076", "1221779", "1360819", "1017497", "1162055", "1109886",
       "1343346", "1592136"}};
  for (const auto& values : systems) {
    for (std::size_t check = 0; check < values.size(); ++check) {
      EXPECT_EQ(read(calc.UPCE(values[check])),
                std::string("UPC-E ") + values[check] + std::to_string(check));
    }
  }
  const std::pair<const char*, const char*> compressed[] = {
      {"01200000678", "01267804"}, {"01210000678", "01267813"}, {"01220000678", "01267822"},
      {"01234000005", "01234543"}, {"01234500005", "01234558"}, {"01234500006", "01234565"},
      {"01234500007", "01234572"}, {"01234500008", "01234589"}, {"01234500009", "01234596"},
      {"11234500009", "11234593"}};
  for (const auto& [upca, upce] : compressed) {
    EXPECT_EQ(read(calc.UPCE(upca)), std::string("UPC-E ") + upce) << upca;
  }
  // Behind "3" to "9" the maker's fourth digit is lost, as it always was.
  calc.UPCE("01230000067");
  EXPECT_EQ(labels(calc), "|1|2|0|6|7|3|");
  calc.UPCE("01290000067");
  EXPECT_EQ(labels(calc), "|1|2|0|6|7|3|");
}

TEST(Encoders, LabelTheirEntries) {
  VBarCodeCalc calc;
  calc.EAN13("590123412345");
  EXPECT_EQ(labels(calc), "|9|0|1|2|3|4||1|2|3|4|5|7|");
  calc.Code39("A1-. $%", false);
  EXPECT_EQ(labels(calc), "*|A|1|-|.| |$|%|*");
  calc.Code128("123456");
  EXPECT_EQ(labels(calc), "           |1|2|3|4|5|6|           |           |  ");
  calc.Code93("TEST");
  EXPECT_EQ(labels(calc), " |T|E|S|T| ");
}

TEST(Encoders, PutCheckDigitsRight) {
  VBarCodeCalc calc;
  const std::string right = calc.EAN13("5901234123457");
  EXPECT_EQ(calc.EAN13("5901234123450"), right);
  EXPECT_EQ(calc.EAN13("590123412345"), right);
  EXPECT_EQ(calc.EAN8("12345678"), calc.EAN8("1234567"));
  EXPECT_EQ(calc.UPCA("036000291450"), calc.UPCA("03600029145"));
  EXPECT_EQ(calc.UPCE("04610967"), calc.UPCE("0461096"));
  EXPECT_EQ(calc.ITF("15400141288760"), calc.ITF("1540014128876"));
}

TEST(Encoders, Code128KeepsItsCheckModuloTheStart) {
  VBarCodeCalc calc;
  calc.Code128("Y");
  const std::string letterY = patterns(calc).substr(12, 11);
  // Set B: 3177 modulo 104 is 57, the value of "Y".
  calc.Code128("Wikipedia");
  EXPECT_EQ(patterns(calc).substr(10 * 12, 11), letterY);
  EXPECT_EQ(calc.Code128("A\xE9").size(), calc.Code128("A").size());
}

TEST(Encoders, RefuseWhatTheyCannotHold) {
  VBarCodeCalc calc;
  EXPECT_EQ(calc.EAN13("123"), "");
  EXPECT_EQ(calc.EAN8("123456789"), "");
  EXPECT_EQ(calc.UPCA(""), "");
  EXPECT_EQ(calc.UPCE("123456789"), "");
  EXPECT_EQ(calc.Code39("", false), "");
  EXPECT_EQ(calc.Code93(""), "");
  EXPECT_EQ(calc.Code128(""), "");
  EXPECT_EQ(calc.ITF("123456789012"), "");
  EXPECT_THROW(calc.EAN8("12a4567"), ConversionError);
  EXPECT_THROW(calc.UPCE("12345678901"), ConversionError);
}

TEST(BarcodeValues, AreCheckedAsTheTypeStands) {
  struct Row {
    const char* type;
    std::string value;
    int left;
    std::string held;
  };
  const std::vector<Row> rows = {
      {"EAN_13", "5901234123450", 2, "590123412345"},
      {"EAN_13", " 590123412345 ", 2, "590123412345"},
      {"EAN_13", "12345", -1, "12345"},
      {"EAN_13", "59012341234x", -1, "000000000000"},
      {"UPCA", "ABC", -1, "ABC"},
      {"EAN_13", "12345678901234", -1, "12345678901234"},
      {"UPCA", "036000291452", 3, "03600029145"},
      {"UPCA", "0360002914", -1, "0360002914"},
      {"UPCE", "01234565", 4, "0123456"},
      {"UPCE", "012345", -1, "012345"},
      {"EAN_8", "963850", -1, "963850"},
      {"EAN_8", "96385074", 1, "9638507"},
      {"39", "abc", -1, "ERROR"},
      {"39", "ABC-1", 5, "ABC-1"},
      {"128", "  ", -1, "ERROR"},
      {"CodeBar", "12E", -1, "0"},
      {"ITF", "12a", -1, "0"},
      {"93", "a", -1, "ERROR"},
      {"KAREKOD", "any text", 12, "any text"},
      {"128", std::string(10000, 'x'), 6, std::string(10000, 'x')},
  };
  for (const Row& row : rows) {
    VData_BarCode code(nullptr);
    code.SetType(row.type);
    EXPECT_EQ(code.SetValue(row.value), row.left != -1) << row.value;
    EXPECT_EQ(code.BarcodeType, row.left) << row.value;
    EXPECT_EQ(code.Value, row.held);
  }
  VData_BarCode early(nullptr);
  EXPECT_FALSE(early.SetValue("ABC"));
  early.SetType("39");
  EXPECT_EQ(early.BarcodeType, 5);
  EXPECT_EQ(early.Value, "ABC");
}

}  // namespace
}  // namespace qor::test
