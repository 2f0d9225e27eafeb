// Pictures that others write, whole, odd, cut short and damaged.
#include "platform/pictures/embedded_picture.h"
#include "platform/pictures/picture.h"
#include "support/image_magick.h"
#include "support/test.h"

namespace qor::test {
namespace {

class PictureReading : public testing::Test {
 protected:
  ImageMagick magick_;
};

TEST_F(PictureReading, readsThePixelsOfEveryKindOfFile) {
  const std::string fade =
      "\\( -size 37x23 gradient: \\) -alpha off -compose CopyOpacity -composite";
  // The file and how it is made, with "FADE" for pixels that fade away.
  const auto rows = rowsOf(
      "gray.png -colorspace Gray -depth 8|"
      "gray1.png -colorspace Gray -monochrome -define png:bit-depth=1|"
      "gray16.png -colorspace Gray -depth 16 -define png:bit-depth=16|PNG24:rgb.png -depth 8|"
      "PNG24:interlaced.png -interlace PNG -depth 8|PNG8:palette1.png -colors 2|"
      "PNG8:palette8.png -colors 200 -interlace PNG|"
      "PNG8:transparent.png -alpha set -colors 20 -channel A -fx 'i<9?0:1'|PNG32:alpha.png FADE|"
      "PNG64:alpha16.png FADE -interlace PNG|"
      "grayalpha.png FADE -colorspace Gray -define png:color-type=4 -depth 8|"
      "onecolour.png -alpha set -channel A -fx 'i<9?0:1' -depth 8 -define png:color-type=2|"
      "colour.jpg -quality 85|gray.jpg -quality 85 -colorspace Gray|"
      "progressive.jpg -quality 85 -interlace JPEG|inks.jpg -quality 95 -colorspace CMYK|"
      "other.jpg -quality 95 -colorspace RGB -set colorspace sRGB|plain.gif|"
      "interlaced.gif -interlace GIF -colors 100|hole.gif -alpha set -channel A -fx 'i<9?0:1'|"
      "placed.gif -colors 30 -repage 60x50+7+9|BMP3:mono.bmp -monochrome|"
      "BMP3:nibbles.bmp -type Palette -colors 16|"
      "BMP3:bytes.bmp -type Palette -colors 200 -compress None|"
      "BMP3:runs.bmp -type Palette -colors 20 -compress RLE|BMP3:true.bmp -type TrueColor|"
      "BMP2:os2.bmp -type TrueColor|BMP2:os2bytes.bmp -type Palette -colors 100|"
      "BMP:newest.bmp -type TrueColor|BMP:alpha.bmp FADE|BMP:565.bmp -define bmp:subtype=RGB565|"
      "BMP:555.bmp -define bmp:subtype=RGB555|BMP:4444.bmp -define bmp:subtype=ARGB4444|"
      "alpha.ico FADE|opaque.ico -alpha off|palette.ico -alpha off -colors 9 -type Palette|"
      "mask.ico -alpha set -colors 9 -channel A -fx 'i<9?0:1' -type PaletteAlpha|"
      "packed.ico -alpha off -depth 8 -resize 256x256!");
  for (auto [file, arguments] : rows) {
    SCOPED_TRACE(file);
    if (arguments.starts_with("FADE")) arguments.replace(0, 4, fade);
    const bool rounded = file.find_first_of("456", file.find(':') + 1) != std::string::npos;
    const auto picture = decodePicture(magick_.make(arguments, file));
    ASSERT_TRUE(picture);
    const std::string first = nameOf(file) + "[0]";
    EXPECT_EQ(magick_.identify("%[fx:page.width>w?page.width:w]", first),
              std::to_string(picture->width));
    EXPECT_LE(distance(picture->pixels, magick_.seen(first)),
              file == "inks.jpg" ? 1 : rounded / 2.0);
  }
}

std::string little(int value, int size) {
  std::string bytes;
  for (int i = 0; i < size; ++i) bytes += static_cast<char>(value >> 8 * i);
  return bytes;
}

std::string longs(std::initializer_list<int> values) {
  std::string bytes;
  for (int value : values) bytes += little(value, 4);
  return bytes;
}

std::string bytesOf(std::initializer_list<int> values) {
  return {values.begin(), values.end()};
}

// A bitmap with the old header. `extra` is masks or palette.
std::string makeBitmap(int width, int height, int bits, int compression, const std::string& extra,
                       const std::string& data) {
  const int colors = compression == 0 || compression == 3 ? 0 : 3;
  const std::string dib = longs({40, width, height}) + little(1, 2) + little(bits, 2) +
                          longs({compression, 0, 0, 0, colors, 0}) + extra;
  const auto dataAt = static_cast<int>(14 + dib.size());
  return "BM" + longs({dataAt + static_cast<int>(data.size()), 0, dataAt}) + dib + data;
}

const std::string kThreeColours = bytesOf({0, 0, 255, 0, 0, 255, 0, 0, 255, 0, 0, 0});

TEST_F(PictureReading, readsBitmapsThatFewProgramsWrite) {
  const std::string kMasks565 = longs({0xF800, 0x7E0, 0x1F});
  const std::string kFiles[] = {
      makeBitmap(6, 2, 4, 2, kThreeColours,
                 bytesOf({3, 0x12, 0, 3, 0x20, 0x10, 0, 0, 6, 0x21, 0, 1})),
      makeBitmap(5, 2, 8, 1, kThreeColours, bytesOf({0, 3, 1, 2, 1, 0, 2, 2, 0, 0, 5, 1, 0, 1})),
      makeBitmap(2, -2, 24, 0, "", bytesOf({1, 2, 3, 4, 5, 6, 0, 0, 7, 8, 9, 10, 11, 12, 0, 0})),
      makeBitmap(2, 2, 32, 0, "", bytesOf({1, 2, 3, 0, 5, 6, 7, 0, 9, 10, 11, 0, 13, 14, 15, 0})),
      makeBitmap(2, 1, 16, 0, "", bytesOf({0x34, 0x12, 0xFF, 0x7B})),
      makeBitmap(2, 1, 16, 3, kMasks565, bytesOf({0x34, 0x12, 0xFF, 0x7B}))};
  for (const std::string& file : kFiles) {
    magick_.folder().write("made.bmp", file);
    const auto picture = decodePicture(file);
    ASSERT_TRUE(picture);
    EXPECT_EQ(distance(picture->pixels, magick_.seen("made.bmp")), 0) << &file - kFiles;
  }
}

TEST_F(PictureReading, leavesThePixelsThatRunsSkipInTheFirstColour) {
  const auto picture =
      decodePicture(makeBitmap(3, 2, 8, 1, kThreeColours, bytesOf({1, 1, 0, 2, 1, 1, 1, 2, 0, 1})));
  ASSERT_TRUE(picture);
  const std::uint32_t red = 0xFFFF0000, green = 0xFF00FF00, blue = 0xFF0000FF;
  EXPECT_EQ(picture->pixels, (std::vector{red, red, blue, green, red, red}));
}

TEST_F(PictureReading, takesInksAsTheyAreWithoutAdobesMark) {
  std::string file = magick_.make("-fill white -colorize 100 -colorspace CMYK", "inks.jpg");
  const std::size_t mark = file.find("\xFF\xEE");
  ASSERT_NE(mark, std::string::npos);
  EXPECT_EQ(decodePicture(file)->pixels.at(0), 0xFFFFFFFF);
  EXPECT_EQ(decodePicture(file.erase(mark, 16))->pixels.at(0), 0xFF000000);
}

TEST_F(PictureReading, takesTheLargestImageOfAnIcon) {
  const auto large = decodePicture(magick_.make("-resize 48x48!", "PNG24:large.png"));
  magick_.run("convert-im6.q16 large.png -resize 16x16 small.png");
  magick_.run("convert-im6.q16 small.png large.png small.png three.ico");
  EXPECT_EQ(decodePicture(magick_.folder().read("three.ico"))->pixels, large->pixels);
}

// Two icons of one image each as one icon.
std::string joined(const std::string& first, const std::string& second) {
  constexpr std::size_t kHead = 22;
  const auto entry = [](const std::string& icon, std::size_t at) {
    return icon.substr(6, 12) + little(static_cast<int>(at), 4);
  };
  return first.substr(0, 4) + little(2, 2) + entry(first, kHead + 16) +
         entry(second, first.size() + 16) + first.substr(kHead) + second.substr(kHead);
}

TEST_F(PictureReading, takesTheDeepestImageOfASize) {
  const std::string deep = magick_.make("-alpha off", "deep.ico");
  const std::string flat = magick_.make("-alpha off -colors 9 -type Palette", "flat.ico");
  const auto pixels = decodePicture(deep)->pixels;
  EXPECT_NE(decodePicture(flat)->pixels, pixels);
  EXPECT_EQ(decodePicture(joined(deep, flat))->pixels, pixels);
  EXPECT_EQ(decodePicture(joined(flat, deep))->pixels, pixels);
}

// The colours red and green, the first of them transparent.
TEST_F(PictureReading, knowsTheFirstColourOfAGifAsTransparent) {
  const auto gif = [](int transparent) {
    return "GIF89a" + little(2, 2) + little(1, 2) +
           bytesOf({0x80, 0, 0, 255, 0, 0, 0, 255, 0, '!', 0xF9, 4, 1, 0, 0, transparent, 0, ','}) +
           std::string(4, '\0') + little(2, 2) + little(1, 2) +
           bytesOf({0, 2, 2, 0x44, 0x0A, 0, ';'});
  };
  EXPECT_EQ(decodePicture(gif(0))->pixels, (std::vector<std::uint32_t>{0, 0xFF00FF00}));
  EXPECT_EQ(decodePicture(gif(1))->pixels, (std::vector<std::uint32_t>{0xFFFF0000, 0}));
}

TEST_F(PictureReading, refusesBitmapsAndIconsThatAreCutShort) {
  for (const auto& [name, arguments] :
       rowsOf("BMP3:a.bmp -type TrueColor|BMP3:c.bmp -type Palette -colors 9 -compress RLE|"
              "a.ico -alpha off -colors 9 -type Palette|b.ico -resize 256x256!")) {
    // The bytes at its end that no pixel needs.
    const std::size_t spare = name == "BMP3:c.bmp" ? 2 : 0;
    const std::string file = magick_.make(arguments, name);
    ASSERT_TRUE(decodePicture(file));
    for (std::size_t size = 0; size + spare < file.size(); size += file.size() / 1000 + 1) {
      // A copy of exactly this size lets the sanitizer see reads beyond its end.
      const std::vector<char> copy(file.data(), file.data() + size);
      EXPECT_FALSE(decodePicture({copy.data(), copy.size()})) << size << " of " << name;
    }
  }
}

// How many rows from the top are the same, and how many of the others have this colour only.
std::pair<int, int> rowsAlike(const Picture& one, const Picture& other, std::uint32_t missing) {
  int same = 0;
  int empty = 0;
  const auto row = [](const Picture& picture, int y) {
    return std::span(picture.pixels)
        .subspan(static_cast<std::size_t>(y * picture.width),
                 static_cast<std::size_t>(picture.width));
  };
  while (same < one.height && std::ranges::equal(row(one, same), row(other, same))) ++same;
  for (int y = same; y < one.height; ++y)
    empty += std::ranges::count(row(one, y), missing) == one.width ? 1 : 0;
  return {same, empty};
}

// Noise takes the same bytes in each row. What is missing is transparent, in JPEG gray.
TEST_F(PictureReading, showsDamagedPicturesAsFarAsTheyGo) {
  constexpr int kSide = 96;
  struct Row {
    std::string name;
    std::string options;
    std::uint32_t missing;
    int block;          // rows that are complete together
    std::size_t spare;  // bytes at its end that no pixel needs
  };
  for (const auto& [name, options, missing, block, spare] : std::initializer_list<Row>{
           {"PNG24:a.png", "", 0, 1, 0},
           {"PNG8:b.png", "-colors 200", 0, 1, 0},
           {"PNG64:c.png", "-alpha on", 0, 1, 0},
           {"a.gif", "-colors 200", 0, 1, 2},
           {"a.jpg", "-quality 90 -sampling-factor 1x1", 0xFF808080, 8, 0},
           {"b.jpg", "-quality 90 -colorspace Gray", 0xFF808080, 8, 0},
           {"c.jpg", "-quality 90 -sampling-factor 2x2", 0xFF808080, 32, 0}}) {
    magick_.run("convert-im6.q16 -size 96x96 xc:gray50 -seed 7 +noise Random " + options + " " +
                name);
    const std::string file = magick_.folder().read(nameOf(name));
    const Picture whole = decodePicture(file).value();
    EXPECT_TRUE(whole.whole) << name;
    int before = 0;
    for (std::size_t size = 0; size + spare < file.size(); size += 97) {
      const std::vector<char> copy(file.data(), file.data() + size);
      const auto picture = decodePicture({copy.data(), copy.size()});
      if (!picture) {
        EXPECT_LT(size, file.size() / 5) << name;
        continue;
      }
      SCOPED_TRACE(std::to_string(size) + " of " + std::to_string(file.size()) + " of " + name);
      EXPECT_FALSE(picture->whole);
      ASSERT_EQ(picture->pixels.size(), whole.pixels.size());
      const auto [same, empty] = rowsAlike(*picture, whole, missing);
      const int expected = static_cast<int>(kSide * size / file.size());
      EXPECT_NEAR(same, expected, block + kSide / 9);
      EXPECT_GE(same + empty, kSide - block) << empty;
      EXPECT_GE(same, before);
      before = same;
    }
  }
}

TEST_F(PictureReading, showsTheFirstPassesOfInterlacedPictures) {
  for (const auto& [name, options] : rowsOf(
           "PNG24:a.png -interlace PNG|a.gif -interlace GIF|a.jpg -quality 95 -interlace JPEG")) {
    magick_.run("convert-im6.q16 -size 64x64 gradient:red-blue " + options + " " + name);
    const std::string file = magick_.folder().read(nameOf(name));
    const Picture whole = decodePicture(file).value();
    const auto half = decodePicture(std::string_view(file).substr(0, file.size() * 3 / 4));
    ASSERT_TRUE(half) << name;
    EXPECT_FALSE(half->whole);
    const double far = distance(half->pixels, whole.pixels);
    EXPECT_GT(far, 0) << name;
    EXPECT_LT(far, name == "a.gif" ? 64 : 16) << name;  // half of its rows are missing
  }
}

// Twelve bits a code, though eight would do.
TEST_F(PictureReading, showsWhatOthersWriteAgainstTheRules) {
  const std::string gif =
      "GIF89a" + little(3, 2) + little(1, 2) + bytesOf({0x80, 0, 0, 255, 0, 0, 0, 255, 0, ','}) +
      std::string(4, '\0') + little(3, 2) + little(1, 2) +
      // 2048 begins, 1, 0, 2050 would be both again, 2049 ends.
      bytesOf({0, 11, 8, 0x00, 0x18, 0x00, 0x00, 0x10, 0x00, 0x01, 0x08, 0, ';'});
  const auto picture = decodePicture(gif);
  ASSERT_TRUE(picture);
  const std::uint32_t red = 0xFFFF0000, green = 0xFF00FF00;
  EXPECT_EQ(picture->pixels, (std::vector{green, red, green}));
  EXPECT_TRUE(picture->whole);
  std::string tooWide = gif;
  tooWide[tooWide.find('\x0B')] = 12;
  EXPECT_FALSE(decodePicture(tooWide));

  const std::string jpeg = magick_.make("-quality 80", "a.jpg");
  const auto pixels = decodePicture(jpeg)->pixels;
  for (const auto& [length, body] : {std::pair{4, "Ex"}, {0, "Exif"}, {3, "Exif, but longer"}}) {
    const std::string mark = {'\xFF', '\xE1', '\0', static_cast<char>(length)};
    const auto odd = decodePicture(jpeg.substr(0, 2) + mark + body + jpeg.substr(2));
    ASSERT_TRUE(odd) << length;
    EXPECT_EQ(odd->pixels, pixels) << length;
  }
}

// Other programs get what every reader of the format takes.
TEST_F(PictureReading, givesDamagedFilesAwayAsNewOnes) {
  for (const auto& [name, options] : rowsOf("PNG24:a.png -depth 8|a.jpg -quality 90")) {
    const std::string file = magick_.make(options, name);
    const std::string cut = file.substr(0, file.size() - 30);
    EXPECT_EQ(embeddedPicture(file)->bytes, file);
    const auto given = embeddedPicture(cut);
    ASSERT_TRUE(given);
    EXPECT_EQ(given->kind, EmbeddedKind::png);
    magick_.folder().write("given.png", given->bytes);
    const Picture seen = decodePicture(cut).value();
    auto onPaper = seen.pixels;
    for (std::uint32_t& pixel : onPaper) pixel = pixel == 0 ? 0xFFFFFFFF : pixel;
    EXPECT_EQ(distance(magick_.seen("given.png"), onPaper), 0) << name;
  }
}

TEST_F(PictureReading, refusesWhatHoldsNoPixels) {
  std::string jpeg = magick_.make("-quality 80", "a.jpg");
  const std::size_t scan = jpeg.find("\xFF\xDA");
  const std::size_t start = scan + 2 + static_cast<unsigned char>(jpeg[scan + 3]);
  EXPECT_FALSE(decodePicture(jpeg.substr(0, start)));
  EXPECT_FALSE(decodePicture(jpeg.substr(0, start) + "\xFF\xD9"));
  EXPECT_TRUE(decodePicture(jpeg.substr(0, start + 20)));
  // A scrap that promises far more than it could ever be.
  jpeg.replace(jpeg.find("\xFF\xC0") + 5, 4, "\x1F\xFF\x1F\xFF");
  EXPECT_FALSE(decodePicture(jpeg.substr(0, start + 20)));
  const std::string png = magick_.make("-depth 8", "PNG24:a.png");
  EXPECT_FALSE(decodePicture(png.substr(0, png.find("IDAT") + 6)));
  const std::string gif = magick_.make("", "a.gif");
  EXPECT_FALSE(decodePicture(gif.substr(0, gif.find(',') + 11)));
}

TEST_F(PictureReading, refusesSidesOfFiftyThousandPixels) {
  const std::string bigPng =
      std::string("\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\xC3\x50\0\0\xC3\x50\x08\2\0\0\0", 29);
  std::string bigJpeg = magick_.make("", "a.jpg");
  bigJpeg.replace(bigJpeg.find("\xFF\xC0") + 5, 4, "\xC3\x50\xC3\x50");
  std::string bigGif = magick_.make("", "a.gif");
  bigGif.replace(6, 4, little(50000, 2) + little(50000, 2));
  const std::string directory = bytesOf({0, 0, 1, 0, 1, 0, 0, 0, 0, 0, 1, 0, 24, 0});
  const std::string bitmap = makeBitmap(50000, 50000, 24, 0, "", "");
  const std::string bigIcon = directory + longs({40, 22}) + bitmap.substr(14);
  for (const std::string& file : {bigPng, bigJpeg, bigGif, bitmap, bigIcon,
                                  makeBitmap(50000, 50000, 8, 1, kThreeColours, bytesOf({0, 1}))})
    EXPECT_FALSE(decodePicture(file)) << file.substr(0, 2);
}

}  // namespace
}  // namespace qor::test
