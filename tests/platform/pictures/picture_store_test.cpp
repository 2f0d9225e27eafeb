// Pictures of files: read once, kept while there is room, and never an old one.
#include "platform/pictures/picture_store.h"

#include "platform/pictures/picture.h"
#include "support/image_magick.h"
#include "support/picture_file.h"
#include "support/test.h"

namespace qor::test {
namespace {

constexpr int kWidth = 4000;
constexpr int kHeight = 1500;  // 24 MB decoded

std::string plainPng(std::uint32_t color, int width = kWidth, int height = kHeight) {
  const std::vector<std::uint32_t> pixels(static_cast<std::size_t>(width) * height, color);
  return pictureFile({width, height, width, pixels.data()}, PictureFormat::png);
}

std::uint32_t firstPixel(const StoredPicture& picture) {
  const auto pixels = picture.pixels();
  return pixels ? pixels->pixels.front() : 0;
}

TEST(PictureStore, keepsWhatFitsAndDecodesTheRestAgain) {
  const TemporaryDirectory place;
  std::vector<std::shared_ptr<const StoredPicture>> pictures;
  std::vector<std::weak_ptr<const Picture>> decoded;
  const auto inMemory = [&decoded] {
    std::size_t count = 0;
    for (const auto& each : decoded) count += each.expired() ? 0 : 1;
    return count;
  };
  for (std::uint32_t i = 0; i < 12; ++i) {
    const auto path = place.write(std::to_string(i) + ".png", plainPng(0xFF000010 + i));
    pictures.push_back(storedPicture(path));
    ASSERT_TRUE(pictures.back());
    EXPECT_EQ(storedPicture(path), pictures.back());
    decoded.emplace_back(pictures.back()->pixels());
    EXPECT_LE(inMemory(), 6U);  // of 256 MB nothing but what is kept, 128 MB
  }
  EXPECT_EQ(inMemory(), 5U);
  EXPECT_FALSE(decoded.back().expired());
  EXPECT_TRUE(decoded.front().expired());
  // What was used last stays the longest, and what somebody holds stays in any case.
  EXPECT_EQ(firstPixel(*pictures[7]), 0xFF000017);
  const auto held = pictures[8]->pixels();
  for (std::uint32_t i = 0; i < 4; ++i) EXPECT_EQ(firstPixel(*pictures[i]), 0xFF000010 + i);
  EXPECT_FALSE(decoded[7].expired() && decoded[8].expired());
  for (std::uint32_t i = 4; i < 7; ++i) EXPECT_EQ(firstPixel(*pictures[i]), 0xFF000010 + i);
  EXPECT_TRUE(decoded[7].expired());
  EXPECT_EQ(pictures[8]->pixels(), held);
  EXPECT_LE(inMemory(), 10U);
}

TEST(PictureStore, knowsChangedFilesAndEqualOnes) {
  const TemporaryDirectory place;
  const auto red = storedPicture(place.write("a.png", plainPng(0xFFFF0000, 2, 2)));
  const auto same = storedPicture(place.write("b.png", plainPng(0xFFFF0000, 2, 2)));
  const auto other = storedPicture(place.write("c.png", plainPng(0xFFFF0000, 2, 3)));
  EXPECT_EQ(red->key(), same->key());
  EXPECT_NE(red->key(), other->key());
  EXPECT_EQ(firstPixel(*storedPicture(place.write("a.png", plainPng(0xFF00FF00, 3, 3)))),
            0xFF00FF00);
  EXPECT_EQ(firstPixel(*red), 0xFFFF0000);  // from memory
  for (int i = 0; i < 6; ++i)
    EXPECT_TRUE(storedPicture(place.write(std::to_string(i) + ".png", plainPng(0xFF000000U + i))));
  EXPECT_EQ(red->pixels(), nullptr);  // the file has changed since
  EXPECT_EQ(firstPixel(*same), 0xFFFF0000);
  EXPECT_EQ(storedPicture(place.write("e.png", "no picture")), nullptr);
  EXPECT_EQ(storedPicture(place.path("none.png")), nullptr);
  EXPECT_EQ(storedPicture(place.path()), nullptr);
}

TEST(PictureStore, handsOutJpegsThatAllReadAlike) {
  const ImageMagick magick;
  for (const auto& [name, arguments] :
       rowsOf("a.jpg -quality 80|b.jpg -interlace JPEG|c.jpg -colorspace Gray|-d.jpg -colorspace "
              "CMYK|-PNG24:e.png -depth 8|-f.gif |-cut.jpg -quality 80|-named.jpg -quality 80")) {
    const bool plain = name.front() != '-';
    const std::string file = plain ? name : name.substr(1);
    std::string bytes = magick.make(arguments, file);
    if (file == "cut.jpg") bytes.resize(bytes.size() - 40);
    if (file == "named.jpg") {
      const auto frame = bytes.find("\xFF\xC0");
      for (const std::size_t start : {frame + 10, bytes.find("\xFF\xDA") + 5}) {
        const std::size_t step = start == frame + 10 ? 3 : 2;
        for (std::size_t i = 0; i < 3; ++i) bytes[start + i * step] = "RGB"[i];
      }
    }
    const auto picture = storedPicture(magick.folder().write(nameOf(file), bytes));
    ASSERT_TRUE(picture) << file;
    const auto jpeg = picture->jpeg();
    EXPECT_EQ(jpeg ? *jpeg : "", plain ? bytes : "") << file;
    EXPECT_EQ(picture->pixels()->pixels, decodePicture(bytes)->pixels) << file;
  }
}

}  // namespace
}  // namespace qor::test
