// Spreadsheets of the program, as independent readers see them.
#include "export/export_formats.h"
#include "support/exporting.h"

namespace qor::test {
namespace {

using Lines = std::vector<std::string>;

class SheetExport : public Exporting {
 protected:
  Lines read(const std::string& file) const { return readBy("sheet/read_sheets.py", file); }

  // Places and values of texts.
  Lines textsOf(const std::string& file) const {
    Lines texts;
    for (const std::string& line : read(file)) {
      const auto end = line.rfind(" General");
      if (end != std::string::npos) texts.push_back(line.substr(0, end));
    }
    return texts;
  }

  // Lines of the cells, which both formats have the same; widths and heights as well if asked.
  Lines cellsOf(const std::string& report, const std::string& codePage = "1252",
                bool sizes = false) {
    Lines cells[2];
    for (const bool old : {false, true}) {
      const std::string target = old ? "r.xls" : "r.xlsx";
      expectTold(exportTo(target, report, {"-codepage", codePage}), "");
      cells[old] = read(target);
    }
    for (const std::string left : {"picture", sizes ? "" : "width", sizes ? "" : "height"})
      for (Lines& lines : cells)
        std::erase_if(lines, [&left](const auto& line) { return wordsOf(line)[1] == left; });
    EXPECT_EQ(cells[0], cells[1]);
    return cells[0];
  }

