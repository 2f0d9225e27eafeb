// Shapes and images as they reach the canvas.
#include "platform/pictures/picture.h"
#include "render/path_ellipsis.h"
#include "support/page_picture.h"
#include "support/picture_file.h"
#include "support/recording_canvas.h"
#include "support/test.h"

namespace qor::test {
namespace {

std::string pngFile(int width, int height) {
  const std::vector<std::uint32_t> pixels(static_cast<std::size_t>(width * height), 0xFF00FF00U);
  return pictureFile({width, height, width, pixels.data()}, PictureFormat::png);
}

constexpr const char* kErrorFont = "Times New Roman 300x0 weight 400 color 0\n";

TEST(ShapeDrawing, anUnknownBrushLeavesTheOneBefore) {
  EXPECT_EQ(drawn("<shape sh_type=2 bt=1 bc=Red/><shape sh_type=2 bt=8 bc=Blue/>"),
            "rectangle 0,0 0,0 pen 1 15 0 brush 1 ff\nrectangle 0,0 0,0 pen 1 15 0 brush 1 ff\n");
  EXPECT_EQ(drawn("<shape sh_type=6 right=9 bottom=9/>"), "");
}

// The shape keeps its place on the page: its corner lies 10 and 20 mm into a bitmap of its own
// size, 15 twips to the dot.
TEST(ShapeDrawing, typeFiveLeavesAPictureBesideTheReport) {
  TestReport report(
      "<shape sh_type=5 left=10 top=20 right=50 bottom=40/>"
      "<shape sh_type=5 left=1 top=1 right=21 bottom=21 lw=60/>");
  drawn(report.page());
  const auto picture = decodePicture(readFile(report.path("report_shape_10_20.jpeg"))).value();
  EXPECT_EQ(std::pair(picture.width, picture.height), std::pair(151, 75));
  const auto corner = decodePicture(readFile(report.path("report_shape_1_1.jpeg"))).value();
  EXPECT_TRUE(isInk(corner, 3, 40) && isInk(corner, 40, 3));
  EXPECT_FALSE(isInk(corner, 40, 40) || isInk(corner, corner.width - 1, 40));
}

TEST(ImageDrawing, showsThePictureOrTheReasonWhyNot) {
  const TemporaryDirectory directory;
  const std::string good = directory.write("logo.PNG", pngFile(10, 4));
  const std::string other = directory.write("logo.tif", pngFile(10, 4));
  const std::string broken = directory.write("broken.png", pngFile(10, 4).substr(0, 60));
  const std::string place = " left=10 top=10 right=110 bottom=20 ";
  const std::string frame =
      "rectangle 566,566 6236,1133 pen 1 1 0 brush 1 ffffff\nclip 566,566 6236,1133\n";
  EXPECT_EQ(drawn("<img image=\"" + good + "\" sh_type=2" + place + "/>"),
            "picture 10x4 at 566,566 716,626\nrectangle 566,566 716,626 pen 1 15 0 brush 0 0\n");
  const std::pair<std::string, std::string> rows[] = {
      {"imgn=3", "\"Resim ID = 3 yok\" "}, {"image=a.png", "\"Resim yok\" "},
      {"image=\"no.png\"", "\"no.png\" "}, {"imgn=3 sh_type=2", "\"Resim ID = 3 yok\" "},
      {"image=\"" + other + "\"", ""},     {"image=\"" + broken + "\"", ""}};
  for (const auto& [keys, text] : rows) {
    const std::string record = drawn("<img " + keys + place + "/>");
    EXPECT_TRUE(record.starts_with(frame)) << record;
    EXPECT_NE(record.find(text + kErrorFont), std::string::npos) << record;
  }
  // A large one is let go, and there again the next time.
  const std::string large = directory.write("large.png", pngFile(1200, 900));
  TestReport report("<img image=\"" + large + "\" imgSS=1" + place + "/>");
  VDocPage& page = report.page();
  const std::string picture = "picture 1200x900 at 566,566 6236,1133\n";
  EXPECT_EQ(drawn(page) + drawn(page), picture + picture);
}

TEST(ImageDrawing, messagesKeepOffTheSpacingOfTexts) {
  const std::string image = "<img image=\"no.png\" left=10 top=10 right=110 bottom=20/>";
  const std::string record = drawn("<text hs=9 left=1 top=1 tc=a/>" + image);
  EXPECT_TRUE(record.ends_with(drawn(image))) << record;
}

TEST(PathEllipsis, keepsTheLastComponent) {
  const auto shown = [](std::u32string_view text, double room) {
    const auto fitted = withPathEllipsis(text, room, [](char32_t) { return 1.0; });
    return std::string(fitted.begin(), fitted.end());
  };
  const std::tuple<const char32_t*, int, const char*> rows[] = {
      {U"a/b/file.png", 20, "a/b/file.png"},          {U"directory/file.png", 6, ".../fi"},
      {U"directory/file.png", 15, "dir.../file.png"}, {U"filename.png", 6, "...fil"},
      {U"directory\\file.png", 12, "...\\file.png"},  {U"a/b", 0, ""}};
  for (const auto& [text, room, expected] : rows) EXPECT_EQ(shown(text, room), expected);
}

}  // namespace
}  // namespace qor::test
