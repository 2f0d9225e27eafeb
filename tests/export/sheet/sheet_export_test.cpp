// Spreadsheets of the program, as independent readers see them.
#include <algorithm>
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

#include "export/export_formats.h"
#include "support/program.h"
#include "support/report_reader.h"
#include "support/rows.h"

namespace qor::test {
namespace {

using Lines = std::vector<std::string>;

class SheetExport : public testing::Test {
 protected:
  Outcome exportTo(const std::string& target, const std::string& report,
                   const std::string& codePage = "1252", unsigned long limit = 0) {
    place_.write("r.txt", report);
    return runViewer({"-f", "r.txt", "-codepage", codePage, "-export", target},
                     {place_.path(), {}, limit});
  }

  Lines read(const std::string& file) const {
    const Outcome outcome =
        run({"/usr/bin/python3", QOR_SOURCE_DIR "/tests/export/sheet/read_sheets.py",
             place_.path(file)},
            {{}, {{"PYTHONIOENCODING", "utf-8"}}, 0});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.errors;
    return linesOf(outcome.output);
  }

  // Lines of the cells, which both formats have the same; widths and pictures as well if asked.
  Lines cellsOf(const std::string& report, const std::string& codePage = "1252", bool all = false) {
    const auto isCell = [](const std::string& line) {
      return wordsOf(line)[1] != "width" && wordsOf(line)[1] != "picture";
    };
    Lines cells[2];
    for (const bool old : {false, true}) {
      const std::string target = old ? "r.xls" : "r.xlsx";
      expectTold(exportTo(target, report, codePage), "");
      cells[old] = read(target);
      if (!all) std::erase_if(cells[old], [&](const std::string& line) { return !isCell(line); });
      std::erase_if(cells[old], [&](const std::string& line) {
        return all && wordsOf(line)[1] == "picture" && old;
      });
    }
    Lines shared = cells[0];
    std::erase_if(shared, [](const std::string& line) { return wordsOf(line)[1] == "picture"; });
    EXPECT_EQ(shared, cells[1]);
    return cells[0];
  }

