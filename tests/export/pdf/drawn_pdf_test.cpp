// Pages as drawn, exported as PDF by the program: what readers find in them, and what archives ask
// for.
#include "export/pdf/drawn_pdf.h"

#include <map>

#include "export/pdf/exported_pdf.h"
#include "platform/system/compressor.h"
#include "support/font_system.h"
#include "support/page_picture.h"
#include "support/samples.h"

namespace qor::test {
namespace {

class DrawnPdf : public PdfExport {
 protected:
  // Exports it, and gives what is told.
  std::string draw(const std::string& report, const std::string& more = "") {
    return exportTo("r.pdf", report, wordsOf("-codepage 866 -caption Title -drawn " + more)).errors;
  }

  std::string textOf(const std::string& name, const char* option) {
    return run({"pdftotext", option, place_.path(name), "-"}).output;
  }
};

TEST_F(DrawnPdf, lieOnTheSheetOfTheSet) {
  place_.write("s.vset", setWith("A", "Page PaperSize=11|Page Orientation=2"));
  const std::string report = "<text left=10 top=20 height=20 fn=Arial tc=Word/>\r\n";
  for (const auto& [options, width, height] :
       {std::tuple("", 210.0, 297.0), {"-i s.vset#A", 210.0, 148.5}}) {
    EXPECT_EQ(draw(report, options), "");
    const PdfDocument document = readPdf(place_.path("r.pdf"));
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
      expectTold(runViewer(line, in(place_)), "");
      files[drawn] = place_.read(target);
    }
    EXPECT_EQ(files[0], files[1]) << target;
  }
}

TEST_F(DrawnPdf, ofNothingLeaveTheOldOne) {
  place_.write("r.pdf", "old");
  place_.write("s.vset", setWith("A", "Page PaperSize=256|Page PaperWidth=0"));
  EXPECT_NE(draw("A", "-dd -i s.vset#A").find("r.pdf: a page can't"), std::string::npos);
  EXPECT_EQ(draw("", "-dd"), "r.pdf: the report has no pages\n");
  EXPECT_EQ(place_.read("r.pdf"), "old");
  EXPECT_TRUE(place_.has("r.txt"));
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

// Most queues print by Ghostscript. 17 letters of 6 points reach as far.
TEST_F(DrawnPdf, standInGhostscriptWhereTheyStand) {
  EXPECT_EQ(draw("\xBA\xBA\xBA Alpha \xB3\xB3 Beta\r\n"), "");
  const Outcome inked = run({"gs", "-q", "-o", "-", "-sDEVICE=bbox", "r.pdf"}, in(place_));
  EXPECT_TRUE(inked.errors.starts_with("%%BoundingBox: 1 830 102 842\n")) << inked.errors;
}

// Frames are drawn also where no font has them.
TEST_F(DrawnPdf, giveBackFramesThatAreNoLetters) {
  const std::string fonts = place_.write("fonts.conf", systemOf("OpenSymbol"));
  exportTo("r.pdf",
           "a\xC9\xCD\xBB"
           "b",
           wordsOf("-codepage 866 -drawn"), {{}, {{"FONTCONFIG_FILE", fonts}}, 0});
  EXPECT_EQ(textOf("r.pdf", "-raw"), "a╔═╗b\n\f");
}

// The lines of a page in their order, each with the marks of its texts.
TEST_F(DrawnPdf, tellPagesAndLines) {
  const std::string shape = "<shape left=50 top=50 right=60 bottom=60 sh_type=2/>";
  draw("One\r\n\r\nT" + shape + "w" + shape + "o\r\n" + shape + "\r\nThree\r\n\fFour\r\n");
  const std::string tree = run({"pdfinfo", "-struct-text", place_.path("r.pdf")}).output;
  std::string told;
  for (const std::string& word : wordsOf(tree))
    if (word != "(block)") told += word + " ";
  EXPECT_EQ(told, "Document Sect P \"One\" P \"T\" \"w\" \"o\" P \"Three\" Sect P \"Four\" ");
  const std::string file = unpacked();
  EXPECT_EQ(countOf("/Artifact BMC", file), 3U);
  EXPECT_EQ(countOf("BMC", file) + countOf("BDC", file), countOf("EMC", file));
  for (const char* entry : {"/Marked true", "/Lang (ru)", "/DisplayDocTitle true",
                            "/StructParents 0", "/StructParents 1"})
    EXPECT_EQ(countOf(entry, file), 1U) << entry;
}

TEST_F(DrawnPdf, holdPicturesOnceAndAsTheyCame) {
  const auto make = [this](const std::string& options, const std::string& name) {
    auto line = wordsOf("convert-im6.q16 -size 60x40 plasma:red-blue " + options);
    line.push_back(place_.path(name));
    run(line);
  };
  // The options, the file, and what a reader finds: colours, components, bits, way of packing; the
  // mask that lets the paper through is a picture of its own.
  const std::tuple<const char*, const char*, std::string> rows[] = {
      {"", "a.jpg", "rgb 3 8 jpeg"},
      {"-colorspace Gray", "b.jpg", "gray 1 8 jpeg"},
      {"-colorspace CMYK", "k.jpg", "rgb 3 8 image"},
      {"", "PNG24:c.png", "rgb 3 8 image"},
      {"-colors 7 -type Palette", "PNG8:d.png", "index 1 4 image"},
      {"-threshold 50% -type Bilevel", "e.png", "gray 1 1 image"},
      {"-alpha set -channel A -evaluate set 50%", "PNG32:f.png", "rgb 3 8 image;gray 1 8 image"},
      {"-interlace PNG", "PNG24:g.png", "rgb 3 8 image"},
      {"-depth 16", "PNG48:h.png", "rgb 3 8 image"},
      {"", "i.bmp", "rgb 3 8 image"}};
  for (const auto& [options, file, listed] : rows) {
    const std::string name = std::string(file).substr(std::string(file).find(':') + 1);
    make(options, file);
    if (std::string(file) != name) std::filesystem::rename(place_.path(file), place_.path(name));
    const std::string line = itemTag("img", {10, 20, 60, 50}, "imgSS=1 image=\"" + name + "\"");
    EXPECT_EQ(draw(line + line + "\f" + line), "") << name;
    EXPECT_EQ(imagesOf(place_.path("r.pdf")), linesOf(listed, ';')) << name;
    const Picture paper = renderPdf(place_.path("r.pdf"), 1);
    const Picture shown = pageBy(Road::picture, place_, line + line);
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
                ":" + place_.path("p.png")));
    std::string png = place_.read("p.png");
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
    place_.write("p.png", png);
    const std::string line = itemTag("img", {10, 20, 60, 50}, "imgSS=1 image=\"p.png\"");
    EXPECT_EQ(draw(line), "");
    const Picture paper = renderPdf(place_.path("r.pdf"), 1);
    const Picture shown = pageBy(Road::picture, place_, line);
    for (int y = 80; y < 185; y += 7)
      EXPECT_LT(apart(dotAt(paper, 100, y), dotAt(shown, 100, y)), 60) << kind << " at " << y;
  }
}

