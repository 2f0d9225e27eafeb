// Pages as drawn, exported as PDF by the program: what readers find in them, and what archives ask
// for.
#include "export/pdf/drawn_pdf.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>

#include "export/pdf/exported_pdf.h"
#include "platform/system/compressor.h"
#include "support/page_picture.h"
#include "support/pdf_reader.h"
#include "support/rows.h"

namespace qor::test {
namespace {

class DrawnPdf : public PdfExport {
 protected:
  // Exports it, and gives what is told.
  std::string draw(const std::string& report, const std::string& more = "") {
    directory_.write("r.txt", report);
    auto line = wordsOf("-f r.txt -codepage 866 -caption Title -export r.pdf -drawn " + more);
    return runViewer(line, {directory_.path(), {{"SOURCE_DATE_EPOCH", "86400"}}, 0}).errors;
  }

  // The objects of the file as qpdf unpacks them.
  std::string unpacked(const std::string& name = "r.pdf") {
    run({"qpdf", "--qdf", "--object-streams=disable", directory_.path(name),
         directory_.path("q.pdf")});
    return directory_.read("q.pdf");
  }

  std::string textOf(const std::string& name, const char* option) {
    return run({"pdftotext", option, directory_.path(name), "-"}).output;
  }
};

int countOf(const std::string& text, const std::string& part) {
  int count = 0;
  for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size()))
    ++count;
  return count;
}

// A set file with the set "A".
std::string setOf(const std::string& page) {
  return "<ReportSetsIniFile Ver=\"1.0\"/>\r\n<Set SetName=\"A\">\r\n<Page>\r\n" + page +
         "<Page/>\r\n<Set/>\r\n";
}

TEST_F(DrawnPdf, lieOnTheSheetOfTheSet) {
  directory_.write("s.vset", setOf("<PaperSize = \"11\"/>\r\n<Orientation = \"2\"/>\r\n"));
  const std::string report = "<text left=10 top=20 height=20 fn=Arial tc=Word/>\r\n";
  for (const auto& [options, width, height] :
       {std::tuple("", 210.0, 297.0), {"-i s.vset#A", 210.0, 148.5}}) {
    EXPECT_EQ(draw(report, options), "");
    const PdfDocument document = readPdf(directory_.path("r.pdf"));
    EXPECT_NEAR(document.width, width, 0.6);
    EXPECT_NEAR(document.height, height, 0.6);
    EXPECT_NEAR(document.word("Word").x, 10, 0.1);
    EXPECT_EQ(document.title, "Title");
  }
}

// Only PDF is drawn otherwise, and there is nothing to be told of it.
TEST_F(DrawnPdf, areAskedForByAWordThatOthersIgnore) {
  const std::string report = "<text left=5 top=0 tc=B/>\r\n<u>A<u/>\r\n";
  EXPECT_NE(exportReport(report).errors.find("-drawn keeps pages as drawn"), std::string::npos);
  EXPECT_EQ(draw(report), "");
  for (const char* target : {"o.txt", "o.html", "o.png"}) {
    std::string files[2];
    for (int drawn = 0; drawn < 2; ++drawn) {
      auto line = wordsOf(std::string("-f r.txt -export ") + target + (drawn ? " -DRAWN" : ""));
      expectTold(runViewer(line, in(directory_)), "");
      files[drawn] = directory_.read(target);
    }
    EXPECT_EQ(files[0], files[1]) << target;
  }
}

TEST_F(DrawnPdf, ofNothingLeaveTheOldOne) {
  directory_.write("r.pdf", "old");
  directory_.write("s.vset", setOf("<PaperSize = \"256\"/>\r\n<PaperWidth = \"0\"/>\r\n"));
  EXPECT_NE(draw("A", "-dd -i s.vset#A").find("r.pdf: a page can't"), std::string::npos);
  EXPECT_EQ(draw("", "-dd"), "r.pdf: the report has no pages\n");
  EXPECT_EQ(directory_.read("r.pdf"), "old");
  EXPECT_TRUE(directory_.has("r.txt"));
}

