// Pictures of a report, found by their names and drawn from the files that are meant.

#include <gtest/gtest.h>

#include "support/page_picture.h"
#include "support/string_sink.h"

namespace qor::test {
namespace {

void writePicture(const TemporaryDirectory& place, const std::string& name, std::uint32_t color) {
  const std::pair<const char*, PictureFormat> formats[] = {
      {".gif", PictureFormat::gif},   {".ico", PictureFormat::ico}, {".jpg", PictureFormat::jpeg},
      {".jpeg", PictureFormat::jpeg}, {".bmp", PictureFormat::bmp}, {"", PictureFormat::png}};
  const auto* format = formats;
  while (!name.ends_with(format->first)) ++format;
  const std::vector<std::uint32_t> pixels(16 * 16, color);
  StringSink sink;
  encodePicture({16, 16, 16, pixels.data()}, format->second, 96, sink);
  place.write(name, sink.text());
}

// More of them than are kept decoded, most of them files of one length.
TEST(ReportPictures, areTakenForNoOther) {
  const TemporaryDirectory place;
  // The name on the disk, and that in the report.
  std::vector<std::pair<std::string, std::string>> names = {
      {"a.png", "a.png"}, {"b.jpg", "b.jpg"},    {"c.jpeg", "c.jpeg"},  {"d.gif", "d.gif"},
      {"e.ico", "e.ico"}, {"f.bmp", ".\\f.bmp"}, {"Ж.PNG", "\x86.PNG"}, {"g h.bmp", "g h.bmp"}};
  for (char c = 'i'; c < 't'; ++c)
    names.emplace_back(c + std::string(".bmp"), c + std::string(".bmp"));
  std::string report;
  std::vector<std::pair<Box, std::uint32_t>> seen;
  for (int round = 0; round < 3; ++round) {
    for (std::uint32_t i = 0; i < names.size(); ++i) {
      const std::uint32_t color = i * 0x0B0000 | (200 - i * 9) << 8 | (i % 2 == 0 ? 30 : 90);
      if (round == 0) writePicture(place, names[i].first, color);
      const int left = 5 + 10 * static_cast<int>(round == 1 ? names.size() - i : i);
      const Box box = {left, 10 + 20 * round, left + 8, 18 + 20 * round};
      report += itemTag("img", box, "imgSS=1 image=\"" + names[i].second + "\"");
      seen.emplace_back(box, color);
    }
  }
  for (const Road road : kRoads) {
    const Picture page = pageBy(road, place, report);
    for (const auto& [spot, color] : seen) {
      const auto x = wholeDotOf(spot.left + 4);
      const auto y = wholeDotOf(spot.top + 4);
      EXPECT_LE(apart(dotAt(page, x, y), color), 4) << static_cast<int>(road) << " " << text(spot);
    }
  }
}

}  // namespace
}  // namespace qor::test
