// Barcodes as items of a page: drawn alike however often, and never missing without a word.
#include "barcode/barcode_picture.h"
#include "platform/pictures/picture.h"
#include "render/page_walk.h"
#include "support/recording_canvas.h"
#include "support/test.h"

namespace qor::test {
namespace {

const std::string kBox = " left=20 top=30 right=120 bottom=70 value_show=1";

// Two of what stands before decides, and one of what stands behind must not.
TEST(BarcodeItems, areDrawnAlikeHoweverOften) {
  const std::string interleave = "<barcode br_type=InterLeave value=zz" + kBox + "/>";
  const std::string code39 = "<barcode br_type=39 value=AB" + kBox + "/>";
  const std::string ean = "<barcode value=590123412345 font_width=4" + kBox + "/>";
  for (const std::string& bytes :
       {interleave + code39 + interleave, ean, code39 + "\r\n" + ean + interleave,
        "<barcode br_type=FullASCII value=1" + kBox + "/>" + ean,
        code39 + "<barcode br_type=ITF value=12" + kBox + "/>" + interleave}) {
    TestReport report(bytes);
    VDocPage& page = report.page();
    const std::string first = drawn(page);
    RecordingCanvas measuring;
    std::int32_t width = 0;
    std::int32_t height = 0;
    MeasurePage(page, measuring, width, height);
    writeBarcodePicturesOf(page, report.path("r"));
    EXPECT_EQ(drawn(page), first) << bytes;
    EXPECT_EQ(drawn(report.page()), first) << bytes;
  }
}

TEST(BarcodeItems, withoutAnEncoderShowTheSymbolBeforeThem) {
  const std::string code39 = "<barcode br_type=39 value=AB" + kBox + "/>";
  const std::string none = "<barcode br_type=InterLeave value=zz" + kBox + "/>";
  TestReport report(none + code39 + none + "\f\r\n" + code39 + "\f\r\n" + none);
  const std::string symbol = drawn(report.page(2));
  EXPECT_EQ(drawn(report.page(1)), symbol + symbol);
  EXPECT_EQ(drawn(report.page(3)), "");
}

// Lengths in twips: left=60 is 3401, top=20 1133, bottom=50 2834.
const std::string kEan = "value=590123412345 top=20 bottom=50 left=60 ";
// The keys, and the size of the picture in dots of 15 twips.
const std::tuple<const char*, std::string, int, int> kExtents[] = {
    {"its box", kEan + "right=110", 189, 113},
    // 3401 / 113 gives modules of 30 to the left: 3390 twips.
    {"fitted, no right", kEan, 226, 113},
    // Modules of 37 (37.4 cut): 113 of them.
    {"of its own size, no right", kEan + "size_set=0 size_factor=200", 278, 113},
    {"manual, no right", kEan + "manual_width=1 line_width=30", 226, 113},
    // The bars run up from the top to the sheet's edge.
    {"no bottom", "value=590123412345 left=60 top=20 manual_width=1 line_width=30", 226, 75},
    {"turned, no bottom",
     "value=590123412345 left=60 top=60 right=90 orient=1 manual_width=1 line_width=30", 113, 226},
    // Wider than the sheet, and whole: 113 modules of 120 twips.
    {"longer than the sheet", kEan + "left=1 manual_width=1 line_width=120", 904, 113},
    {"modules of no width", kEan + "right=61", 3, 113}};

TEST(BarcodeItems, havePicturesAsLargeAsWhatTheyCover) {
  for (const auto& [what, keys, width, height] : kExtents) {
    SCOPED_TRACE(what);
    TestReport report("<barcode " + keys + "/>");
    drawn(report.page());
    const std::string file = report.path(report.names().back());
    const auto picture = decodePicture(readFile(file));
    ASSERT_TRUE(picture);
    EXPECT_EQ(std::pair(picture->width, picture->height), std::pair(width, height));
    EXPECT_EQ(run({"zbarimg", "-q", file}).output, width == 3 ? "" : "EAN-13:5901234123457\n");
  }
}

// Items that show nothing, and what is told of each; nothing is told of the last.
const std::pair<std::string, std::string> kUnshown[] = {
    {"value=12345678901 br_type=UPCE right=50", "\"12345678901\": Can not convert UPC-A TO UPC-E"},
    {"br_type=InterLeave value=9 right=50", "\"9\": no symbol can be made of it"},
    {"br_type=39 value=W left=0", "\"W\": its bars cover nothing"},
    {"br_type=39 value=T right=50 top=9.9", "\"T\": its bars cover nothing"},
    {"br_type=CodeBar value=A1B right=50", "\"A1B\": its type is not drawn"},
    {"br_type=39 value=\"a\xE9\" right=50", "\"ERROR\": not a value of its type"},
    {"br_type=ITF value=12 right=50", "\"12\": no symbol can be made of it"},
    {"value=" + std::string(4000, 'q') + " br_type=KAREKOD right=50",
     "\"" + std::string(80, 'q') + "...\": no symbol can be made of it"},
    {"br_type=39 value=G left=0 right=30000", "\"G\": a picture can't have 113385 by 37 dots"},
    {"br_type=39 value=OK right=50", ""}};

TEST(BarcodeItems, areToldWhereAnExportCantShowThem) {
  const TemporaryDirectory place;
  std::string report = "a\r\n\f\r\n";
  std::string errors;
  for (const auto& [keys, told] : kUnshown) {
    report += "<barcode " + keys + " bottom=10/>\r\n";
    if (!told.empty()) errors += place.path("r.txt") + ": page 2: barcode " + told + "\n";
  }
  place.write("r.txt", report + "behind\r\n");
  for (const char* target : {"o.html", "o.pdf"})
    EXPECT_EQ(runViewer({"-f", "r.txt", "-export", target}, in(place)).told(), "0:" + errors);
  const std::string html = place.read("o.html");
  EXPECT_NE(html.find("r_barcode_OK_0_0.jpeg\" width=\"188\""), std::string::npos) << html;
  EXPECT_NE(html.find(">behind\r\n"), std::string::npos);
  EXPECT_NE(run({"pdftotext", place.path("o.pdf"), "-"}).output.find("behind"), std::string::npos);
}

// 255 bytes are the most that a file's name may have, in whatever code page its parts were. The
// side files go with their report.
TEST(BarcodeItems, havePicturesWithNamesThatFit) {
  const std::string cyrillic(100, '\xE0');  // 200 bytes of UTF-8
  const std::string letters(120, 'Q');
  for (const std::string& stem : {std::string("r"), std::string(250, 's'), std::string(170, 's')}) {
    const TemporaryDirectory place;
    place.write(stem + ".t",
                "<barcode br_type=128 value=\"" + cyrillic + "\" left=10 right=150 bottom=10/>" +
                    "<barcode br_type=39 value=" + letters + " right=150 bottom=10/>" +
                    "<barcode br_type=39 value=" + letters + "Q top=10 right=150 bottom=20/>" +
                    "<shape sh_type=5 left=10 top=10 right=20 bottom=20/>\r\n");
    for (const auto& [option, files] : {std::pair{"-test", 9U}, {"-dd", 1U}}) {
      const std::vector<std::string> line = {"-f",      stem + ".t", "-codepage", "1251",
                                             "-export", "o.png",     option};
      expectTold(runViewer(line, in(place)), "");
      EXPECT_EQ(place.names().size(), files) << stem.size();
    }
  }
}

}  // namespace
}  // namespace qor::test
