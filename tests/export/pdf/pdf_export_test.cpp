// PDF documents as wholes: fonts, texts, pages, and what they tell of themselves.
#include "export/pdf/pdf_export.h"

#include "export/export_formats.h"
#include "export/pdf/exported_pdf.h"

namespace qor::test {
namespace {

TEST_F(PdfExport, takesTheFaceOfEachStyleAndItsWidths) {
  const std::string text =
      "A<b>A<i>A<b/><i>A<text left=10 top=20 fn=Arial height=20 tc=\"WWW iii\"/>";
  expectTold(exportReport(text), "");
  const std::string fonts = run({"pdffonts", place_.path("r.pdf")}).output;
  for (const char* style : {" ", "-Bold ", "-BoldItalic ", "-Italic "})
    EXPECT_NE(fonts.find(std::string("+LiberationMono") + style), std::string::npos) << fonts;
  EXPECT_NE(fonts.find("+LiberationSans-Italic "), std::string::npos) << fonts;
  EXPECT_EQ(std::count(fonts.begin(), fonts.end(), '\n'), 7) << fonts;
  // Of 2048 units "W" has 1933 and a blank 569.
  const double behind = 28.3 + (3 * 1933 + 569) / 2048.0 * 20;
  EXPECT_NEAR(readPdf(place_.path("r.pdf")).word("iii").x, behind * 25.4 / 72, 0.05);
}

// What a PDF doesn't show of a report is told in a line, with what does; nothing else is told.
TEST_F(PdfExport, tellsWhatItDoesNotShow) {
  const std::string box = " left=10 top=10 right=50 bottom=20 ";
  const std::pair<std::string, std::string> rows[] = {
      {"A <font hs=0 fb=1>B<font/>\r\n<text left=5 top=5 tc=C/>", ""},
      {"<shape sh_type=2 pt=3 lw=20" + box + "/>", ""},
      {"<shape sh_type=1 bt=1" + box + "/><text left=5 top=5 od=9 tc=\" \"/>", ""},
      {"<text left=5 top=0 tc=\"  \"/>\f A", "placed texts before plain ones"},
      {"<shape sh_type=2 bt=4" + box + "/><u> <u/>", "fillings, underlines and strike-outs"},
      {"<shape sh_type=3" + box + "/><s>A<s/>",
       "ellipses and other shapes, underlines and strike-outs"},
      {"<shape sh_type=2 lw=21" + box + "/>", "widths and spaces of letters and lines"},
      {"<w1>A<w1/>", "widths and spaces of letters and lines"},
      {"<font width=7>A<font/>", "widths and spaces of letters and lines"},
      {"<font hs=2>A<font/>", "widths and spaces of letters and lines"},
      {"<font vs=2>A<font/>", "widths and spaces of letters and lines"},
      {"<text left=5 top=5 od=100 tc=A/>", "turned texts"},
      {"<shape sh_type=1 pt=2" + box + "/>", "dashed lines and missing frames"},
      {"<shape sh_type=1 pt=5" + box + "/>", "dashed lines and missing frames"},
      {"<shape sh_type=2 pt=0" + box + "/>", "dashed lines and missing frames"},
  };
  for (const auto& [report, losses] : rows) {
    SCOPED_TRACE(report);
    const std::string told = exportReport(report + "\r\n", "1252").errors;
    const std::string expected =
        "r.pdf: PDF shows these pages otherwise: " + losses + ". -drawn keeps pages as drawn.\n";
    EXPECT_EQ(told, losses.empty() ? "" : expected);
  }
}

// Pages hang in nodes of 64.
TEST_F(PdfExport, keepsThePagesOfLongReports) {
  std::string report;
  for (int page = 1; page <= 130; ++page) report += "p" + std::to_string(page) + "\r\n\f\r\n";
  expectTold(exportReport(report), "");
  const PdfDocument document = readPdf(place_.path("r.pdf"));
  EXPECT_EQ(document.pages, 130);
  ASSERT_EQ(document.words.size(), 130U);
  for (const PdfWord& word : document.words) EXPECT_EQ(word.text, "p" + std::to_string(word.page));
}

TEST_F(PdfExport, isTheSameEachTimeAndTellsOfItself) {
  exportReport("A\r\n");
  const std::string first = place_.read("r.pdf");
  exportReport("A\r\n");
  EXPECT_EQ(place_.read("r.pdf"), first);
  const std::string information = run({"pdfinfo", "-isodates", place_.path("r.pdf")}).output;
  runViewer({"-f", "r.txt", "-codepage", "1254", "-caption", "A\xE8\1<", "-export", "r.pdf"},
            in(place_));
  const std::string metadata = run({"pdfinfo", "-meta", place_.path("r.pdf")}).output;
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
  place_.write("cp708.ini", "128-0x0416\r\n129-0x00E9\r\n");
  for (const auto& [codePage, bytes, text, language] : rows) {
    exportReport(bytes + "\r\n<b>" + bytes, codePage);
    const std::string found = run({"pdftotext", place_.path("r.pdf"), "-"}).output;
    EXPECT_EQ(sortedWords(found), sortedWords(text + " " + text)) << codePage;
    const std::string file = unpacked();
    EXPECT_NE(file.find(language), std::string::npos) << codePage;
    EXPECT_EQ(file.find("/Lang") == std::string::npos, language.empty()) << codePage;
  }
}

// Whatever it looks like, and however small it is.
TEST_F(PdfExport, givesBackTextsThatLookLikeMarkup) {
  exportReport(
      "[tc:field:tc]\r\n<text left=99 top=50 height=-1 tc=negative/>\r\n"
      "<text left=10 top=90 tc=\"\x01"
      "Zopen [fn:Arial:fn] [st:1:st] \x01\"/>\r\n"
      "<text left=10 top=120 tc=\"upper\nlower [bcv:1:bcv]\"/>");
  const std::string found = run({"pdftotext", place_.path("r.pdf"), "-"}).output;
  for (const char* word : {"negative", "[tc:field:tc]", "Zopen", "[fn:Arial:fn]", "[st:1:st]",
                           "upper", "lower", "[bcv:1:bcv]"})
    EXPECT_NE(found.find(word), std::string::npos) << word << " in " << found;
  EXPECT_EQ(readPdf(place_.path("r.pdf")).pages, 1);
}

// Archived documents must not show glyph 0. The last letter is one that no font has.
TEST_F(PdfExport, showsAGlyphForEveryByte) {
  place_.write("cp708.ini", "128-0xFDD0\r\n");
  exportReport("A\x7F\x01\x80", "708");
  const std::string file = unpacked();
  for (const char* code : {"<41> ", "<7F> ", "<80> "}) {
    const auto place = file.find(code);
    ASSERT_NE(place, std::string::npos) << code;
    EXPECT_GT(std::atoi(file.c_str() + place + 5), 0) << code;
  }
}

TEST_F(PdfExport, takesFacesAndEncodingsFromItsResourceFile) {
  const TemporaryDirectory program;
  program.write("pdflib.upr",
                "FontOutline % ours\nhouse face = Liberation Serif\nGone Face = No such face\n.\n"
                "Encoding\ncp1254 = cp1251\n.\n");
  place_.write("r.txt", "<font fn=\"House Face\">\xCF<font/><font fn=\"Gone Face\">b<font/>");
  expectTold(exportByCopy(program), "");
  const std::string fonts = run({"pdffonts", place_.path("r.pdf")}).output;
  EXPECT_NE(fonts.find("+LiberationSerif "), std::string::npos) << fonts;
  EXPECT_NE(fonts.find("+LiberationMono "), std::string::npos) << fonts;
  EXPECT_EQ(std::count(fonts.begin(), fonts.end(), '\n'), 4) << fonts;
  EXPECT_EQ(readPdf(place_.path("r.pdf")).words.at(0).text, "Пb");
}

TEST_F(PdfExport, endsAsEachFailureShould) {
  place_.write("r.pdf", "old");
  std::string large;
  for (int i = 0; i < 20000; ++i) large += std::to_string(i * 7919) + " line\r\n";
  EXPECT_NE(exportReport(large, "1254", 8192).errors.find("r.pdf: "), std::string::npos);
  EXPECT_EQ(place_.read("r.pdf"), "old");
  for (const std::string codePage : {"709", "932", "65001"}) {
    EXPECT_EQ(exportReport("A", codePage).errors,
              place_.path("r.txt") + ": code page " + codePage +
                  ": the system has no table of it, and there is no " + place_.path("cp") +
                  codePage + ".ini\n");
    EXPECT_EQ(place_.read("r.pdf"), "old");
  }
  const TemporaryDirectory program;
  EXPECT_EQ(exportByCopy(program, "-dd").errors,
            program.path("pdflib.upr") + " dosyas? bulunamad?!\n");
  EXPECT_EQ(place_.read("r.pdf"), "old");
  EXPECT_TRUE(place_.has("r.txt"));
}

// A window asks for the width of its page, 813 pixels, by what the font's height divides it.
TEST(PdfPage, takesItsWidthFromTheWindow) {
  for (const auto& [fontHeight, points] :
       {std::pair{8, 558}, {9, 627}, {10, 608}, {11, 602}, {12, 584}, {14, 620}}) {
    TestReport report("A\r\n");
    report.doc().Settings.Font.Height = fontHeight;
    ExportTask task = {report.doc(), report.path("w.pdf"), runOptions()};
    task.mode = formatOf(task.target)->mode;
    task.options.PreviewPageWidth = 813;
    EXPECT_EQ(ExportPdf(task), ExportResult::done);
    EXPECT_NEAR(readPdf(task.target).width / 25.4 * 72, points, 0.1) << fontHeight;
  }
}

}  // namespace
}  // namespace qor::test
