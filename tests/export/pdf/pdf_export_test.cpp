// PDF documents, made by the program and read by others.
#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

#include "export/exporters.h"
#include "support/image_magick.h"
#include "support/pdf_reader.h"
#include "support/program.h"
#include "support/report_reader.h"
#include "support/rows.h"

namespace qor::test {
namespace {

namespace fs = std::filesystem;

const std::string kSamples = std::string(QOR_SOURCE_DIR) + "/samples";

class PdfExport : public testing::Test {
 protected:
  Outcome exportReport(const std::string& report, const std::string& codePage = "1254",
                       unsigned long limit = 0) {
    directory_.write("r.txt", report);
    return runViewer({"-f", "r.txt", "-codepage", codePage, "-caption", "T", "-export", "r.pdf"},
                     {directory_.path(), {{"SOURCE_DATE_EPOCH", "86400"}}, limit});
  }

  // The operators of all pages, each page between "page" lines, as qpdf unpacks them.
  std::string operators(const std::string& report, const std::string& codePage = "1254") {
    expectTold(exportReport(report, codePage), "");
    run({"qpdf", "--qdf", "--object-streams=disable", directory_.path("r.pdf"),
         directory_.path("q.pdf")});
    const std::string file = directory_.read("q.pdf");
    std::string pages;
    for (auto page = file.find("%% Contents for page"); page != std::string::npos;
         page = file.find("%% Contents for page", page + 1)) {
      const auto first = file.find("stream\n", page) + 7;
      pages += (pages.empty() ? "" : "page\n") +
               file.substr(first, file.find("endstream", first) - first);
    }
    return pages;
  }

  // The same report, by a program that stands elsewhere.
  Outcome exportByCopy(const TemporaryDirectory& program, const char* option = "") {
    for (const char* name : {"qorutlview", "qor_harfbuzz.so"})
      fs::copy_file(fs::path(QOR_PROGRAM).parent_path() / name, program.path(name));
    return run({program.path("qorutlview"), "-f", "r.txt", "-codepage", "1254", option, "-export",
                "r.pdf"},
               {directory_.path(), {}, 0});
  }

