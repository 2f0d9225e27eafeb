// Pictures of pages, made by the program and looked at by another one.
#include <sstream>

#include <gtest/gtest.h>

#include "support/program.h"
#include "support/temporary_directory.h"

namespace qor::test {
namespace {

// What an independent reader says of the picture.
std::string identify(const std::string& file, const std::string& format) {
  return run({"identify-im6.q16", "-format", format, file}).output;
}

// The place of what is not white: "left,top right,bottom" in dots.
std::string inkBox(const std::string& file) {
  const Outcome outcome = run({"convert-im6.q16", file, "-bordercolor", "white", "-border", "1",
                               "-trim", "-format", "%X %Y %w %h", "info:"});
  std::istringstream numbers(outcome.output);
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  numbers >> x >> y >> width >> height;
  return std::to_string(x - 1) + "," + std::to_string(y - 1) + " " + std::to_string(x - 1 + width) +
         "," + std::to_string(y - 1 + height);
}

class ImageExport : public testing::Test {
 protected:
  void exportTo(const std::string& target, const std::string& report) {
    directory_.write("report.txt", report);
    const Outcome outcome = runViewer({"-f", "report.txt", "-codepage", "1251", "-export", target},
                                      {.directory = directory_.path()});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.errors, "");
  }

  TemporaryDirectory directory_;
};

TEST_F(ImageExport, WritesEveryFormatAtTheSizeOfTheSheet) {
  struct Row {
    const char* extension;
    const char* format;
  };
  for (const Row& row :
       {Row{"bmp", "BMP3"}, Row{"jpeg", "JPEG"}, Row{"gif", "GIF"}, Row{"png", "PNG"}}) {
    const std::string name = std::string("page.") + row.extension;
    exportTo(name, "text");
    // A4 at 96 dots to the inch, cut to whole dots.
    EXPECT_EQ(identify(directory_.path(name), "%m %w x %h"),
              std::string(row.format) + " 793 x 1122");
  }
  exportTo("page.ico", "text");
  const std::string icon = directory_.read("page.ico");
  // One image; its bitmap header tells the size, doubled in height for the mask.
  EXPECT_EQ(icon.substr(0, 6), std::string("\0\0\1\0\1\0", 6));
  EXPECT_EQ(icon.substr(22, 12), std::string("\x28\0\0\0\x19\x03\0\0\xC4\x08\0\0", 12));
}

TEST_F(ImageExport, NumbersThePagesOfALongerReport) {
  exportTo("two.png", "a\f\r\nb\f\r\n");
  EXPECT_TRUE(directory_.has("two(1).png"));
  EXPECT_TRUE(directory_.has("two(2).png"));
  EXPECT_FALSE(directory_.has("two.png"));
  EXPECT_FALSE(directory_.has("two(3).png"));
}

TEST_F(ImageExport, TurnsTheSheetForLandscape) {
  exportTo("wide.png", "\x1B&l1Otext");
  EXPECT_EQ(identify(directory_.path("wide.png"), "%w x %h"), "1122 x 793");
}

TEST_F(ImageExport, WritesGrayUnlessAPageHasColour) {
  exportTo("gray.png", "text<shape sh_type=4 bt=1 bc=Silver left=10 top=20 right=50 bottom=60/>");
  exportTo("colour.png", "text<text fc=Red left=10 top=20 tc=x/>");
  EXPECT_EQ(identify(directory_.path("gray.png"), "%[channels] %z"), "gray 8");
  EXPECT_EQ(identify(directory_.path("colour.png"), "%[channels] %z"), "srgb 8");
}

TEST_F(ImageExport, StartsEachPageWithItsOwnPenAndBrush) {
  exportTo("p.png",
           "<shape sh_type=2 bt=1 bc=Red right=9 bottom=9/>\f\r\n"
           "<img imgn=3 left=20 top=20 right=60 bottom=40/>\f\r\n");
  EXPECT_EQ(identify(directory_.path("p(2).png"), "%[channels]"), "gray");
}

TEST_F(ImageExport, PutsShapesAtTheirMillimetres) {
  struct Row {
    const char* name;
    const char* item;
    const char* box;
  };
  const Row rows[] = {
      // 20 mm are 75.6 dots, 100 mm 377.9, 30 mm 113.4, 50 mm 189.
      {"frame", "<shape sh_type=2 left=20 top=30 right=100 bottom=50/>", "75,113 378,189"},
      {"line", "<shape left=20 top=30 right=100 bottom=30 lw=60/>", "76,111 378,115"},
      {"field", "<shape sh_type=2 pt=0 bt=1 left=20 top=30 right=100 bottom=50/>",
       "76,113 378,189"},
      {"beyond the sheet", "<shape sh_type=2 bt=1 left=-50 top=-50 right=2000 bottom=2/>",
       "0,0 793,8"},
      {"ellipse", "<shape sh_type=4 pt=0 bt=1 left=20 top=30 right=100 bottom=50/>",
       "75,113 378,189"},
  };
  for (const Row& row : rows) {
    exportTo("page.png", row.item);
    EXPECT_EQ(inkBox(directory_.path("page.png")), row.box) << row.name;
  }
}

TEST_F(ImageExport, PutsTextAtItsMillimetres) {
  // A full block fills its cell: 120 by 227 twips, here 80 by 15 dots for ten of them.
  const std::string blocks(10, '\xDB');
  directory_.write("blocks.txt", "<text left=20 top=30 tc=\"" + blocks + "\"/>");
  runViewer({"-f", "blocks.txt", "-codepage", "866", "-export", "blocks.png"},
            {.directory = directory_.path()});
  EXPECT_EQ(inkBox(directory_.path("blocks.png")), "76,113 156,128");
}

TEST_F(ImageExport, DrawsPicturesDotForDot) {
  const std::string picture = directory_.path("p.png");
  run({"convert-im6.q16", "-size", "40x30", "xc:black", picture});
  exportTo("page.png", "<img image=\"p.png\" left=20 top=30/>");
  EXPECT_EQ(inkBox(directory_.path("page.png")), "76,113 116,143");
  exportTo("page.png", "<img image=\"p.png\" left=20 top=30 right=60 bottom=50 imgSS=1/>");
  EXPECT_EQ(inkBox(directory_.path("page.png")), "75,113 227,189");
}

}  // namespace
}  // namespace qor::test
