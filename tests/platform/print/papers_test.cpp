// Papers: numbers, names and sizes.
#include "platform/print/paper_table.h"
#include "platform/print/printer.h"
#include "support/test.h"

namespace qor::test {
namespace {

TEST(Papers, areKnownByNameTurnAndSize) {
  Queue queue;
  const MediaSize a4 = {21000, 29700};
  queue.media = {{"iso_a4_210x297mm", a4, {}},
                 {"iso_a4_210x297mm", {29700, 21000}, {}},
                 {"na_ledger_11x17in", {43180, 27940}, {}},
                 {"na_ledger_11x17in", {27940, 43180}, {}},
                 {"om_page_148x210mm", {14801, 20999}, {}},
                 {"om_a4_210x297mm", a4, {}},
                 {"om_a5_149x210mm", {14900, 21000}, {}}};
  std::string names;
  for (const Paper& paper : printerOf(queue).papers)
    names += paper.number > kUserPaper ? paper.name + " " : std::to_string(paper.number) + " ";
  EXPECT_EQ(names, "9 77 4 3 11 om_a4_210x297mm om_a5_149x210mm ");
}

// The sheets of the common numbers as Windows has them, millimetres and inches.
TEST(PaperTable, hasTheSheetsOfWindows) {
  for (const auto& [number, size] :
       rowsOf("8 297x420mm|9 210x297mm|10 210x297mm|11 148x210mm|12 257x364mm|13 182x257mm|"
              "27 110x220mm|28 162x229mm|29 324x458mm|30 229x324mm|31 114x162mm|32 114x229mm|"
              "33 250x353mm|34 176x250mm|35 125x176mm|36 110x230mm|42 250x353mm|43 100x148mm|"
              "47 220x220mm|53 235.5x322.3mm|55 210x297mm|57 227x356mm|58 305x487mm|60 210x330mm|"
              "61 148x210mm|62 182x257mm|63 322x445mm|64 174x235mm|65 201x276mm|66 420x594mm|"
              "67 297x420mm|69 148x200mm|70 105x148mm|71 240x332mm|72 216x277mm|73 120x235mm|"
              "74 90x205mm|76 420x297mm|77 297x210mm|88 128x182mm|1 8.5x11in|3 11x17in|4 17x11in|"
              "5 8.5x14in|6 5.5x8.5in|7 7.25x10.5in|14 8.5x13in|16 10x14in|17 11x17in|18 8.5x11in|"
              "19 3.875x8.875in|20 4.125x9.5in|21 4.5x10.375in|22 4.75x11in|23 5x11.5in|24 17x22in|"
              "25 22x34in|26 34x44in|37 3.875x7.5in|38 3.625x6.5in|39 14.875x11in|40 8.5x12in|"
              "41 8.5x13in|44 9x11in|45 10x11in|46 15x11in|50 9.5x12in|51 9.5x15in|52 11.69x18in|"
              "59 8.5x12.69in|75 11x8.5in")) {
    const auto row = std::ranges::find(paperTable(), std::stoi(number), &PaperRow::number);
    ASSERT_NE(row, paperTable().end()) << number;
    EXPECT_EQ(sizeOf(*row), sizeOfMedia("windows_" + size)) << number;
  }
  for (const PaperRow& row : paperTable()) {
    EXPECT_TRUE(sizeOfMedia(row.media)) << row.media;
    EXPECT_TRUE(row.turned || row.name.find("Rotated") == std::string_view::npos) << row.name;
  }
  for (const char* name : {"", "iso_a4", "custom_max_15x-490.-931in", "a_1x2", "a_x2mm", "a_0x1mm",
                           "a_1e9x1mm", "a_nanx1mm", "a_1x2mm3"})
    EXPECT_FALSE(sizeOfMedia(name)) << name;
  EXPECT_EQ(sizeOfMedia("na_letter_8.5x11in"), (MediaSize{21590, 27940}));
}

}  // namespace
}  // namespace qor::test