  TemporaryDirectory directory_;
  ImageMagick magick_;
};

// With "*" for the place of an item, "#" for its box; "@" for the start of a text in the usual
// font,
// "%" for the rectangle of the box, ";" for the end of a line.
std::string expanded(std::string text) {
  for (const auto& [mark, words] : {std::pair{'*', "left=10 top=20"},
                                    {'#', "left=10 top=20 right=30 bottom=40"},
                                    {'@', "BT;/F0 10 Tf;"},
                                    {'%', "28 786 57 -57 re;S;"}})
    for (auto at = text.find(mark); at != std::string::npos; at = text.find(mark, at))
      text.replace(at, 1, words);
  std::ranges::replace(text, ';', '\n');
  return text;
}

// What a report's lines become, worked out by hand: 1 mm is 56.69 twips and a point 20, baselines
// of plain lines are 11 points apart, the page is 842 points high.
TEST_F(PdfExport, putsEachKindOfRecordWhereTheArithmeticSays) {
  const std::string turn =
      "q;1.000000 0.000000 0.000000 1.000000 28.3 775.35 cm;"
      "0.000000 1.000000 -1.000000 0.000000 0 0 cm;";
  const std::pair<const char*, std::string> rows[] = {
      {"A\r\nB\r\nC(\\)\r\n", "@0 831 Td;(A)Tj;11 TL;(B)';(C\\(\\\\\\))';ET;"},
      {"A<font fc=Red>B<font/>C", "@0 831 Td;(A)Tj;1 0 0 rg;(B)Tj;0 0 0 rg;(C)Tj;ET;"},
      {"A\rB\r\n", "@0 831 Td;(A)Tj;0 0 Td;(B)Tj;ET;"},
      // 566 and 1133 twips are 28.3 and 56.65 points; plain text goes to the same spot from then
      // on.
      {"<text * tc=X/>\r\nY\r\n", "@28.3 775.35 Td;(X)Tj;11 TL;(Y)';ET;"},
      {"A<text * tc=X/>", "@0 831 Td;(A)Tj;28.3 -55.65 Td;(X)Tj;ET;"},
      {"<text * o=1 tc=X/>", "TURN@(X)Tj;ET;Q;"},
      {"<text * o=1 fc=Red tc=X/><text * tc=Y/>",
       "TURNBT;1 0 0 rg;/F0 10 Tf;(X)Tj;ET;Q;@28.3 775.35 Td;(Y)Tj;ET;"},
      {"<text * od=-900 tc=X/>", "@28.3 775.35 Td;(X)Tj;ET;"},
      {"<text * fn=Arial height=20 fb=1 fc=Blue tc=X/>",
       "BT;0 0 1 rg;/F0 20 Tf;28.3 765.35 Td;(X)Tj;ET;"},
      // Whole points: 566, 1133, 1700 and 2267 twips are 28, 56, 85 and 113.
      {"<shape # pt=2/>", "28 786 m;85 729 l;S;"},
      {"<shape # sh_type=2 pc=Red/>", "1 0 0 RG;%"},
      {"<shape # sh_type=2 pt=4/><shape # sh_type=2 pt=0/>", "[ 4 3 1 3]0 d;%[]0 d;%"},
      {"<shape # sh_type=2 pt=3/><shape # sh_type=2 pt=5/>", "[ 2 2]0 d;%[ 4 3 1 3 1 3]0 d;%"},
      {"<shape # sh_type=3/><shape # sh_type=4/><shape # sh_type=2 pt=6/>", ";"},
      {"<img # image=\"none.png\" imgSS=1 pc=Red/><img # image=\"none.png\"/>",
       "1 0 0 RG;28.3 728.65 56.7 56.7 re;S;1 1 1 RG;28 786 0 0 re;S;"},
      {"<shape # sh_type=2 pt=2/><text * fn=Z003 height=30 fb=1 tc=X/>",
       "[ 4 2]0 d;%BT;/F0 30 Tf;2 Tr;[]0 d;28.3 755.35 Td;(X)Tj;ET;"},
      {"<text * fn=Z003 height=30 fb=1 tc=X/><text * fn=Z003 height=30 tc=X/>",
       "BT;/F0 30 Tf;2 Tr;28.3 755.35 Td;(X)Tj;/F1 30 Tf;0 Tr;0 0 Td;(X)Tj;ET;"},
      {"<text * fn=\"Standard Symbols PS\" fi=1 tc=1/>",
       "@1 0 0.212600 1 28.3 775.35 Tm;(1)Tj;ET;"},
      {"A[fn:B:fn]C\r\n", "@0 831 Td;(A[fn:B:fn]C)Tj;ET;"},
      {"A[st:1:st]\r\n", "@0 831 Td;(A[st:1:st])Tj;ET;"},
      {"<text * tc=:tc][x/>", "@28.3 775.35 Td;(:tc][x)Tj;ET;"},
      {"A\r\n\fB\r\n\f", "@0 831 Td;(A)Tj;ET;page;@0 831 Td;(B)Tj;ET;"}};
  for (auto [report, drawn] : rows) {
    if (drawn.starts_with("TURN")) drawn.replace(0, 4, turn);
    EXPECT_EQ(operators(expanded(report)), expanded(drawn)) << report;
  }
}

TEST_F(PdfExport, alignsTextsInTheirBoxes) {
  operators("A\r\n");
  const std::string file = directory_.read("q.pdf");
  const double capitals = std::atof(file.c_str() + file.find("/CapHeight ") + 11) / 100;
  const double width = 6.001;  // of one character of 10 points
  // From 10, 20 to 30, 25 mm: 57 by -14 points, from 28.3, 785.35.
  const std::tuple<int, int, double, double> rows[] = {{0, 0, 0, 0.5},   {1, 1, 0.5, 0.5},
                                                       {2, 2, 1, 1},     {0, 1, 0, 0.5},
                                                       {1, 0, 0.5, 0.5}, {3, 2, 0, 0}};
  for (const auto& [across, along, right, up] : rows) {
    const auto drawn = wordsOf(
        operators("<text left=10 top=20 right=30 bottom=25 alignH=" + std::to_string(across) +
                  " alignV=" + std::to_string(along) + " tc=X/>\r\n"));
    const auto place = std::ranges::find(drawn, "Tf") + 1;
    const double height = along == 1 ? -14 : -4;
    EXPECT_NEAR(std::stod(place[0]), 28.3 + right * (57 - width), 0.01) << across;
    EXPECT_NEAR(std::stod(place[1]), 785.35 + up * (height - capitals), 0.01) << along;
  }
}

TEST_F(PdfExport, fitsPicturesInThreeWays) {
  run({"convert-im6.q16", "-size", "96x48", "xc:red", directory_.path("p.png")});
  run({"convert-im6.q16", "-size", "96x48", "xc:blue", directory_.path("p.jpg")});
  // The box is 85.05 by 56.7 points; the picture 72 by 36 by itself.
  const std::array<const char*, 3> rows[] = {
      {"imgSS=0", "72 0 0 36 28 750 cm", "28 750 72 36 re"},
      {"imgSS=1", "85.05 0 0 56.7 28.3 728.65 cm", "28.3 728.65 85.05 56.7 re"},
      {"imgSS=2", "85.05 0 0 42.525 28.3 735.73", "28.3 728.65 85.05 56.7 re"}};
  for (const auto& [keys, matrix, frame] : rows) {
    for (const std::string name : {"p.png", "p.jpg"}) {
      const std::string drawn =
          operators("<img image=\"" + name + "\" left=10 top=20 right=40 bottom=40 " + keys + "/>");
      EXPECT_NE(drawn.find(matrix), std::string::npos) << drawn;
      EXPECT_NE(drawn.find(frame), std::string::npos) << drawn;
    }
  }
}

// A picture shown often is in the file once, and a JPEG as it stands.
TEST_F(PdfExport, passesJpegFilesOnAsTheyAre) {
  const std::string line = "<img image=\"p.jpg\" left=10 top=20/>\r\n\f";
  for (const auto& [options, listed] : {std::pair{"-colorspace Gray", "gray    1   8  jpeg"},
                                        {"-colorspace sRGB", "rgb     3   8  jpeg"},
                                        {"-colorspace CMYK", "rgb     3   8  image"}}) {
    directory_.write("p.jpg", magick_.make(options, "p.jpg"));
    exportReport(line + line + line);
    const std::string images = run({"pdfimages", "-list", directory_.path("r.pdf")}).output;
    EXPECT_NE(images.find(listed), std::string::npos) << images;
    EXPECT_EQ(linesOf(images).size(), 5U) << images;
    const bool whole = directory_.read("r.pdf").find(directory_.read("p.jpg")) != std::string::npos;
    EXPECT_EQ(whole, std::string(listed).ends_with("jpeg"));
  }
}

TEST_F(PdfExport, takesTheFaceOfEachStyleAndItsWidths) {
  const std::string text =
      "A<b>A<i>A<b/><i>A<text left=10 top=20 fn=Arial height=20 tc=\"WWW iii\"/>";
  expectTold(exportReport(text), "");
  const std::string fonts = run({"pdffonts", directory_.path("r.pdf")}).output;
  for (const char* style : {" ", "-Bold ", "-BoldItalic ", "-Italic "})
    EXPECT_NE(fonts.find(std::string("+LiberationMono") + style), std::string::npos) << fonts;
  EXPECT_NE(fonts.find("+LiberationSans-Italic "), std::string::npos) << fonts;
  EXPECT_EQ(std::count(fonts.begin(), fonts.end(), '\n'), 7) << fonts;
  // Of 2048 units "W" has 1933 and a blank 569.
  const double behind = 28.3 + (3 * 1933 + 569) / 2048.0 * 20;
  EXPECT_NEAR(readPdf(directory_.path("r.pdf")).word("iii").x, behind * 25.4 / 72, 0.05);
}

// Pages hang in nodes of 64.
TEST_F(PdfExport, keepsThePagesOfLongReports) {
  std::string report;
  for (int page = 1; page <= 130; ++page) report += "p" + std::to_string(page) + "\r\n\f\r\n";
  expectTold(exportReport(report), "");
  const PdfDocument document = readPdf(directory_.path("r.pdf"));
  EXPECT_EQ(document.pages, 130);
  ASSERT_EQ(document.words.size(), 130U);
  for (const PdfWord& word : document.words) EXPECT_EQ(word.text, "p" + std::to_string(word.page));
}

TEST_F(PdfExport, showsBarcodesThatAreRead) {
  exportReport(
      "<barcode br_type=ITF value=1540014128876 left=20 top=70 right=120 bottom=100/>"
      "<barcode br_type=KAREKOD value=\"https://qor/a?b=1\" left=20 top=120 right=60 bottom=160/>");
  run({"pdftoppm", "-r", "192", "-png", "-singlefile", directory_.path("r.pdf"),
       directory_.path("page")});
  const std::string read = run({"zbarimg", "-q", directory_.path("page.png")}).output;
  EXPECT_EQ(read, "QR-Code:https://qor/a?b=1\nI2/5:15400141288763\n");
}

TEST_F(PdfExport, isTheSameEachTimeAndTellsOfItself) {
  exportReport("A\r\n");
  const std::string first = directory_.read("r.pdf");
  exportReport("A\r\n");
  EXPECT_EQ(directory_.read("r.pdf"), first);
  const std::string information = run({"pdfinfo", "-isodates", directory_.path("r.pdf")}).output;
  runViewer({"-f", "r.txt", "-codepage", "1254", "-caption", "A\xE8\1<", "-export", "r.pdf"},
            in(directory_));
  const std::string metadata = run({"pdfinfo", "-meta", directory_.path("r.pdf")}).output;
  for (const char* part : {"Title:           T\n", "Producer:        QorUtlView 1.3b7\n",
                           "CreationDate:    1970-01-02T00:00:00Z\n", "595 x 842 pts",
                           ">A\uFFFD &lt;</rdf:li>", "<pdfaid:part>2</pdfaid:part>"})
    EXPECT_NE((information + metadata).find(part), std::string::npos) << information << metadata;
}

// Readers put words in their own order.
std::vector<std::string> sortedWords(const std::string& text) {
  auto words = wordsOf(text);
  std::ranges::sort(words);
  return words;
}

TEST_F(PdfExport, givesBackTheTextOfEveryCodePage) {
  const std::array<std::string, 4> rows[] = {
      {"866", "\x8F\xE0\xA8\xA2\xA5\xE2 \xFC 5", "Привет № 5", "/Lang (ru)"},
      {"857", "\x98\x8D \xA6\xA7 \x9E\x9F", "İı Ğğ Şş", "/Lang (tr)"},
      {"1251", "\xE0", "а", "/Lang (ru)"},
      {"1254", "\xFD", "ı", "/Lang (tr)"},
      {"850", "\x84\x94\x81 \xE1 \xC9\xCD\xBB", "äöü ß ╔═╗", ""},
      {"1258", "\xD0\xE1", "Đá", ""},
      {"708", "\x80\x81", "Жé", ""}};
  directory_.write("cp708.ini", "128-0x0416\r\n129-0x00E9\r\n");
  for (const auto& [codePage, bytes, text, language] : rows) {
    operators(bytes + "\r\n<b>" + bytes, codePage);
    const std::string found = run({"pdftotext", directory_.path("r.pdf"), "-"}).output;
    EXPECT_EQ(sortedWords(found), sortedWords(text + " " + text)) << codePage;
    const std::string file = directory_.read("q.pdf");
    EXPECT_NE(file.find(language), std::string::npos) << codePage;
    EXPECT_EQ(file.find("/Lang") == std::string::npos, language.empty()) << codePage;
  }
}

// Archived documents must not show glyph 0. The last letter is one that no font has.
TEST_F(PdfExport, showsAGlyphForEveryByte) {
  directory_.write("cp708.ini", "128-0xFDD0\r\n");
  operators("A\x7F\x01\x80", "708");
  const std::string file = directory_.read("q.pdf");
  for (const char* code : {"<41> ", "<7F> ", "<80> "}) {
    const auto place = file.find(code);
    ASSERT_NE(place, std::string::npos) << code;
    EXPECT_GT(std::atoi(file.c_str() + place + 5), 0) << code;
  }
}

TEST_F(PdfExport, makesSoundDocumentsOfTheSamples) {
  fs::copy(kSamples, directory_.path(), fs::copy_options::recursive);
  std::ifstream list(kSamples + "/samples.list");
  for (std::string report, codePage; list >> report >> codePage;) {
    SCOPED_TRACE(report);
    const Outcome outcome =
        runViewer({"-f", report, "-codepage", codePage, "-export", "o.pdf"}, in(directory_));
    // One of them shows what can't be drawn, and each of those is told.
    EXPECT_EQ(linesOf(outcome.errors).size(), report == "labels.txt" ? 6U : 0U) << outcome.errors;
    const Outcome check = run({"qpdf", "--check", directory_.path("o.pdf")});
    EXPECT_EQ(check.exitCode, 0) << check.output << check.errors;
    auto fonts = linesOf(run({"pdffonts", directory_.path("o.pdf")}).output);
    for (std::size_t i = 2; i < fonts.size(); ++i)
      EXPECT_NE(fonts[i].find("yes yes yes"), std::string::npos);  // embedded, subset, unicode
  }
}

TEST_F(PdfExport, takesFacesAndEncodingsFromItsResourceFile) {
  const TemporaryDirectory program;
  program.write("pdflib.upr",
                "FontOutline % ours\nhouse face = Liberation Serif\nGone Face = No such face\n.\n"
                "Encoding\ncp1254 = cp1251\n.\n");
  directory_.write("r.txt", "<font fn=\"House Face\">\xCF<font/><font fn=\"Gone Face\">b<font/>");
  expectTold(exportByCopy(program), "");
  const std::string fonts = run({"pdffonts", directory_.path("r.pdf")}).output;
  EXPECT_NE(fonts.find("+LiberationSerif "), std::string::npos) << fonts;
  EXPECT_NE(fonts.find("+LiberationMono "), std::string::npos) << fonts;
  EXPECT_EQ(std::count(fonts.begin(), fonts.end(), '\n'), 4) << fonts;
  EXPECT_EQ(readPdf(directory_.path("r.pdf")).words.at(0).text, "Пb");
}

TEST_F(PdfExport, endsAsEachFailureShould) {
  directory_.write("r.pdf", "old");
  std::string large;
  for (int i = 0; i < 20000; ++i) large += std::to_string(i * 7919) + " line\r\n";
  EXPECT_NE(exportReport(large, "1254", 8192).errors.find("r.pdf: "), std::string::npos);
  EXPECT_EQ(directory_.read("r.pdf"), "old");
  for (const std::string codePage : {"709", "932", "65001"}) {
    EXPECT_EQ(exportReport("A", codePage).errors,
              directory_.path("r.txt") + ": code page " + codePage +
                  ": the system has no table of it, and there is no " + directory_.path("cp") +
                  codePage + ".ini\n");
    EXPECT_EQ(directory_.read("r.pdf"), "old");
  }
  const TemporaryDirectory program;
  EXPECT_EQ(exportByCopy(program, "-dd").errors,
            program.path("pdflib.upr") + " dosyas? bulunamad?!\n");
  EXPECT_EQ(directory_.read("r.pdf"), "old");
  EXPECT_TRUE(directory_.has("r.txt"));
}

// A window asks for the width of its page, 813 pixels, by what the font's height divides it.
TEST(PdfPage, takesItsWidthFromTheWindow) {
  for (const auto& [fontHeight, points] :
       {std::pair{8, 558}, {9, 627}, {10, 608}, {11, 602}, {12, 584}, {14, 620}}) {
    TestReport report("A\r\n");
    report.doc().Settings.Font.Height = fontHeight;
    ExportOptions options;
    options.TargetName = report.path("w.pdf");
    options.PageMode = 7;
    options.PreviewPageWidth = 813;
    EXPECT_EQ(ExportPdf(report.doc(), options), 0);
    EXPECT_NEAR(readPdf(options.TargetName).width / 25.4 * 72, points, 0.1) << fontHeight;
  }
}

}  // namespace
}  // namespace qor::test
