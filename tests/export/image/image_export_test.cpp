// Pictures of pages, made by the program and looked at by another one.
#include "support/image_magick.h"
#include "support/page_picture.h"
#include "support/test.h"

namespace qor::test {
namespace {

class ImageExport : public testing::Test {
 protected:
  // What an independent reader says of the picture.
  std::string told(const std::string& target, const std::string& report, const char* format) {
    const TemporaryDirectory& place = magick_.folder();
    place.write("report.txt", report);
    expectTold(runViewer({"-f", "report.txt", "-export", target}, in(place)), "");
    return magick_.identify(format, target);
  }

  ImageMagick magick_;
};

TEST_F(ImageExport, writesEveryFormatAtTheSizeOfTheSheet) {
  // A4 at 96 dots to the inch, cut to whole dots.
  for (const auto& [name, format] : rowsOf("p.bmp BMP3|p.jpeg JPEG|p.gif GIF|p.png PNG"))
    EXPECT_EQ(told(name, "text", "%m %w x %h"), format + " 793 x 1122");
  EXPECT_EQ(told("wide.png", "\x1B&l1Otext", "%w x %h"), "1122 x 793");
  told("p.ico", "text", "");
  const std::string icon = magick_.folder().read("p.ico");
  // One image; its bitmap header tells the size, doubled in height for the mask.
  EXPECT_EQ(icon.substr(0, 6), std::string("\0\0\1\0\1\0", 6));
  EXPECT_EQ(icon.substr(22, 12), std::string("\x28\0\0\0\x19\x03\0\0\xC4\x08\0\0", 12));
}

TEST_F(ImageExport, putsItemsAtTheirMillimetres) {
  magick_.run("convert-im6.q16 -size 40x30 xc:black p.bmp");
  // 20 mm are 75.6 dots, 100 mm 377.9, 30 mm 113.4, 50 mm 189.
  const std::string place = " left=20 top=30 right=100 bottom=50/>";
  const std::pair<std::string, const char*> rows[] = {
      {"<shape sh_type=2" + place, "75,113 378,189"},
      {"<shape left=20 top=30 right=100 bottom=30 lw=60/>", "76,111 378,115"},
      {"<shape sh_type=2 pt=0 bt=1" + place, "76,113 378,189"},
      {"<shape sh_type=2 bt=1 left=-50 top=-50 right=2000 bottom=2/>", "0,0 793,8"},
      {"<shape sh_type=4 pt=0 bt=1" + place, "75,113 378,189"},
      {"<img image=\"p.bmp\" left=20 top=30/>", "76,113 116,143"},
      {"<img image=\"p.bmp\" imgSS=1" + place, "75,113 378,189"},
      // 75.6 high, so 100.8 wide; 75.6 wide, so 56.7 high, each in the middle.
      {"<img image=\"p.bmp\" imgSS=2" + place, "176,113 278,189"},
      {"<img image=\"p.bmp\" imgSS=2 left=20 top=30 right=40 bottom=70/>", "75,160 152,218"},
      // A box without a lower edge is as high as it stands below the top, upward.
      {"<img image=\"p.bmp\" imgSS=2 left=20 top=30 right=100/>", "75,0 378,171"},
      // A dot is a twip in the corner, or nothing at all.
      {"<img image=\"p.bmp\" imgSS=3" + place, "0,0 3,2"},
      {"<img image=\"p.bmp\" imgSS=4" + place, "793,1122 0,0"}};
  for (const auto& [item, box] : rows)
    EXPECT_EQ(text(inkBox(pageBy(Road::picture, magick_.folder(), item))), box) << item;
}

}  // namespace
}  // namespace qor::test
