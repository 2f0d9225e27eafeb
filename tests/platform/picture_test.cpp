// ImageMagick is the second opinion: it writes files of every kind that must be read, and reads the
// files that are written.
#include "platform/picture.h"

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <numeric>
#include <random>

#include <gtest/gtest.h>

#include "base/errors.h"
#include "support/string_sink.h"
#include "support/temporary_directory.h"

namespace qor {
namespace {

using test::StringSink;
using test::TemporaryDirectory;

// Of a file with a format before it, such as "PNG8:a.png".
std::string nameOf(const std::string& file) {
  return file.substr(file.find(':') + 1);
}

class PictureTest : public testing::Test {
 protected:
  void run(const std::string& command) const {
    const std::string line = "cd '" + folder_.path() + "' && " + command;
    ASSERT_EQ(std::system(line.c_str()), 0) << command;
  }

  // A file of 37 by 23 pixels that ImageMagick writes.
  std::string make(const std::string& arguments, const std::string& file) const {
    run("convert-im6.q16 -seed 5 -size 37x23 plasma:tomato-steelblue " + arguments + " " + file);
    return folder_.read(nameOf(file));
  }

  // The pixels that ImageMagick sees, each with its colours multiplied by alpha.
  std::vector<std::uint32_t> seen(const std::string& file) const {
    run("convert-im6.q16 '" + file +
        "' -background none -layers flatten -colorspace sRGB -depth 8 RGBA:seen");
    const std::string bytes = folder_.read("seen");
    std::vector<std::uint32_t> pixels(bytes.size() / 4);
    for (std::size_t i = 0; i < pixels.size(); ++i) {
      const auto byte = [&](std::size_t at) -> unsigned {
        return static_cast<unsigned char>(bytes[i * 4 + at]);
      };
      const auto part = [&](std::size_t at) { return (byte(at) * byte(3) * 2 + 255) / 510; };
      pixels[i] = byte(3) << 24 | part(0) << 16 | part(1) << 8 | part(2);
    }
    return pixels;
  }

  std::string identify(const std::string& format, const std::string& file) const {
    run("identify-im6.q16 -units PixelsPerInch -format '" + format + "' '" + file + "' > said");
    return folder_.read("said");
  }

  struct Victim {
    std::string file;
    std::size_t spare = 0;  // bytes at the end that no pixel needs
  };

  std::vector<Victim> victims() const {
    return {{make("-depth 8", "PNG24:a.png")},
            {make("-colors 50 -interlace PNG", "PNG8:b.png")},
            {make("-quality 80", "a.jpg")},
            {make("-quality 80 -interlace JPEG", "b.jpg")},
            {make("-interlace GIF", "a.gif"), 1},
            {make("-type TrueColor", "BMP3:a.bmp")},
            {make("-alpha set -channel A -fx 0.5", "BMP:b.bmp")},
            {make("-type Palette -colors 9 -compress RLE", "BMP3:c.bmp"), 2},
            {make("-alpha off -colors 9 -type Palette", "a.ico")},
            {make("-resize 256x256!", "b.ico")}};
  }

