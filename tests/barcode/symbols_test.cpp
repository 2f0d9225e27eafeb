// Drawn symbols, read back by a program, and where their parts stand.
#include "barcode/symbol_drawing.h"
#include "barcode/symbol_layout.h"
#include "support/recording_canvas.h"
#include "support/test.h"

namespace qor::test {
namespace {

// Keys, and what the reader takes them for.
const std::pair<std::string, std::string> kSymbols[] = {
    {"br_type=EAN_13 value=590123412345", "EAN-13:5901234123457"},
    {"br_type=EAN_13 value=000000000000", "EAN-13:0000000000000"},
    {"br_type=EAN_8 value=9638507", "EAN-8:96385074"},
    {"br_type=UPCA value=03600029145", "EAN-13:0036000291452"},
    {"br_type=UPCE value=0123456", "EAN-13:0012345000065"},
    {"br_type=ITF value=1540014128876", "I2/5:15400141288763"},
    {"br_type=128 value=\"PJJ 123-C\"", "CODE-128:PJJ 123-C"},
    {"br_type=KAREKOD value=\"HTTP://QOR/1 a\"", "QR-Code:HTTP://QOR/1 a"},
    {"br_type=KAREKOD value=\"\xCA\xEE\xE4\"", "QR-Code:Код"}};

// A box of 100 by 40 mm, or 40 by 100, where the symbol stands upright.
std::string item(const std::string& symbol, int orientation, const std::string& more = "") {
  const bool turned = orientation % 2 == 1;
  const bool square = symbol.find("KAREKOD") != std::string::npos;
  return "<barcode " + symbol + " orient=" + std::to_string(orientation) +
         " left=20 top=30 right=" + (turned || square ? "60" : "120") +
         " bottom=" + (turned && !square ? "130" : "70") + " " + more + "/>\r\n\f";
}

TEST(Symbols, areReadBackInEveryOrientation) {
  const std::string above = "value_show=1 value_pos=0 manual_height=1 margin_top=99";
  for (const auto& [symbol, read] : kSymbols) {
    const TemporaryDirectory directory;
    std::string report;
    std::string all;
    std::vector<std::string> command = {"zbarimg", "-q"};
    for (int orientation = 0; orientation < 4; ++orientation) {
      for (const std::string& keys : {std::string(), std::string("value_show=1"), above}) {
        report += item(symbol, orientation, keys);
        all += read + "\n";
        command.push_back(directory.path("r(" + std::to_string(command.size() - 1) + ").png"));
      }
    }
    directory.write("r.txt", report);
    runViewer({"-f", "r.txt", "-codepage", "1251", "-export", "r.png"}, in(directory));
    EXPECT_EQ(run(command).output, all);
  }
}

TEST(Symbols, areLaidOutByTheirKeys) {
  // Module, step, start, length of the bars, row of the text. The box goes from 1000,2000 to
  // 2900,3000; EAN-13 has 113 modules with its quiet zones; 0.33 mm are 18.7087 twips.
  const std::pair<const char*, const char*> rows[] = {
      {"", "16 16 1000,2000 1000 0"},
      {"size_set=0 size_factor=50 value_show=1", "9.35433 9 1421,2000 923 77"},
      {"size_set=0 size_factor=200 value_show=1", "37.4173 37 1000,2000 689 311"},
      {"manual_width=1 line_width=10", "10 10 1385,2000 1000 0"},
      {"manual_height=1 margin_top=100 margin_bottom=50", "16 16 1000,2050 950 0"},
      {"value_show=1 value_pos=0", "16 16 1000,2133 867 133"},
      {"value_show=1 value_font=1 font_height=4", "16 16 1000,2000 774 226"},
      {"orient=1 value_show=1 value_pos=0", "8 -8 1066,3000 1834 66"},
      {"orient=2 manual_height=1 margin_top=30", "16 -16 2900,2970 -970 0"},
      {"orient=3", "8 8 2900,2000 -1900 0"}};
  for (const auto& [keys, expected] : rows) {
    TestReport report("<barcode " + std::string(keys) + " value=590123412345/>");
    auto& code = dynamic_cast<VData_BarCode&>(*report.page().FirstLine->FirstItem);
    const SymbolLayout layout = layOutSymbol(code, {1000, 2000, 2900, 3000}, 113);
    std::ostringstream text;
    text << layout.module << " " << layout.step << " " << layout.start.x << "," << layout.start.y
         << " " << layout.barLength << " " << layout.textRow;
    EXPECT_EQ(text.str(), expected) << keys;
  }
}

TEST(Symbols, guardsReachIntoTheTextBelowOnly) {
  const std::string box = "<barcode value=590123412345 left=0 top=0 right=33.5 bottom=20 ";
  const std::string below = drawn(box + "value_show=1/>");
  // 1899 twips give modules of 16; the text row is 133 high, so bars end at 1000 and guards 80
  // later.
  EXPECT_EQ(countOf(",1000 pen", below), 24U);
  EXPECT_EQ(countOf(",1080 pen", below), 6U);
  EXPECT_EQ(countOf(",1133 pen", drawn(box + "value_show=1 value_pos=0/>")), 30U);
  EXPECT_EQ(countOf(",1133 pen", drawn(box + "/>")), 30U);
  // The leading digit stands one width of the last label before the first guard.
  EXPECT_EQ(below.substr(0, below.find(" \"5\"")), "text 176,1008");
}

// The box is 1899 by 1133 twips. Code 39 has 54 modules of 35 or, turned, 20 of them here, and "A"
// stands on 23 to 35; half a character is 141.7. Code 128 has 75 modules of 25.
TEST(Symbols, labelsStandUnderTheirBars) {
  const std::string place =
      " left=0 top=0 right=33.5 bottom=20 value_show=1 font_width=5 font_name=Arial fc=Red "
      "brc=Navy ";
  const std::pair<const char*, const char*> rows[] = {
      {"br_type=39 value=A", "873,859 \"A\" Arial 291x283 weight 400"},
      {"br_type=39 value=A value_pos=0", "873,0 \"A\" Arial 291x283 weight 400"},
      {"br_type=39 value=A orient=1", "1743,694 \"A\" Arial 166x283 weight 400 turned 900"},
      {"br_type=39 value=A orient=2", "1025,273 \"A\" Arial 291x283 weight 400 turned 1800"},
      {"br_type=39 value=A orient=3", "156,438 \"A\" Arial 166x283 weight 400 turned 2700"},
      {"br_type=128 value=AB fb=1", "275,937 \"AB\" Arial 208x-662 weight 700"}};
  for (const auto& [keys, label] : rows) {
    const std::string record = drawn("<barcode " + place + keys + "/>");
    EXPECT_NE(record.find("text " + std::string(label) + " color ff\n"), std::string::npos)
        << record;
    EXPECT_EQ(countOf(" brush 1 800000\n", record), countOf("rectangle", record));
  }
}

// With its quiet zone the code has 23 modules a side, here of 7 by 5 twips.
TEST(Symbols, qrCodesFillTheirBox) {
  const std::string record =
      drawn("<barcode br_type=KAREKOD value=A left=10 top=5 right=12.84 bottom=7.04/>");
  EXPECT_TRUE(record.starts_with("rectangle 566,283 727,399 ")) << record;
  // The corner's frame is seven modules wide.
  EXPECT_NE(record.find("\nrectangle 573,288 622,293 "), std::string::npos) << record;
}

TEST(Symbols, ofAnySizeDrawSomethingOrNothing) {
  for (const char* keys : {"manual_width=1 line_width=0", "manual_width=1 line_width=1000000",
                           "size_set=0 size_factor=0", "size_set=0 size_factor=100000000"})
    drawn("<barcode value=590123412345 value_show=1 right=60 bottom=30 " + std::string(keys) +
          "/>");
}

}  // namespace
}  // namespace qor::test
