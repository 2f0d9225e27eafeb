// Bar patterns of each symbology against published examples, and the rules of values.
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

TEST(Encoders, MatchPublishedExamples) {
  VBarCodeCalc calc;
  calc.EAN13("590123412345");
  EXPECT_EQ(patterns(calc),
            "101 0001011 0100111 0110011 0010011 0111101 0011101 01010 1100110 1101100 1000010 "
            "1011100 1001110 1000100 101");
  EXPECT_EQ(labels(calc), "|9|0|1|2|3|4||1|2|3|4|5|7|");
  calc.EAN8("9638507");
  EXPECT_EQ(patterns(calc),
            "101 0001011 0101111 0111101 0110111 01010 1001110 1110010 1000100 1011100 101");
  calc.UPCA("03600029145");
  EXPECT_EQ(patterns(calc),
            "101 0001101 0111101 0101111 0001101 0001101 0001101 01010 1101100 1110100 1100110 "
            "1011100 1001110 1101100 101");
  calc.UPCE("06510000432");
  EXPECT_EQ(patterns(calc), "101 0000101 0110001 0011101 0111101 0011011 0011001 010101");
  EXPECT_EQ(labels(calc), "|6|5|4|3|2|1|");
  calc.Code39("A1-. $%", false);
  EXPECT_EQ(patterns(calc),
            "100101101101 110101001011 110100101011 100101011011 110010101101 100110101101 "
            "100100100101 101001001001 100101101101");
  EXPECT_EQ(labels(calc), "*|A|1|-|.| |$|%|*");
  calc.Code93("TEST93");
  EXPECT_EQ(patterns(calc),
            "101011110 110100110 110010010 110101100 110100110 100001010 101000010 1010111101");
  calc.Code128("PJJ123C");
  EXPECT_EQ(patterns(calc),
            "11010000100 11101110110 10110111000 10110111000 10011100110 11001110010 11001011100 "
            "10001000110 11101011000 11000111010 11");
  calc.ITF("1234567890123");
  EXPECT_EQ(patterns(calc).substr(0, 21), "1010 1101001 0101100 ");
}

TEST(Encoders, PutCheckDigitsRight) {
  VBarCodeCalc calc;
  const std::string right = calc.EAN13("5901234123457");
  EXPECT_EQ(calc.EAN13("5901234123450"), right);
  EXPECT_EQ(calc.EAN13("590123412345"), right);
  calc.ITF("1540014128876");
  EXPECT_EQ(labels(calc), "|1|5|4|0|0|1|4|1|2|8|8|7|6|3|");
  calc.ITF("15400141288760");
  EXPECT_EQ(labels(calc), "|1|5|4|0|0|1|4|1|2|8|8|7|6|3|");
}

TEST(Encoders, Code128KeepsItsCheckModuloTheStart) {
  VBarCodeCalc calc;
  calc.Code128("Y");
  const std::string letterY = patterns(calc).substr(12, 11);
  // Set B: 3177 modulo 104 is 57, the value of "Y".
  calc.Code128("Wikipedia");
  EXPECT_EQ(patterns(calc).substr(10 * 12, 11), letterY);
  EXPECT_EQ(patterns(calc).substr(0, 11), "11010010000");
  calc.Code128("123456");
  EXPECT_EQ(labels(calc), "           |1|2|3|4|5|6|           |           |  ");
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

TEST(Encoders, CompressUpcA) {
  struct Row {
    const char* upca;
    const char* digits;
  };
  VBarCodeCalc calc;
  // The maker's digit of the second row is lost, as it always was.
  for (const Row& row :
       {Row{"04210000526", "425261"}, Row{"01230000067", "120673"}, Row{"01234000005", "123454"},
        Row{"01234500006", "123456"}, Row{"01200000789", "127890"}}) {
    ASSERT_NE(calc.UPCE(row.upca), "") << row.upca;
    std::string digits = labels(calc);
    std::erase(digits, '|');
    EXPECT_EQ(digits, row.digits) << row.upca;
  }
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
      {"UPCE", "01234565", 4, "0123456"},
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