  TemporaryDirectory folder_;
};

// The mean distance of the bytes of two pictures; more than any byte can be if their sizes differ.
double distance(std::span<const std::uint32_t> left, std::span<const std::uint32_t> right) {
  if (left.size() != right.size() || left.empty()) return 1000;
  const auto bytes = std::as_bytes(left);
  const auto apart = [](std::byte a, std::byte b) { return std::abs(int(a) - int(b)); };
  return std::transform_reduce(bytes.begin(), bytes.end(), std::as_bytes(right).begin(), 0.0,
                               std::plus(), apart) /
         static_cast<double>(bytes.size());
}

TEST_F(PictureTest, readsThePixelsOfEveryKindOfFile) {
  struct Row {
    std::string arguments;
    const char* file;
    double tolerance = 0;
  };
  const std::string fade =
      "\\( -size 37x23 gradient: \\) -alpha off -compose CopyOpacity -composite";
  const Row rows[] = {
      {"-colorspace Gray -depth 8", "gray.png"},
      {"-colorspace Gray -monochrome -define png:bit-depth=1", "gray1.png"},
      {"-colorspace Gray -depth 16 -define png:bit-depth=16", "gray16.png", 0.5},
      {"-depth 8", "PNG24:rgb.png"},
      {"-interlace PNG -depth 8", "PNG24:interlaced.png"},
      {"-colors 2", "PNG8:palette1.png"},
      {"-colors 200 -interlace PNG", "PNG8:palette8.png"},
      {"-alpha set -colors 20 -channel A -fx 'i<9?0:1'", "PNG8:transparent.png"},
      {fade, "PNG32:alpha.png"},
      {fade + " -interlace PNG", "PNG64:alpha16.png", 0.5},
      {fade + " -colorspace Gray -define png:color-type=4 -depth 8", "grayalpha.png"},
      {"-alpha set -channel A -fx 'i<9?0:1' -depth 8 -define png:color-type=2", "onecolour.png"},
      {"-quality 85", "colour.jpg"},
      {"-quality 85 -colorspace Gray", "gray.jpg"},
      {"-quality 85 -interlace JPEG", "progressive.jpg"},
      {"-quality 95 -colorspace CMYK", "inks.jpg", 1},
      {"-quality 95 -colorspace RGB -set colorspace sRGB", "other.jpg"},
      {"", "plain.gif"},
      {"-interlace GIF -colors 100", "interlaced.gif"},
      {"-alpha set -channel A -fx 'i<9?0:1'", "hole.gif"},
      {"-colors 30 -repage 60x50+7+9", "placed.gif"},
      {"-monochrome", "BMP3:mono.bmp"},
      {"-type Palette -colors 16", "BMP3:nibbles.bmp"},
      {"-type Palette -colors 200 -compress None", "BMP3:bytes.bmp"},
      {"-type Palette -colors 20 -compress RLE", "BMP3:runs.bmp"},
      {"-type TrueColor", "BMP3:true.bmp"},
      {"-type TrueColor", "BMP2:os2.bmp"},
      {"-type Palette -colors 100", "BMP2:os2bytes.bmp"},
      {"-type TrueColor", "BMP:newest.bmp"},
      {fade, "BMP:alpha.bmp"},
      {"-define bmp:subtype=RGB565", "BMP:565.bmp", 0.5},
      {"-define bmp:subtype=RGB555", "BMP:555.bmp", 0.5},
      {"-define bmp:subtype=ARGB4444", "BMP:4444.bmp", 0.5},
      {fade, "alpha.ico"},
      {"-alpha off", "opaque.ico"},
      {"-alpha off -colors 9 -type Palette", "palette.ico"},
      {"-alpha off -depth 8 -resize 256x256!", "packed.ico"},
  };
  for (const auto& [arguments, file, tolerance] : rows) {
    SCOPED_TRACE(file);
    const auto picture = decodePicture(make(arguments, file));
    ASSERT_TRUE(picture);
    const std::string first = nameOf(file) + "[0]";
    EXPECT_EQ(identify("%[fx:page.width>w?page.width:w]", first), std::to_string(picture->width));
    EXPECT_LE(distance(picture->pixels, seen(first)), tolerance);
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

TEST_F(PictureTest, readsBitmapsThatFewProgramsWrite) {
  const std::string kMasks565 = longs({0xF800, 0x7E0, 0x1F});
  const std::string kFiles[] = {
      makeBitmap(6, 2, 4, 2, kThreeColours,
                 bytesOf({3, 0x12, 0, 3, 0x20, 0x10, 0, 0, 6, 0x21, 0, 1})),
      makeBitmap(5, 2, 8, 1, kThreeColours, bytesOf({0, 3, 1, 2, 1, 0, 2, 2, 0, 0, 5, 1, 0, 1})),
      makeBitmap(2, -2, 24, 0, "", bytesOf({1, 2, 3, 4, 5, 6, 0, 0, 7, 8, 9, 10, 11, 12, 0, 0})),
      makeBitmap(2, 2, 32, 0, "", bytesOf({1, 2, 3, 0, 5, 6, 7, 0, 9, 10, 11, 0, 13, 14, 15, 0})),
      makeBitmap(2, 1, 16, 0, "", bytesOf({0x34, 0x12, 0xFF, 0x7B})),
      makeBitmap(2, 1, 16, 3, kMasks565, bytesOf({0x34, 0x12, 0xFF, 0x7B})),
  };
  for (const std::string& file : kFiles) {
    folder_.write("made.bmp", file);
    const auto picture = decodePicture(file);
    ASSERT_TRUE(picture);
    EXPECT_EQ(distance(picture->pixels, seen("made.bmp")), 0) << &file - kFiles;
  }
}

TEST_F(PictureTest, leavesThePixelsThatRunsSkipInTheFirstColour) {
  const auto picture =
      decodePicture(makeBitmap(3, 2, 8, 1, kThreeColours, bytesOf({1, 1, 0, 2, 1, 1, 1, 2, 0, 1})));
  ASSERT_TRUE(picture);
  const std::uint32_t red = 0xFFFF0000, green = 0xFF00FF00, blue = 0xFF0000FF;
  EXPECT_EQ(picture->pixels, (std::vector{red, red, blue, green, red, red}));
}

TEST_F(PictureTest, takesInksAsTheyAreWithoutAdobesMark) {
  std::string file = make("-fill white -colorize 100 -colorspace CMYK", "inks.jpg");
  const std::size_t mark = file.find("\xFF\xEE");
  ASSERT_NE(mark, std::string::npos);
  EXPECT_EQ(decodePicture(file)->pixels.at(0), 0xFFFFFFFF);
  EXPECT_EQ(decodePicture(file.erase(mark, 16))->pixels.at(0), 0xFF000000);
}

TEST_F(PictureTest, takesTheLargestImageOfAnIcon) {
  const auto large = decodePicture(make("-resize 48x48!", "PNG24:large.png"));
  run("convert-im6.q16 large.png -resize 16x16 small.png");
  run("convert-im6.q16 small.png large.png small.png three.ico");
  EXPECT_EQ(decodePicture(folder_.read("three.ico"))->pixels, large->pixels);
}

// Pictures to write: the rows have pixels beyond their width, and the top bytes are of no account.
struct Sample {
  const char* name;
  std::uint32_t (*pixel)(int x, int y);
};

constexpr int kWidth = 201, kHeight = 70, kStride = 220;

const Sample kSamples[] = {
    {"gray", [](int x, int y) { return 0x010101u * static_cast<unsigned>((x * 7 + y) / 9 % 256); }},
    {"black and white", [](int x, int y) { return x / 5 % 2 == y / 7 % 2 ? 0xFFFFFFu : 0u; }},
    {"few colours",
     [](int x, int y) { return 0xFF0000u | static_cast<unsigned>(x / 20 << 4 | y / 20); }},
    {"many colours",
     [](int x, int y) { return static_cast<unsigned>(x * 255 / kWidth << 16 | y * 3 << 8 | 99); }},
};

std::vector<std::uint32_t> pixelsOf(const Sample& sample, std::uint32_t top, int stride) {
  std::vector<std::uint32_t> pixels;
  for (int y = 0; y < kHeight; ++y) {
    for (int x = 0; x < stride; ++x) {
      pixels.push_back(x < kWidth ? top | sample.pixel(x, y) : 0x12345678);
    }
  }
  return pixels;
}

std::string encoded(const Sample& sample, PictureFormat format) {
  const auto pixels = pixelsOf(sample, 0x5A000000, kStride);
  StringSink sink;
  encodePicture({kWidth, kHeight, kStride, pixels.data()}, format, 96, sink);
  return sink.text();
}

struct Writing {
  PictureFormat format;
  const char* file;
  double tolerance;
  bool hasDensity;
};

constexpr Writing kWritings[] = {{PictureFormat::png, "out.png", 0, true},
                                 {PictureFormat::bmp, "out.bmp", 0, true},
                                 {PictureFormat::gif, "out.gif", 0, false},
                                 {PictureFormat::ico, "out.ico", 0, false},
                                 {PictureFormat::jpeg, "out.jpg", 3, true}};

TEST_F(PictureTest, writesFilesThatOthersReadToTheSamePixels) {
  for (const Writing& writing : kWritings) {
    for (const Sample& sample : kSamples) {
      const std::string file = encoded(sample, writing.format);
      folder_.write(writing.file, file);
      auto expected = pixelsOf(sample, 0xFF000000, kWidth);
      if (writing.format == PictureFormat::ico) std::ranges::replace(expected, 0xFFFFFFFF, 0u);
      const bool reduced = writing.format == PictureFormat::gif && &sample == &kSamples[3];
      const double tolerance = reduced ? 6 : writing.tolerance;
      EXPECT_LE(distance(seen(writing.file), expected), tolerance) << writing.file << sample.name;
      EXPECT_LE(distance(decodePicture(file)->pixels, expected), tolerance) << writing.file;
      if (writing.hasDensity) {
        EXPECT_NEAR(std::stod(identify("%x", writing.file)), 96, 0.1) << writing.file;
      }
    }
  }
}

TEST_F(PictureTest, writesOneChannelForGrayPicturesOnly) {
  EXPECT_EQ(encoded(kSamples[0], PictureFormat::bmp)[28], 8);
  EXPECT_EQ(encoded(kSamples[3], PictureFormat::bmp)[28], 24);
  folder_.write("gray.jpg", encoded(kSamples[0], PictureFormat::jpeg));
  folder_.write("colour.jpg", encoded(kSamples[3], PictureFormat::jpeg));
  EXPECT_EQ(identify("%[jpeg:sampling-factor] %Q", "gray.jpg"), "1x1 90");
  EXPECT_EQ(identify("%[jpeg:sampling-factor] %Q", "colour.jpg"), "1x1,1x1,1x1 90");
}

TEST_F(PictureTest, writesIconsThatAreWiderThanTheirDirectoryCanSay) {
  const std::vector<std::uint32_t> pixels(300 * 400, 0x00112233);
  StringSink sink;
  encodePicture({300, 400, 300, pixels.data()}, PictureFormat::ico, 96, sink);
  EXPECT_EQ(sink.text().substr(6, 2), std::string(2, '\0'));
  const auto picture = decodePicture(sink.text());
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture->width, 300);
  EXPECT_EQ(picture->pixels, std::vector<std::uint32_t>(300 * 400, 0xFF112233));
}

TEST(IsGrayTest, findsASingleColouredPixelAnywhere) {
  std::vector<std::uint32_t> pixels(150 * 3, 0xAB777777);
  const PixelView view{149, 3, 150, pixels.data()};
  EXPECT_TRUE(isGray(view));
  for (std::size_t i = 0; i < pixels.size(); ++i) {
    for (std::uint32_t bit : {0x1u, 0x100u, 0x10000u}) {
      pixels[i] ^= bit;
      EXPECT_EQ(isGray(view), i % 150 == 149) << i;
      pixels[i] ^= bit;
    }
  }
}

TEST(EncodePictureTest, refusesSidesThatTheFormatCannotHold) {
  const std::vector<std::uint32_t> pixels(70000);
  StringSink sink;
  for (auto format : {PictureFormat::gif, PictureFormat::jpeg, PictureFormat::ico}) {
    EXPECT_THROW(encodePicture({70000, 1, 70000, pixels.data()}, format, 96, sink), PictureError);
    EXPECT_THROW(encodePicture({1, 70000, 1, pixels.data()}, format, 96, sink), PictureError);
  }
  EXPECT_THROW(encodePicture({0, 5, 0, pixels.data()}, PictureFormat::png, 96, sink), PictureError);
}

TEST(EncodePictureTest, passesOnWhatTheSinkThrows) {
  struct FullSink : ByteSink {
    explicit FullSink(std::size_t room) : left(room) {}
    void write(std::string_view bytes) override {
      if (bytes.size() > left) throw FileError("the disk is full");
      left -= bytes.size();
    }
    std::size_t left;
  };
  const auto pixels = pixelsOf(kSamples[3], 0, kStride);
  for (const Writing& writing : kWritings) {
    const std::size_t size = encoded(kSamples[3], writing.format).size();
    for (std::size_t room : {std::size_t{0}, std::size_t{20}, size / 2, size - 1}) {
      FullSink sink(room);
      const PixelView view{kWidth, kHeight, kStride, pixels.data()};
      EXPECT_THROW(encodePicture(view, writing.format, 96, sink), FileError)
          << writing.file << room;
    }
  }
}

TEST_F(PictureTest, refusesFilesThatAreCutShort) {
  for (const auto& [file, spare] : victims()) {
    ASSERT_TRUE(decodePicture(file));
    const std::size_t step = file.size() / 1000 + 1;
    for (std::size_t size = 0; size + spare < file.size(); size += step) {
      // A copy of exactly this size lets the sanitizer see reads beyond its end.
      const std::vector<char> copy(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(size));
      EXPECT_FALSE(decodePicture({copy.data(), copy.size()}))
          << size << " of " << file.size() << " bytes of " << file.substr(0, 2);
    }
  }
}

TEST_F(PictureTest, survivesDamagedBytes) {
  std::mt19937 random(7);
  for (const auto& [file, spare] : victims()) {
    for (int i = 0; i < 1500; ++i) {
      std::string damaged = file;
      // Headers are where most can go wrong.
      const std::size_t range = i % 2 == 0 ? std::min<std::size_t>(file.size(), 160) : file.size();
      for (int n = 0; n <= i % 3; ++n) damaged[random() % range] = static_cast<char>(random());
      const auto picture = decodePicture(damaged);
      if (!picture) continue;
      ASSERT_EQ(picture->pixels.size(), static_cast<std::size_t>(picture->width) *
                                            static_cast<std::size_t>(picture->height));
    }
  }
}

TEST_F(PictureTest, refusesSidesOfFiftyThousandPixels) {
  const std::string bigPng =
      std::string("\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\xC3\x50\0\0\xC3\x50\x08\2\0\0\0", 29);
  std::string bigJpeg = make("", "a.jpg");
  bigJpeg.replace(bigJpeg.find("\xFF\xC0") + 5, 4, "\xC3\x50\xC3\x50");
  std::string bigGif = make("", "a.gif");
  bigGif.replace(6, 4, little(50000, 2) + little(50000, 2));
  const std::string directory = bytesOf({0, 0, 1, 0, 1, 0, 0, 0, 0, 0, 1, 0, 24, 0});
  const std::string bitmap = makeBitmap(50000, 50000, 24, 0, "", "");
  const std::string bigIcon = directory + longs({40, 22}) + bitmap.substr(14);
  for (const std::string& file : {bigPng, bigJpeg, bigGif, bitmap, bigIcon,
                                  makeBitmap(50000, 50000, 8, 1, kThreeColours, bytesOf({0, 1}))}) {
    EXPECT_FALSE(decodePicture(file)) << file.substr(0, 2);
  }
}

TEST(DecodePictureTest, refusesWhatIsNoPicture) {
  for (std::string_view file : {"", "B", "BM", "GIF89a", "\xFF\xD8\xFF", "%PDF-1.4", "\x89PNG"}) {
    EXPECT_FALSE(decodePicture(file)) << file;
  }
}

}  // namespace
}  // namespace qor