// Letter for letter: blanks, boxes, and letters that come from other fonts or from none.
TEST_F(DrawnPdf, giveBackTheTextOfEachLine) {
  const std::string page =
      "  \x8F\xE0\xA8\xA2\xA5\xE2, \\(world)  x\r\n"
      "\xC9\xCD\xBB \xB0\xB1\xB2\xDB \xFC 5\r\n"
      "<b>fat<b/><i>slanted<i/> <u>under<u/> <s>out<s/>\r\n"
      "office flat 'quoted' \"twice\" a-b\r\n";
  EXPECT_EQ(draw(page + "\f" + page), "");
  const std::string expected =
      "Привет, \\(world) x\n╔═╗ ░▒▓█ № 5\nfatslanted under out\n"
      "office flat 'quoted' \"twice\" a-b\n";
  EXPECT_EQ(textOf("r.pdf", "-raw"), expected + "\f" + expected + "\f");
}

// The lines of a page in their order, each with the marks of its texts.
TEST_F(DrawnPdf, tellPagesAndLines) {
  const std::string shape = "<shape left=50 top=50 right=60 bottom=60 sh_type=2/>";
  draw("One\r\n\r\nT" + shape + "w" + shape + "o\r\n" + shape + "\r\nThree\r\n\fFour\r\n");
  const std::string tree = run({"pdfinfo", "-struct-text", directory_.path("r.pdf")}).output;
  std::string told;
  for (const std::string& word : wordsOf(tree))
    if (word != "(block)") told += word + " ";
  EXPECT_EQ(told, "Document Sect P \"One\" P \"T\" \"w\" \"o\" P \"Three\" Sect P \"Four\" ");
  const std::string file = unpacked();
  EXPECT_EQ(countOf(file, "/Artifact BMC"), 3);
  EXPECT_EQ(countOf(file, "BMC") + countOf(file, "BDC"), countOf(file, "EMC"));
  for (const char* entry : {"/Marked true", "/Lang (ru)", "/DisplayDocTitle true",
                            "/StructParents 0", "/StructParents 1"})
    EXPECT_EQ(countOf(file, entry), 1) << entry;
}

TEST_F(DrawnPdf, holdPicturesOnceAndAsTheyCame) {
  const auto make = [this](const std::string& options, const std::string& name) {
    auto line = wordsOf("convert-im6.q16 -size 60x40 plasma:red-blue " + options);
    line.push_back(directory_.path(name));
    run(line);
  };
  // The options, the file, and what a reader finds: colours, components, bits, way of packing; the
  // mask that lets the paper through is a picture of its own.
  const std::tuple<const char*, const char*, std::string> rows[] = {
      {"", "a.jpg", "rgb 3 8 jpeg"},
      {"-colorspace Gray", "b.jpg", "gray 1 8 jpeg"},
      {"", "PNG24:c.png", "rgb 3 8 image"},
      {"-colors 7 -type Palette", "PNG8:d.png", "index 1 4 image"},
      {"-threshold 50% -type Bilevel", "e.png", "gray 1 1 image"},
      {"-alpha set -channel A -evaluate set 50%", "PNG32:f.png", "rgb 3 8 image gray 1 8 image"},
      {"-interlace PNG", "PNG24:g.png", "rgb 3 8 image"},
      {"-depth 16", "PNG48:h.png", "rgb 3 8 image"},
      {"", "i.bmp", "rgb 3 8 image"}};
  for (const auto& [options, file, listed] : rows) {
    const std::string name = std::string(file).substr(std::string(file).find(':') + 1);
    make(options, file);
    if (std::string(file) != name)
      std::filesystem::rename(directory_.path(file), directory_.path(name));
    const std::string line = itemTag("img", {10, 20, 60, 50}, "imgSS=1 image=\"" + name + "\"");
    EXPECT_EQ(draw(line + line + "\f" + line), "") << name;
    std::set<std::string> objects;
    std::string found;
    for (const std::string& row :
         linesOf(run({"pdfimages", "-list", directory_.path("r.pdf")}).output)) {
      const auto cells = wordsOf(row);
      if (cells.size() < 11 || !objects.insert(cells[2] + cells[10]).second || objects.size() == 1)
        continue;
      found += " " + cells[5] + " " + cells[6] + " " + cells[7] + " " + cells[8];
    }
    EXPECT_EQ(found, " " + listed) << name;
    const Picture paper = renderPdf(directory_.path("r.pdf"), 1);
    const Picture shown = pageBy(Road::picture, directory_, line + line);
    for (int x = 45; x < 220; x += 9) {
      const int far = apart(dotAt(paper, x, 120), dotAt(shown, x, 120));
      EXPECT_LT(far, 60) << name << " at " << x;
    }
  }
}

std::string chunk(const std::string& type, const std::string& data) {
  const auto number = [](std::uint32_t value) {
    std::string bytes;
    for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(value >> shift);
    return bytes;
  };
  return number(static_cast<std::uint32_t>(data.size())) + type + data +
         number(crc32Of(type + data));
}