  // Texts, one a line, and what stands in their cells of the first column.
  using Column = std::vector<std::pair<std::string, std::string>>;
  void expectColumn(const Column& rows, const std::string& codePage, const std::string& font = "") {
    std::string report;
    Lines expected;
    for (const auto& [text, cell] : rows) {
      report += text + "\r\n";
      expected.push_back("Sheet1 A" + std::to_string(expected.size() + 1) + " " + cell + font);
    }
    EXPECT_EQ(cellsOf(report, codePage), expected);
  }
};

const std::string kCourier = " Courier New 10 000000";

TEST_F(SheetExport, makesValuesOfTexts) {
  Column rows = rowsOf(
      "  1,234.50 => 1234.5 #,##0.00|1234 => '1234' General| 1234 => 1234 #,##0|"
      " 1 2 3, => 123 #,##0| 12. => 12 #,##0| 1,234 => 1234 #,##0.000|"
      " 1.234,56 => 1.23456 #,##0.000000| .5 => 0.5 #,##0.0| 1.1234567 => 1.1234567 #,##0.0|"
      " 1,234,567 => 1234567 #,##0.0| 1.2.3,4 => ' 1.2.3,4' General| . , => ' . ,' General|"
      " -5 => ' -5' General|  007 => 7 #,##0| 4294967296 => 4294967296 #,##0|"
      " 9007199254740993 => ' 9007199254740993' General|31/12/2024 => 45657 dd/mm/yyyy|"
      "  1/ 2/2024  => '  1/ 2/2024' General| 01/ 2/2024  => 45323 dd/mm/yyyy|"
      "28/02/1900 => 59 dd/mm/yyyy|01/03/1900 => 61 dd/mm/yyyy|31/12/1899 => '31/12/1899' General|"
      "29/02/2023 => '29/02/2023' General|99/99/9999 => '99/99/9999' General|"
      "31/12-2024 => '31/12-2024' General|31-12/2024 => '31-12/2024' General|"
      "a1/b2/2024 => 'a1/b2/2024' General|  two  words   => '  two  words' General|"
      "=1+1 => '=1+1' General|<&>\"_x_ \x80 _x0041_ => '<&>\"_x_ € _x0041_' General|"
      "     => ' ' General| => ' ' General",
      " => ");
  const std::string number = " 1" + std::string(299, '2');
  rows.emplace_back(number, "'" + number + "' General");
  rows.emplace_back(std::string(32767, '\x80'), "'" + times(32767, "€") + "' General");
  expectColumn(rows, "1252", kCourier);
}

// Places of items, and how they move on what follows.
TEST_F(SheetExport, putsItemsIntoTheirCells) {
  const std::pair<std::string, Lines> rows[] = {
      {"a<b>b<b/>c", {"A1 'a'", "B1 'b'", "C1 'c'"}},
      {"a\tb", {"A1 'a'", "B1 'b'"}},
      {"<text left=31 top=0 tc=a/>b<text left=33 top=13 tc=c/>d",
       {"C1 'a'", "D1 'b'", "D4 'c'", "E4 'd'"}},
      {"<text left=32 top=9 tc=\"  \"/>a", {"A1 ' '", "B1 'a'"}},
      {"<shape left=50 top=50 right=60 bottom=60/>a", {"A1 ' '", "B1 'a'"}},
      {"<img image=\"none.png\" left=40 top=20 right=60 bottom=30/>a", {"A1 ' '", "F6 'a'"}},
      {"<img image=\"none.png\"/>a", {"A1 ' '", "D2 'a'"}},
      {"<barcode br_type=39 value=A left=24.4 top=9 right=70 bottom=30/>a", {"A1 ' '", "E4 'a'"}},
      {"<barcode br_type=39 value=A left=40 top=11 right=70 bottom=30/>a", {"A1 ' '", "G4 'a'"}},
      {"a\r\n<text left=1 top=1 tc=under/><text left=1 top=1 tc=over/>", {"A1 'a'", "B2 'over'"}},
      {"<text memo left=1 top=1 tc=\"\1\n\2\x1Fone\r\ntwo\t3 \t\" />", {"B2 '\\none\\ntwo\\t3'"}},
      {"<text left=390 top=0 tc=a/><text left=4079 top=0 tc=z/>", {"Z1 'a'", "IV1 'z'"}},
      {"<text left=5 top=1 tc=\"x y\"/>\r\n b <text left=5 top=1 tc=z/>", {"A2 ' b'", "B2 'z'"}},
      {"<text left=-40 top=0 tc=a/>bc", {"A1 'bc'"}},
  };
  std::string report;
  Lines expected;
  for (const auto& [text, cells] : rows) {
    report += text + "\f";
    const auto page = std::to_string(std::count(report.begin(), report.end(), '\f'));
    for (const std::string& cell : cells) expected.push_back("Sheet" + page + " " + cell);
  }
  for (const std::string target : {"r.xlsx", "r.xls"}) {
    expectTold(exportTo(target, report), ": 1 cells or pictures are outside");
    EXPECT_EQ(textsOf(target), expected) << target;
  }
}

// Which colours, weights and sizes texts, whole numbers, decimals and dates take over.
TEST_F(SheetExport, keepsTheFontsOfCells) {
  const auto in = [](const std::string& colour, const std::string& text) {
    return "<font fcHEX=0x" + colour + ">" + text + "<font/>";
  };
  Column rows = {
      {in("0000FF", "red"), "'red' General Courier New 10 000000"},
      {in("0000FF", " 5"), "5 #,##0 Courier New 10 000000"},
      {in("0000FF", " 5.5"), "5.5 #,##0.0 Courier New 10 FF0000"},
      {in("0000FF", "01/01/2000"), "36526 dd/mm/yyyy Courier New 10 FF0000"},
      {"<barcode br_type=39 value=A left=1 top=1 right=70 bottom=12 fcHEX=0xFF0000/>",
       "' ' General Courier New 10 000000"},
      {in("123456", " 6.5"), "6.5 #,##0.0 Courier New 10 0000FF"},
      {in("000080", " 1.5"), "1.5 #,##0.00 Courier New 10 993366"},
      {in("000080", " 1.25"), "1.25 #,##0.000 Courier New 10 993366"},
      {in("000080", " 1.125"), "1.125 #,##0.000 Courier New 10 C0C0C0"},
      {in("000080", " 1.0625"), "1.0625 #,##0.0000 Courier New 10 993366"},
      {in("000080", " 1.03125"), "1.03125 #,##0.00000 Courier New 10 993366"},
      {in("000080", " 1.00000001"), "1.00000001 #,##0.00000 Courier New 10 993366"},
      {"<font fn=Arial height=13 fb=1 fi=1>\xC7<font/>", "'╟' General Arial 13 bold italic 000000"},
      {"<font fn=Arial height=13 fb=1>x<font/>", "'x' General Arial 13 bold 000000"},
      {"<font fn=\"\xC7 & face\">x<font/>", "'x' General ╟ & face 10 000000"},
      {"<font fp=600 fi=2 fn=\" \" height=0>x<font/>", "'x' General Courier New 1 000000"},
      {"<font height=9999>x<font/>", "'x' General Courier New 409 000000"},
      {"<h6>x<h6/>", "'x' General Courier New 6 000000"}};
  for (const auto& [colour, shown] :
       rowsOf("000080 993366|FF0000 0000FF|00FFFF FFFF00|008000 008000|FF00FF FF00FF|808080 C0C0C0|"
              "FFFF00 33CCCC|008080 333300|800080 800080|C0C0C0 808080|808000 008080|FFFFFF FFFFFF|"
              "800000 000080|00FF00 99CC00"))
    rows.emplace_back(in(colour, "x"), "'x' General Courier New 10 " + shown);
  expectColumn(rows, "857");
}

// A sheet a page; columns as wide as their texts, and 18 where there is none; rows as high as their
// largest font needs.
TEST_F(SheetExport, givesEachPageASheetAndFitsIt) {
  EXPECT_EQ(
      cellsOf(
          " 12345678901234567890\fab<b>c<b/>\r\n    \240efghi  \f<text left=17 top=5 tc=wide/>\f" +
              std::string(300, 'x') +
              "\f<text top=1 tc=abc/>\f<h1>a<h1/><h2>b<h2/>\r\n<text top=13 height=11 tc=c/>",
          "866", true),
      (Lines{"Sheet1 A1 ' 12345678901234567890' General" + kCourier,
             "Sheet1 width A 20",
             "Sheet2 A1 'ab' General" + kCourier,
             "Sheet2 B1 'c' General Courier New 10 bold 000000",
             "Sheet2 A2 '    аefghi' General" + kCourier,
             "Sheet2 width A 6",
             "Sheet2 width B 1",
             "Sheet3 C3 'wide' General" + kCourier,
             "Sheet3 width A 18",
             "Sheet4 A1 '" + std::string(300, 'x') + "' General" + kCourier,
             "Sheet4 width A 255",
             "Sheet5 A2 'abc' General" + kCourier,
             "Sheet5 width A 3",
             "Sheet6 A1 'a' General Courier New 24 000000",
             "Sheet6 B1 'b' General Courier New 18 000000",
             "Sheet6 A4 'c' General Courier New 11 000000",
             "Sheet6 width A 1",
             "Sheet6 width B 1",
             "Sheet6 height 1 30",
             "Sheet6 height 4 13.75"}));
}

TEST_F(SheetExport, hangsPicturesFromCells) {
  // Too large for one record, and as large as each other.
  for (const std::string colour : {"red", "lime"})
    run({"convert-im6.q16", "-size", "100x60", "-define", "png:compression-level=0", "xc:" + colour,
         "PNG24:" + place_.path(colour + ".png")});
  run({"convert-im6.q16", "-size", "30x15", "xc:none", place_.path("q.gif")});
  place_.write("broken.png", "\x89PNG and nothing else");
  const std::string report =
      "<img image=\"red.png\" left=33 top=10 right=60 bottom=30/>"
      "<img image=\"q.gif\" left=2 top=2 imgSS=2/>\r\n"
      "<img image=\"red.png\" left=50 top=50 right=75.4 bottom=62 imgSS=1/>"
      "<img image=\"red.png\" left=80 top=50 imgSS=3/><img image=\"broken.png\" left=1 top=1/>"
      "<img image=\"red.png\" imgn=3 left=1 top=1/><img image=\"red.png\" left=1 "
      "top=999999999/>\r\n"
      "<barcode br_type=39 value=\"A1\" left=24 top=90 right=84 bottom=102/>\f"
      "<img image=\"lime.png\" left=80 top=5/>\r\n\r\n<h1>x<h1/>\fx\r\n";
  // Columns of 18 characters have 126 dots, others 64, and rows 17, with letters of 24 points 40.
  const std::pair<const char*, Lines> files[] = {
      {"r.xlsx",
       {"Sheet1 picture D4 100x60 PNG 100x60 FF0000", "Sheet1 picture B2 30x15 PNG 30x15 FFFFFF",
        "Sheet1 picture E13 72x34 PNG 100x60 FF0000",
        "Sheet1 picture C22 226x45 JPEG 226x45 FFFFFF",
        "Sheet2 picture F3 100x60 PNG 100x60 00FF00"}},
      {"r.xls",
       {"Sheet1 picture D4 to D7 812 135 PNG 100x60 FF0000",
        "Sheet1 picture B2 to B2 243 225 PNG 30x15 FFFFFF",
        "Sheet1 picture E13 to E15 585 0 PNG 100x60 FF0000",
        "Sheet1 picture C22 to D24 812 165 JPEG 226x45 FFFFFF",
        "Sheet2 picture F3 to G5 576 45 PNG 100x60 00FF00"}}};
  for (const auto& [target, pictures] : files) {
    expectTold(exportTo(target, report), ": 1 cells or pictures are outside");
    Lines found = read(target);
    std::erase_if(found, [](const auto& line) { return wordsOf(line)[1] != "picture"; });
    EXPECT_EQ(found, pictures) << target;
    EXPECT_TRUE(place_.has("r_barcode_A1_24_90.jpg"));
  }
}

// What one sheet can't hold. The row before a further sheet stands in both.
TEST_F(SheetExport, goesOnInFurtherSheets) {
  std::string report;
  for (int line = 1; line <= 131080; ++line) report += std::to_string(line) + "\r\n";
  const auto expectCells = [](const Lines& all, const Lines& cells) {
    for (const std::string& cell : cells)
      EXPECT_EQ(std::count(all.begin(), all.end(), cell), 1) << cell;
  };
  for (const std::string target : {"r.xlsx", "r.xls"}) {
    expectTold(exportTo(target, report), "");
    const Lines lines = textsOf(target);
    expectCells(lines, {"Sheet1 A65536 '65536'", "Sheet2 A1 '65537'", "Sheet2 A65536 '131072'",
                        "Sheet3 A65536 '131072'", "Sheet3 A1 '131073'", "Sheet3 A8 '131080'"});
    EXPECT_EQ(lines.size(), 131081U);
  }
  const std::string upTo65539 = report.substr(0, report.find("\r\n65540"));
  expectTold(exportTo("r.xlsx", upTo65539 + "\fa\r\nb"),
             ": 2 cells below the last row are replaced");
  // A page behind the first one goes on at the top of its own sheet.
  expectTold(exportTo("r.xlsx", "1\f" + upTo65539), ": 3 cells below the last row");
  expectCells(textsOf("r.xlsx"), {"Sheet2 A1 '65537'", "Sheet2 A3 '65539'", "Sheet2 A4 '4'"});
}

// All pages on one sheet, as a dialog may ask for it.
TEST_F(SheetExport, putsAllPagesOnOneSheet) {
  TestReport report("A\r\nlonger\fB\f<text left=1 top=1 tc=over/>", 1252);
  report.doc().Settings.Font.LogFont.CharSet = 204;
  for (const std::string target : {"all.xlsx", "all.XLS", "all.Csv"}) {
    ExportTask task = {report.doc(), place_.path(target), runOptions()};
    task.mode = PageMode::sheets;
    task.options.CsvSeparator = '|';
    runExport(*formatOf("r.xls"), task);
    const std::string look = " General Courier New 10 000000 204";
    if (target == "all.Csv") continue;
    EXPECT_EQ(read(target),
              (Lines{"Sheet1 A1 'A'" + look, "Sheet1 A2 'longer'" + look, "Sheet1 B2 'over'" + look,
                     "Sheet1 A3 'B'" + look, "Sheet1 width A 6"}));
  }
  EXPECT_EQ(place_.read("all.Csv"), "\"A\"|\r\n\"longer\"|\r\n\"B\"|\r\n\"over\"|\r\n");
}

TEST_F(SheetExport, writesFieldsInTheBytesOfTheReport) {
  expectTold(exportTo("r.csv", "A \xE7<b>\"q\"<b/>\r\n 1,5\tx\f<shape left=1/>\r\n\r\nb",
                      {"-codepage", "857"}),
             "");
  EXPECT_EQ(place_.read("r.csv"),
            "\"A \xE7\";\"\"q\"\";\r\n\" 1,5\";\"x\";\r\n\f\r\n\r\n\"\";\r\n\"b\";\r\n\f\r\n");
}

// Anything may stand in a report: the file can be read, or the old one stays.
TEST_F(SheetExport, survivesWhatReportsHold) {
  std::string fonts;
  for (int i = 1; i < 900; ++i)
    fonts += "<font height=" + std::to_string(i % 400 + 1) + " fn=f" + std::to_string(i) +
             ">x<font/>\r\n";
  const std::tuple<std::string, const char*, const char*> rows[] = {
      {fonts, ": 461 fonts are left out", ": 461 fonts are left out"},
      {"<text left=999999999 top=1 tc=a/><text left=1 top=294908 tc=b/><text left=1 top=294907 "
       "tc=c/>",
       ": 2 cells or pictures", ": 2 cells or pictures are outside"},
      {"<text left=262127 top=1 tc=a/>", "", ": 1 cells or pictures are outside"},
      {std::string(32768, 'x'), ": 1 texts are cut", ": 1 texts are cut"},
      {times(400, "<b>x<b/>"), "", ": 144 cells or pictures are outside"}};
  for (const auto& [report, told, toldOld] : rows) {
    expectTold(exportTo("r.xlsx", report + "\r\n"), told);
    read("r.xlsx");
    expectTold(exportTo("r.xls", report + "\r\n"), toldOld);
    read("r.xls");
  }
  for (const char* target : {"r.xlsx", "r.xls", "r.csv"}) {
    place_.write(target, "old");
    expectTold(exportTo(target, std::string(50000, 'y') + "\r\n", {}, {{}, {}, 2000}),
               "File too large");
    EXPECT_EQ(place_.read(target), "old");
  }
  expectTold(exportTo("none/r.xls", "x\r\n"), "No such file");
}

}  // namespace
}  // namespace qor::test