// A list without end of what PDF/A-2u forbids and asks for, as far as it can be read off; what is
// told is sound, too.
TEST_F(DrawnPdf, keepTheRulesOfArchives) {
  std::filesystem::copy(kSamples, place_.path(), std::filesystem::copy_options::recursive);
  for (const auto& [report, codePage] : samples()) {
    SCOPED_TRACE(report);
    runViewer({"-f", report, "-codepage", codePage, "-export", "o.pdf", "-drawn"}, in(place_));
    const Outcome told =
        runViewer({"-f", report, "-codepage", codePage, "-export", "t.pdf"}, in(place_));
    // One of them shows what can't be drawn, and each of those is told.
    EXPECT_EQ(countOf("\n", told.errors) - countOf("t.pdf: PDF ", told.errors),
              report == "labels.txt" ? 6U : 0U)
        << told.errors;
    for (const std::string name : {"o.pdf", "t.pdf"}) {
      for (const std::string check :
           {"qpdf --check", "mutool info", "gs -q -dNOPAUSE -dBATCH -sDEVICE=nullpage"}) {
        const Outcome outcome = run(joined(wordsOf(check), {place_.path(name)}));
        EXPECT_EQ(outcome.exitCode, 0) << check;
        EXPECT_EQ(outcome.errors, "") << check;
        EXPECT_EQ(countOf("WARNING", outcome.output), 0U) << outcome.output;
      }
      const std::string fonts = run({"pdffonts", place_.path(name)}).output;
      EXPECT_GT(countOf("\n", fonts), 2U);
      // Embedded, a subset, with a way to Unicode.
      EXPECT_EQ(countOf("yes yes yes", fonts) + 2, countOf("\n", fonts)) << fonts;
    }
    const std::string file = unpacked("o.pdf");
    for (const char* forbidden :
         {"/Encrypt", "/LZWDecode", "/JavaScript", "/Interpolate", "/Launch", "/AA ", "/OPI",
          "/PS ", "/Ref ", "/TR ", "/EmbeddedFiles", "/BM "})
      EXPECT_EQ(countOf(forbidden, file), 0U) << forbidden;
    for (const char* asked :
         {"<pdfaid:conformance>U</pdfaid:conformance>", "/S /GTS_PDFA1", "/ID ["})
      EXPECT_EQ(countOf(asked, file), 1U) << asked;
    // What is told is drawn, too, besides the digits of barcodes.
    std::map<char, int> letters;
    for (const char c : textOf("o.pdf", "-raw")) ++letters[c];
    for (const char c : textOf("t.pdf", "-raw")) --letters[c];
    for (const auto& [letter, more] : letters) {
      const bool counts = letter != ' ' && letter != '\n' && letter != '\f' && letter != '?';
      EXPECT_TRUE(more >= 0 || !counts) << letter << " " << more;
    }
  }
}

}  // namespace
}  // namespace qor::test
