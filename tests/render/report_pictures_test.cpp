// Pictures of a report, found by their names and drawn from the files that are meant.
#include <vector>

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

// As many rows as keep sixteen pictures from being the last used, of files of one length among
// them.
TEST(ReportPictures, AreTakenForNoOther) {
  const TemporaryDirectory place;
  // The name on the disk, and that in the report where it is another one.
  std::vector<std::pair<std::string, std::string>> names = {
      {"a.png", ""},         {"b.jpg", ""},  {"c.jpeg", ""},
      {"d.gif", ""},         {"e.ico", ""},  {"sub/f.bmp", "sub\\f.bmp"},
      {"Ж.PNG", "\x86.PNG"}, {"g h.bmp", ""}};
  for (char letter = 'i'; letter < 't'; ++letter)
    names.emplace_back(std::string(1, letter) + ".bmp", "");
  std::string report;
  std::vector<std::pair<DotBox, std::uint32_t>> seen;
  for (int round = 0; round < 3; ++round) {
    for (std::size_t i = 0; i < names.size(); ++i) {
      const auto& [file, name] = names[i];
      const auto number = static_cast<std::uint32_t>(i);
      const std::uint32_t color =
          number * 0x0B0000 | (200 - number * 9) << 8 | (i % 2 == 0 ? 30 : 90);
      if (round == 0) writePicture(place, file, color);
      const int left = 5 + 10 * static_cast<int>(round == 1 ? names.size() - i : i);
      const int top = 10 + 20 * round;
      const auto key = [](const char* text, int value) { return text + std::to_string(value); };
      report += "<img imgSS=1 image=\"" + (name.empty() ? file : name) + "\"" +
                key(" left=", left) + key(" top=", top) + key(" right=", left + 8) +
                key(" bottom=", top + 8) + "/>\r\n";
      seen.push_back(
          {{static_cast<int>(dotOf(left + 4)), static_cast<int>(dotOf(top + 4)), 0, 0}, color});
    }
  }
  for (const Road road : kRoads) {
    const Picture page = pageBy(road, place, report);
    for (const auto& [spot, color] : seen) {
      EXPECT_LE(apart(dotAt(page, spot.left, spot.top), color), 4)
          << static_cast<int>(road) << " " << text(spot);
    }
  }
}

}  // namespace
}  // namespace qor::test