  TemporaryDirectory place_;
};

const std::string kCourier = " Courier New 10 000000";

// One text a line, in the first column.
TEST_F(SheetExport, makesValuesOfTexts) {
  const std::pair<std::string, std::string> rows[] = {
      {"  1,234.50", "1234.5 #,##0.00"},
      {"1234", "'1234' General"},
      {" 1234", "1234 #,##0"},
      {" 1 2 3,", "123 #,##0"},
      {" 12.", "12 #,##0"},
      {" 1,234", "1234 #,##0.000"},
      {" 1.234,56", "1.23456 #,##0.000000"},
      {" .5", "0.5 #,##0.0"},
      {" 1.1234567", "1.1234567 #,##0.0"},
      {" 1.2.3,4", "' 1.2.3,4' General"},
      {" . ,", "' . ,' General"},
      {" -5", "' -5' General"},
      {"  007", "7 #,##0"},
      {" 4294967296", "4294967296 #,##0"},
      {" 9007199254740993", "' 9007199254740993' General"},
      {" 1" + std::string(299, '2'), "' 1" + std::string(299, '2') + "' General"},
      {"31/12/2024", "45657 dd/mm/yyyy"},
      {"  1/ 2/2024 ", "'  1/ 2/2024' General"},
      {" 01/ 2/2024 ", "45323 dd/mm/yyyy"},
      {"28/02/1900", "59 dd/mm/yyyy"},
      {"01/03/1900", "61 dd/mm/yyyy"},
      {"31/12/1899", "'31/12/1899' General"},
      {"29/02/2023", "'29/02/2023' General"},
      {"99/99/9999", "'99/99/9999' General"},
      {"31-12-2024", "'31-12-2024' General"},
      {"a1/b2/2024", "'a1/b2/2024' General"},
      {"  two  words  ", "'  two  words' General"},
      {"=1+1", "'=1+1' General"},
      {"<&>\"_x_ \x80", "'<&>\"_x_ €' General"},
      {"    ", "' ' General"},
      {"", "' ' General"}};
  std::string report;
  Lines expected;
  for (const auto& [text, cell] : rows) {
    report += text + "\r\n";
    expected.push_back("Sheet1 A" + std::to_string(expected.size() + 1) + " " + cell + kCourier);
  }
  EXPECT_EQ(cellsOf(report), expected);
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
      {"<barcode br_type=39 value=\"A\" left=24 top=9 right=70 bottom=30/>a", {"A1 ' '", "E4 'a'"}},
      {"<barcode br_type=39 value=\"A\" left=40 top=11 right=70 bottom=30/>a",
       {"A1 ' '", "G4 'a'"}},
      {"a\r\n<text left=1 top=1 tc=over/>", {"A1 'a'", "B2 'over'"}},
      {"<text memo left=1 top=1 tc=\"one\ntwo \t\" />", {"B2 'one\\ntwo'"}},
      {"<text left=5 top=1 tc=\"x y\"/>\r\n b <text left=5 top=1 tc=z/>", {"A2 ' b'", "B2 'z'"}},
      {"<text left=-40 top=0 tc=a/>bc", {"A1 'bc'"}},
  };
  // A page for each.
  std::string report;
  Lines expected;
  int page = 0;
  for (const auto& [text, cells] : rows) {
    report += text + "\f";
    ++page;
    for (const std::string& cell : cells)
      expected.push_back("Sheet" + std::to_string(page) + " " + cell);
  }
  for (const std::string target : {"r.xlsx", "r.xls"}) {
    expectTold(exportTo(target, report), "1 cells or pictures are outside");
    Lines found;
    for (const std::string& line : read(target)) {
      const auto end = line.rfind(" General");
      if (end != std::string::npos) found.push_back(line.substr(0, end));
    }
    EXPECT_EQ(found, expected) << target;
  }
}

// Which colours, weights and sizes texts, whole numbers, decimals and dates take over.
TEST_F(SheetExport, keepsTheFontsOfCells) {
  const auto in = [](const std::string& colour, const std::string& text) {
    return "<font fcHEX=0x" + colour + ">" + text + "<font/>\r\n";
  };
  const std::pair<std::string, std::string> rows[] = {
      {in("0000FF", "red"), "'red' General Courier New 10 000000"},
      {in("0000FF", " 5"), "5 #,##0 Courier New 10 000000"},
      {in("0000FF", " 5.5"), "5.5 #,##0.0 Courier New 10 FF0000"},
      {in("0000FF", "01/01/2000"), "36526 dd/mm/yyyy Courier New 10 FF0000"},
      {in("123456", " 6.5"), "6.5 #,##0.0 Courier New 10 FF0000"},
      {in("FF0000", "blue"), "'blue' General Courier New 10 0000FF"},
      {in("000080", " 1.5"), "1.5 #,##0.00 Courier New 10 993366"},
      {in("000080", " 1.25"), "1.25 #,##0.000 Courier New 10 993366"},
      {in("000080", " 1.125"), "1.125 #,##0.000 Courier New 10 C0C0C0"},
      {in("000080", " 1.0625"), "1.0625 #,##0.0000 Courier New 10 993366"},
      {in("000080", " 1.00000001"), "1.00000001 #,##0.0000 Courier New 10 993366"},
      {in("000080", "plum"), "'plum' General Courier New 10 993366"},
      {in("00FFFF", "yellow"), "'yellow' General Courier New 10 FFFF00"},
      {in("008000", "green"), "'green' General Courier New 10 008000"},
      {in("FF00FF", "magenta"), "'magenta' General Courier New 10 FF00FF"},
      {in("808080", "grey"), "'grey' General Courier New 10 C0C0C0"},
      {in("FFFF00", "aqua"), "'aqua' General Courier New 10 33CCCC"},
      {in("008080", "olive"), "'olive' General Courier New 10 333300"},
      {in("800080", "purple"), "'purple' General Courier New 10 800080"},
      {in("C0C0C0", "silver"), "'silver' General Courier New 10 808080"},
      {in("808000", "teal"), "'teal' General Courier New 10 008080"},
      {in("FFFFFF", "white"), "'white' General Courier New 10 FFFFFF"},
      {in("800000", "navy"), "'navy' General Courier New 10 000080"},
      {in("00FF00", "lime"), "'lime' General Courier New 10 99CC00"},
      {"<font fn=Arial height=13 fb=1 fi=1>\xC7<font/>\r\n",
       "'Ç' General Arial 13 bold italic 000000"},
      {"<font fn=\"\xC7 face\">x<font/>\r\n", "'x' General Ç face 10 000000"},
      {"<font fp=600>x<font/>\r\n", "'x' General Courier New 10 000000"},
      {"<font height=9999>x<font/>\r\n", "'x' General Courier New 409 000000"},
      {"<h6>x<h6/>\r\n", "'x' General Courier New 6 000000"}};
  std::string report;
  Lines expected;
  for (const auto& [line, cell] : rows) {
    report += line;
    expected.push_back("Sheet1 A" + std::to_string(expected.size() + 1) + " " + cell);
  }
  EXPECT_EQ(cellsOf(report), expected);
}

// A sheet a page; columns as wide as their texts, and 18 where there is none.
TEST_F(SheetExport, givesEachPageASheetAndFitsItsColumns) {
  const Lines lines = cellsOf(
      " 12345678901234567890\fab<b>c<b/>\r\n    \xD8"
      "efghi  \f"
      "<text left=17 top=5 tc=wide/>\f" +
          std::string(300, 'x'),
      "866", true);
  const Lines expected = {"Sheet1 A1 ' 12345678901234567890' General" + kCourier,
                          "Sheet1 width A 20",
                          "Sheet2 A1 'ab' General" + kCourier,
                          "Sheet2 B1 'c' General Courier New 10 bold 000000",
                          "Sheet2 A2 '    ╪efghi' General" + kCourier,
                          "Sheet2 width A 6",
                          "Sheet2 width B 1",
                          "Sheet3 C3 'wide' General" + kCourier,
                          "Sheet3 width A 18",
                          "Sheet4 A1 '" + std::string(300, 'x') + "' General" + kCourier,
                          "Sheet4 width A 255"};
  EXPECT_EQ(lines, expected);
}

TEST_F(SheetExport, hangsPicturesFromCells) {
  run({"convert-im6.q16", "-size", "20x10", "xc:red", place_.path("p.png")});
  run({"convert-im6.q16", "-size", "30x15", "xc:blue", place_.path("q.gif")});
  place_.write("broken.png", "\x89PNG and nothing else");
  const Lines lines = cellsOf(
      "<img image=\"p.png\" left=33 top=10 right=60 bottom=30/>"
      "<img image=\"q.gif\" left=2 top=2 imgSS=2/>\r\n"
      "<img image=\"p.png\" left=50 top=50 right=75.4 bottom=62.7 imgSS=1/>"
      "<img image=\"p.png\" left=80 top=50 imgSS=3/><img image=\"broken.png\" left=1 top=1/>"
      "<img imgn=3 left=1 top=1/>\r\n"
      "<barcode br_type=39 value=\"A1\" left=24 top=90 right=84 bottom=102/>\r\n",
      "1252", true);
  Lines pictures;
  for (const std::string& line : lines) {
    if (wordsOf(line)[1] == "picture") pictures.push_back(line);
  }
  EXPECT_EQ(pictures,
            (Lines{"Sheet1 picture D4 20x10 png 20x10", "Sheet1 picture B2 30x15 png 30x15",
                   "Sheet1 picture E13 72x36 png 20x10", "Sheet1 picture C22 226x45 jpeg 226x45"}));
  // 20 dots are one column of 18 characters, of 126 dots, and a row of 17; 226 are two of them.
  Lines old = read("r.xls");
  std::erase_if(old, [](const std::string& line) { return wordsOf(line)[1] != "picture"; });
  EXPECT_EQ(old, (Lines{"Sheet1 picture D4 to D4 162 150", "Sheet1 picture B2 to B2 243 225",
                        "Sheet1 picture E13 to E15 585 30", "Sheet1 picture C22 to D24 812 165"}));
  const std::string bytes = place_.read("r.xls");
  // Each file once, in the file of the other format, too.
  const std::string png = place_.read("p.png");
  const auto first = bytes.find(png.substr(0, 60));
  EXPECT_NE(first, std::string::npos);
  EXPECT_EQ(bytes.find(png.substr(0, 60), first + 1), std::string::npos);
  expectTold(exportTo("r.xls", "<img image=\"p.png\" left=1 top=999999999/>\r\n"),
             "1 cells or pictures are outside");
}

// What one sheet can't hold. The row before a further sheet stands in both.
TEST_F(SheetExport, goesOnInFurtherSheets) {
  std::string report;
  for (int line = 1; line <= 131080; ++line) report += std::to_string(line) + "\r\n";
  for (const std::string target : {"r.xlsx", "r.xls"}) {
    expectTold(exportTo(target, report), "");
    const Lines lines = read(target);
    const auto has = [&lines](const std::string& start) {
      return std::any_of(lines.begin(), lines.end(), [&start](const std::string& line) {
        return line.starts_with(start + " ");
      });
    };
    for (const char* cell : {"Sheet1 A65536 '65536'", "Sheet2 A1 '65537'", "Sheet2 A65536 '131072'",
                             "Sheet3 A65536 '131072'", "Sheet3 A1 '131073'", "Sheet3 A8 '131080'"})
      EXPECT_TRUE(has(cell)) << cell;
    EXPECT_EQ(std::count_if(lines.begin(), lines.end(),
                            [](const auto& line) { return line.find("' ") != std::string::npos; }),
              131081);
  }
  // A page behind the first one goes on at the top of its own sheet.
  expectTold(exportTo("r.xlsx", "1\f" + report.substr(0, report.find("\r\n65540"))),
             "3 cells below the last row");
  const Lines lines = read("r.xlsx");
  for (const char* start : {"Sheet2 A1 '65537' ", "Sheet2 A3 '65539' ", "Sheet2 A4 '4' "})
    EXPECT_TRUE(std::any_of(lines.begin(), lines.end(), [=](const auto& line) {
      return line.starts_with(start);
    })) << start;
}

// All pages on one sheet, as a dialog may ask for it.
TEST_F(SheetExport, putsAllPagesOnOneSheet) {
  for (const char* target : {"all.xlsx", "all.xls"}) {
    TestReport report("A\r\nlonger\fB\f<text left=1 top=1 tc=over/>", 1252);
    ExportTask task = {report.doc(), place_.path(target), runOptions()};
    task.mode = PageMode::sheets;
    runExport(*formatOf(target), task);
    Lines lines = read(target);
    for (std::string& line : lines) line = line.substr(0, line.find(" General"));
    EXPECT_EQ(lines, (Lines{"Sheet1 A1 'A'", "Sheet1 A2 'longer'", "Sheet1 B2 'over'",
                            "Sheet1 A3 'B'", "Sheet1 width A 6"}));
  }
}

TEST_F(SheetExport, writesFieldsInTheBytesOfTheReport) {
  expectTold(exportTo("r.csv", "A \xE7<b>\"q\"<b/>\r\n 1,5\tx\f<shape left=1/>\r\n\r\nb", "857"),
             "");
  EXPECT_EQ(place_.read("r.csv"),
            "\"A \xE7\";\"\"q\"\";\r\n\" 1,5\";\"x\";\r\n\f\r\n\r\n\"\";\r\n\"b\";\r\n\f\r\n");
}

// Anything may stand in a report: the file can be read, or the old one stays.
TEST_F(SheetExport, survivesWhatReportsHold) {
  const std::string far = "<text left=999999999 top=1 tc=a/>";
  const std::tuple<std::string, const char*, const char*> rows[] = {
      {far + "<text left=1 top=999999999 tc=b/>", "2 cells or pictures are outside",
       "2 cells or pictures are outside"},
      {"<text left=4090 top=1 tc=a/>", "", "1 cells or pictures are outside"},
      {std::string(40000, 'x'), "1 texts are cut", "1 texts are cut"},
      {"<text left=1 top=1 tc=\"a\1\2\x1F"
       "b\"/>",
       "", ""},
      {[] {
         std::string line;
         for (int i = 0; i < 400; ++i) line += "<b>x<b/>";
         return line;
       }(),
       "", "144 cells or pictures are outside"}};
  for (const auto& [report, told, toldOld] : rows) {
    expectTold(exportTo("r.xlsx", report + "\r\n"), told);
    read("r.xlsx");
    expectTold(exportTo("r.xls", report + "\r\n"), toldOld);
    read("r.xls");
  }
  std::string fonts;
  for (int i = 1; i < 900; ++i)
    fonts += "<font height=" + std::to_string(i % 400 + 1) + " fn=f" + std::to_string(i) +
             ">x<font/>\r\n";
  EXPECT_EQ(cellsOf(fonts).size(), 899U);
  for (const char* target : {"r.xlsx", "r.xls", "r.csv"}) {
    place_.write(target, "old");
    expectTold(exportTo(target, std::string(50000, 'y') + "\r\n", "1252", 2000), "File too large");
    EXPECT_EQ(place_.read(target), "old");
  }
  expectTold(exportTo("none/r.xls", "x\r\n"), "No such file");
}

}  // namespace
}  // namespace qor::test