// Palettes that only suggest colours, and those that pixels point beyond.
TEST_F(DrawnPdf, showPicturesWithOddPalettesAsPicturesDo) {
  for (const char* kind : {"PNG24", "PNG8"}) {
    run(wordsOf("convert-im6.q16 -size 60x40 gradient:red-blue -colors 200 " + std::string(kind) +
                ":" + directory_.path("p.png")));
    std::string png = directory_.read("p.png");
    const auto old = png.find("PLTE");
    const auto start = old == std::string::npos ? png.find("IDAT") - 4 : old - 4;
    const std::size_t length = old == std::string::npos
                                   ? 0
                                   : 12 + static_cast<unsigned char>(png[start + 2]) * 256U +
                                         static_cast<unsigned char>(png[start + 3]);
    std::string colors;
    for (int i = 0; i < 20; ++i)
      colors += old == std::string::npos ? "\x01\x02\x03" : png.substr(old + 4 + i * 3, 3);
    png.replace(start, length, chunk("PLTE", colors));
    directory_.write("p.png", png);
    const std::string line = itemTag("img", {10, 20, 60, 50}, "imgSS=1 image=\"p.png\"");
    EXPECT_EQ(draw(line), "");
    const Picture paper = renderPdf(directory_.path("r.pdf"), 1);
    const Picture shown = pageBy(Road::picture, directory_, line);
    for (int y = 80; y < 185; y += 7)
      EXPECT_LT(apart(dotAt(paper, 100, y), dotAt(shown, 100, y)), 60) << kind << " at " << y;
  }
}

// A list without end of what PDF/A-2u forbids and asks for, as far as it can be read off.
TEST_F(DrawnPdf, keepTheRulesOfArchives) {
  std::filesystem::copy(QOR_SOURCE_DIR "/samples", directory_.path(),
                        std::filesystem::copy_options::recursive);
  std::ifstream list(QOR_SOURCE_DIR "/samples/samples.list");
  for (std::string report, codePage; list >> report >> codePage;) {
    SCOPED_TRACE(report);
    runViewer({"-f", report, "-codepage", codePage, "-export", "o.pdf", "-drawn"}, in(directory_));
    for (const auto& check : {wordsOf("qpdf --check"), wordsOf("mutool info"),
                              wordsOf("gs -q -dNOPAUSE -dBATCH -sDEVICE=nullpage")}) {
      auto line = check;
      line.push_back(directory_.path("o.pdf"));
      const Outcome outcome = run(line);
      EXPECT_EQ(outcome.exitCode, 0) << check[0];
      EXPECT_EQ(outcome.errors, "") << check[0];
      EXPECT_EQ(outcome.output.find("WARNING"), std::string::npos) << outcome.output;
    }
    const std::string file = unpacked("o.pdf");
    for (const char* forbidden :
         {"/Encrypt", "/LZWDecode", "/JavaScript", "/Interpolate", "/Launch", "/AA ", "/OPI",
          "/PS ", "/Ref ", "/TR ", "/EmbeddedFiles", "/BM "})
      EXPECT_EQ(countOf(file, forbidden), 0) << forbidden;
    const int fonts = countOf(file, "/Type0\n");
    EXPECT_GT(fonts, 0);
    EXPECT_EQ(countOf(file, "/ToUnicode"), fonts);
    EXPECT_EQ(countOf(file, "/FontFile2") + countOf(file, "/FontFile3"), fonts);
    EXPECT_EQ(countOf(file, "<pdfaid:conformance>U</pdfaid:conformance>"), 1);
    EXPECT_EQ(countOf(file, "/S /GTS_PDFA1"), 1);
    EXPECT_EQ(countOf(file, "/ID ["), 1);
    // What is told is drawn, too, besides the digits of barcodes.
    const std::string drawn = textOf("o.pdf", "-raw");
    runViewer({"-f", report, "-codepage", codePage, "-export", "t.pdf"}, in(directory_));
    std::map<char, int> letters;
    for (const char c : drawn) ++letters[c];
    for (const char c : textOf("t.pdf", "-raw")) --letters[c];
    for (const auto& [letter, more] : letters) {
      const bool counts = letter != ' ' && letter != '\n' && letter != '\f' && letter != '?';
      EXPECT_TRUE(more >= 0 || !counts) << letter << " " << more;
    }
  }
}

}  // namespace
}  // namespace qor::test
