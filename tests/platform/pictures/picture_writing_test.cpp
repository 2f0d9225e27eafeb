// Pictures that are written, as others read them.
#include "platform/pictures/picture.h"
#include "support/image_magick.h"
#include "support/picture_file.h"
#include "support/test.h"

namespace qor::test {
namespace {

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
     [](int x, int y) { return static_cast<unsigned>(x * 255 / kWidth << 16 | y * 3 << 8 | 99); }}};

std::vector<std::uint32_t> pixelsOf(const Sample& sample, std::uint32_t top, int stride) {
  std::vector<std::uint32_t> pixels;
  for (int y = 0; y < kHeight; ++y)
    for (int x = 0; x < stride; ++x)
      pixels.push_back(x < kWidth ? top | sample.pixel(x, y) : 0x12345678);
  return pixels;
}

std::string encoded(const Sample& sample, PictureFormat format) {
  const auto pixels = pixelsOf(sample, 0x5A000000, kStride);
  return pictureFile({kWidth, kHeight, kStride, pixels.data()}, format);
}

// The format, the file, and how far pixels may be off.
constexpr std::tuple<PictureFormat, const char*, double> kWritings[] = {
    {PictureFormat::png, "out.png", 0},
    {PictureFormat::bmp, "out.bmp", 0},
    {PictureFormat::gif, "out.gif", 0},
    {PictureFormat::ico, "out.ico", 0},
    {PictureFormat::jpeg, "out.jpg", 3}};

TEST(PictureWriting, writesFilesThatOthersReadToTheSamePixels) {
  const ImageMagick magick;
  for (const auto& [format, name, tolerance] : kWritings) {
    for (const Sample& sample : kSamples) {
      const std::string file = encoded(sample, format);
      magick.folder().write(name, file);
      auto expected = pixelsOf(sample, 0xFF000000, kWidth);
      if (format == PictureFormat::ico) std::ranges::replace(expected, 0xFFFFFFFF, 0u);
      const bool reduced = format == PictureFormat::gif && &sample == &kSamples[3];
      const double most = reduced ? 6 : tolerance;
      EXPECT_LE(distance(magick.seen(name), expected), most) << name << sample.name;
      EXPECT_LE(distance(decodePicture(file)->pixels, expected), most) << name;
      if (format == PictureFormat::gif || format == PictureFormat::ico) continue;
      EXPECT_NEAR(std::stod(magick.identify("%x", name)), 96, 0.1) << name;
      EXPECT_NEAR(std::stod(magick.identify("%y", name)), 96, 0.1) << name;
    }
  }
}

TEST(PictureWriting, writesOneChannelForGrayPicturesOnly) {
  const ImageMagick magick;
  for (const auto& [sample, bits, factor] :
       {std::tuple{0, 8, "1x1 90"}, {3, 24, "1x1,1x1,1x1 90"}}) {
    EXPECT_EQ(encoded(kSamples[sample], PictureFormat::bmp)[28], bits);
    magick.folder().write("a.jpg", encoded(kSamples[sample], PictureFormat::jpeg));
    EXPECT_EQ(magick.identify("%[jpeg:sampling-factor] %Q", "a.jpg"), factor);
  }
}

TEST(PictureWriting, writesIconsThatAreWiderThanTheirDirectoryCanSay) {
  const std::vector<std::uint32_t> pixels(300 * 400, 0x00112233);
  const std::string file = pictureFile({300, 400, 300, pixels.data()}, PictureFormat::ico);
  EXPECT_EQ(file.substr(6, 2), std::string(2, '\0'));
  const auto picture = decodePicture(file);
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture->width, 300);
  EXPECT_EQ(picture->pixels, std::vector<std::uint32_t>(300 * 400, 0xFF112233));
}

TEST(PictureWriting, findsASingleColouredPixelAnywhere) {
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

TEST(PictureWriting, refusesSidesThatTheFormatCannotHold) {
  const std::vector<std::uint32_t> pixels(70000);
  for (auto format : {PictureFormat::gif, PictureFormat::jpeg, PictureFormat::ico}) {
    EXPECT_THROW(pictureFile({70000, 1, 70000, pixels.data()}, format), PictureError);
    EXPECT_THROW(pictureFile({1, 70000, 1, pixels.data()}, format), PictureError);
  }
  EXPECT_THROW(pictureFile({0, 5, 0, pixels.data()}, PictureFormat::png), PictureError);
}

TEST(PictureWriting, passesOnWhatTheSinkThrows) {
  struct FullSink : ByteSink {
    void write(std::string_view bytes) override {
      if (bytes.size() > left) throw FileError("the disk is full");
      left -= bytes.size();
    }
    std::size_t left = 0;
  };
  const auto pixels = pixelsOf(kSamples[3], 0, kStride);
  for (const auto& [format, name, tolerance] : kWritings) {
    FullSink sink;
    const PixelView view{kWidth, kHeight, kStride, pixels.data()};
    EXPECT_THROW(encodePicture(view, format, 96, sink), FileError) << name;
    sink.left = encoded(kSamples[3], format).size() - 1;
    EXPECT_THROW(encodePicture(view, format, 96, sink), FileError) << name;
  }
}

}  // namespace
}  // namespace qor::test
