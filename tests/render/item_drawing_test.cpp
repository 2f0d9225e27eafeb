// Shapes and images as they reach the canvas.
#include <gtest/gtest.h>

#include "platform/picture.h"
#include "render/page_walk.h"
#include "render/path_ellipsis.h"
#include "support/recording_canvas.h"
#include "support/report_reader.h"
#include "support/string_sink.h"

namespace qor::test {
namespace {

std::string drawn(VDocPage& page) {
  RecordingCanvas canvas;
  DrawPage(page, canvas);
  return canvas.record();
}

std::string drawn(const std::string& bytes) {
  TestReport report(bytes);
  return drawn(report.page());
}

std::string pngFile(int width, int height) {
  const std::vector<std::uint32_t> pixels(static_cast<std::size_t>(width * height), 0xFF00FF00U);
  StringSink sink;
  encodePicture({width, height, width, pixels.data()}, PictureFormat::png, 96, sink);
  return sink.text();
}

constexpr const char* kErrorFont = "Times New Roman 300x0 weight 400 color 0\n";

TEST(ShapeDrawing, AnUnknownBrushLeavesTheOneBefore) {
  EXPECT_EQ(drawn("<shape sh_type=2 bt=1 bc=Red/><shape sh_type=2 bt=8 bc=Blue/>"),
            "rectangle 0,0 0,0 pen 1 15 0 brush 1 ff\nrectangle 0,0 0,0 pen 1 15 0 brush 1 ff\n");
  EXPECT_EQ(drawn("<shape sh_type=6 right=9 bottom=9/>"), "");
}

TEST(ShapeDrawing, TypeFiveLeavesAPictureBesideTheReport) {
  TestReport report("<shape sh_type=5 left=10 top=20 right=50 bottom=40/>");
  drawn(report.page());
  const auto picture = decodePicture(readFile(report.path("report_shape_10_20.jpeg")));
  ASSERT_TRUE(picture.has_value());
  // 40 by 20 mm, 15 twips to the dot. The shape keeps its place on the page: its corner lies 10 and
  // 20 mm into a bitmap of its own size, just below the last row.
  EXPECT_EQ(picture->width, 151);
  EXPECT_EQ(picture->height, 75);

  TestReport corner("<shape sh_type=5 left=1 top=1 right=21 bottom=21 lw=60/>");
  drawn(corner.page());
  const auto inside = decodePicture(readFile(corner.path("report_shape_1_1.jpeg")));
  ASSERT_TRUE(inside.has_value());
  const auto level = [&](int x, int y) {
    return inside->pixels[static_cast<std::size_t>(y * inside->width + x)] & 0xFF;
  };
  EXPECT_LT(level(3, 40), 50U);
  EXPECT_LT(level(40, 3), 50U);
  EXPECT_GT(level(40, 40), 200U);
  EXPECT_GT(level(inside->width - 1, 40), 200U);
}

TEST(ImageDrawing, ShowsThePictureOrTheReasonWhyNot) {
  const TemporaryDirectory directory;
  const std::string good = directory.write("logo.PNG", pngFile(10, 4));
  const std::string other = directory.write("logo.tif", pngFile(10, 4));
  const std::string broken = directory.write("broken.png", pngFile(10, 4).substr(0, 60));
  const std::string place = " left=10 top=10 right=110 bottom=20 ";
  const std::string frame =
      "rectangle 566,566 6236,1133 pen 1 1 0 brush 1 ffffff\nclip 566,566 6236,1133\n";
  EXPECT_EQ(drawn("<img imgSS=1 image=\"" + good + "\"" + place + "/>"),
            "picture 10x4 at 566,566 6236,1133\n");
  EXPECT_EQ(drawn("<img image=\"" + good + "\" sh_type=2" + place + "/>"),
            "picture 10x4 at 566,566 716,626\nrectangle 566,566 716,626 pen 1 15 0 brush 0 0\n");
  struct Row {
    std::string keys;
    std::string text;
  };
  for (const Row& row :
       {Row{"imgn=3", "Resim ID = 3 yok"}, Row{"image=a.png", "Resim yok"},
        Row{"image=\"no.png\"", "no.png"}, Row{"imgn=3 sh_type=2", "Resim ID = 3 yok"}}) {
    const std::string record = drawn("<img " + row.keys + place + "/>");
    EXPECT_EQ(record.substr(0, frame.size()), frame) << row.keys;
    EXPECT_NE(record.find("\"" + row.text + "\" " + kErrorFont), std::string::npos) << record;
  }
  for (const std::string& name : {other, broken}) {
    const std::string record = drawn("<img image=\"" + name + "\"" + place + "/>");
    EXPECT_EQ(record.find("picture"), std::string::npos) << name;
    EXPECT_NE(record.find(kErrorFont), std::string::npos) << name;
  }
}

TEST(ImageDrawing, LargePicturesAreThereEachTime) {
  const TemporaryDirectory directory;
  const std::string large = directory.write("large.png", pngFile(1200, 900));
  TestReport report("<img image=\"" + large + "\" imgSS=1 left=10 top=10 right=110 bottom=20/>");
  const std::string picture = "picture 1200x900 at 566,566 6236,1133\n";
  VDocPage& page = report.page();
  EXPECT_EQ(drawn(page), picture);
  EXPECT_EQ(drawn(page), picture);
}

TEST(ImageDrawing, MessagesKeepOffTheSpacingOfTexts) {
  const std::string image = "<img image=\"no.png\" left=10 top=10 right=110 bottom=20/>";
  const auto behindText = [](const std::string& record) {
    return record.substr(record.find('\n') + 1);
  };
  EXPECT_EQ(behindText(drawn("<text hs=9 left=1 top=1 tc=a/>" + image)),
            behindText(drawn("<text left=1 top=1 tc=a/>" + image)));
}

TEST(PathEllipsis, KeepsTheLastComponent) {
  const auto shown = [](std::u32string_view text, double room) {
    const auto fitted = withPathEllipsis(text, room, [](char32_t) { return 1.0; });
    return std::string(fitted.begin(), fitted.end());
  };
  EXPECT_EQ(shown(U"a/b/file.png", 20), "a/b/file.png");
  EXPECT_EQ(shown(U"directory/file.png", 15), "dir.../file.png");
  EXPECT_EQ(shown(U"directory\\file.png", 12), "...\\file.png");
  EXPECT_EQ(shown(U"directory/file.png", 6), ".../fi");
  EXPECT_EQ(shown(U"filename.png", 6), "...fil");
  EXPECT_EQ(shown(U"a/b", 0), "");
}

}  // namespace
}  // namespace qor::test
