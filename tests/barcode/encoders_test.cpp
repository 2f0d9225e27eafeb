// Symbols of each symbology as a reader takes them, and the rules of values.
#include <ZXing/ReadBarcode.h>

#include "barcode/vbarcodecalc.h"
#include "document/vdata.h"
#include "support/test.h"

namespace qor::test {
namespace {

// The entries or the labels that a calculator lays out, without the marks at both ends.
std::string laidOut(VBarCodeCalc& calc, bool labels, const char* between) {
  VBarCodeCalc::Texts texts[2];
  calc.Layout(texts[0], texts[1]);
  std::string result;
  for (std::size_t i = 1; i + 1 < texts[labels].size(); ++i)
    result += (i > 1 ? between : "") + texts[labels][i];
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

TEST(Encoders, makeSymbolsThatAreRead) {
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
                           "abcdefghijklmnopqrstuvwxyzA{", "`{|}~amkellsdzdw"})
    EXPECT_EQ(read(calc.Code128(text)), std::string("Code128 ") + text);
  // Readers want gaps between the characters of Code 39, and the check symbols of Code 93.
  calc.Code39(kAlphabet, false);
  EXPECT_EQ(read(laidOut(calc, false, "0")), "Code39 " + std::string(kAlphabet));
  EXPECT_EQ(read(calc.Code93(std::string(kAlphabet) + "/B")), "Code93 " + std::string(kAlphabet));
  EXPECT_EQ(read(calc.Code93("!A#B&C@DKT")), "Code93 \x01\x1C#d");
}

TEST(Encoders, makeUpcEOfBothNumberSystems) {
  VBarCodeCalc calc;
  // The check digit, the last one, decides the sets of digits.
  for (const auto& [value, none] :
       rowsOf("04610960|05102761|08601292|03504963|03982594|05584185|04833796|09441187|08762368|"
              "00555289|11818090|11861591|18190762|12217793|13608194|10174975|11620556|11098867|"
              "13433468|15921369"))
    EXPECT_EQ(read(calc.UPCE(value.substr(0, 7))), "UPC-E " + value);
  for (const auto& [upca, upce] :
       rowsOf("01200000678 01267804|01210000678 01267813|01220000678 01267822|"
              "01234000005 01234543|01234500005 01234558|01234500006 01234565|"
              "01234500007 01234572|01234500008 01234589|01234500009 01234596|"
              "11234500009 11234593"))
    EXPECT_EQ(read(calc.UPCE(upca)), "UPC-E " + upce) << upca;
  // Behind "3" to "9" the maker's fourth digit is lost, as it always was.
  calc.UPCE("01290000067");
  EXPECT_EQ(laidOut(calc, true, "|"), "|1|2|0|6|7|3|");
}

TEST(Encoders, refuseWhatTheyCannotHold) {
  VBarCodeCalc calc;
  EXPECT_EQ(calc.EAN8("123456789") + calc.UPCE("123456789") + calc.ITF("123456789012"), "");
  EXPECT_THROW(calc.EAN8("12a4567"), ConversionError);
  EXPECT_THROW(calc.UPCE("12345678901"), ConversionError);
}

TEST(BarcodeValues, areCheckedAsTheTypeStands) {
  const auto held = [](const std::string& text) {
    const auto blank = text.find(' ');
    const std::string value = text.substr(blank + 1);
    VData_BarCode code(nullptr);
    code.SetType(text.substr(0, blank));
    const bool taken = code.SetValue(value);
    EXPECT_EQ(taken, code.BarcodeType != -1) << value;
    return std::to_string(code.BarcodeType) + " " + code.Value;
  };
  // The type and the value, and what is left of both.
  const std::string longText(10000, 'x');
  for (const auto& [given, left] : rowsOf(
           "EAN_13 5901234123450 => 2 590123412345|EAN_13 12345 => -1 12345|"
           "EAN_13 12345678901234 => -1 12345678901234|EAN_13 59012341234x => -1 000000000000|"
           "UPCA ABC => -1 ABC|UPCA 036000291452 => 3 03600029145|UPCA 0360002914 => -1 0360002914|"
           "UPCE 01234565 => 4 0123456|UPCE 012345 => -1 012345|EAN_8 963850 => -1 963850|"
           "EAN_8 96385074 => 1 9638507|39 abc => -1 ERROR|39 ABC-1 => 5 ABC-1|CodeBar 12E => -1 0|"
           "ITF 12a => -1 0|93 a => -1 ERROR|EAN_13  590123412345  => 2 590123412345|"
           "128    => -1 ERROR|KAREKOD any text => 12 any text|128 " +
               longText + " => 6 " + longText,
           " => "))
    EXPECT_EQ(held(given), left) << given;
  VData_BarCode early(nullptr);
  EXPECT_FALSE(early.SetValue("ABC"));
  early.SetType("39");
  EXPECT_EQ(early.BarcodeType, 5);
  EXPECT_EQ(early.Value, "ABC");
}

}  // namespace
}  // namespace qor::test
