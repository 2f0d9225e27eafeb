// Colour names and the "r,g,b" form.
#include "document/colors.h"

#include <array>

#include "base/text.h"

namespace qor {
namespace {

struct NamedColor {
  std::string_view name;
  Color color;
};

constexpr std::array<NamedColor, 18> kColors = {{
    {"Black", 0x000000},
    {"Navy", 0x800000},
    {"Teal", 0x808000},
    {"Green", 0x008000},
    {"Purple", 0x800080},
    {"Maroon", 0x000080},
    {"Olive", 0x008080},
    {"Silver", 0xC0C0C0},
    {"Gray", 0x808080},
    {"Blue", 0xFF0000},
    {"Aqua", 0xFFFF00},
    {"Lime", 0x00FF00},
    {"Fuchsia", 0xFF00FF},
    {"Red", 0x0000FF},
    {"Yellow", 0x00FFFF},
    {"White", 0xFFFFFF},
    {"LtGray", 0xC0C0C0},
    {"DkGray", 0x808080},
}};

}  // namespace

Color ColorByName(std::string_view name) {
  for (const NamedColor& row : kColors) {
    if (row.name == name) return row.color;
  }
  return 0;
}

Color ColorByIndex(std::int32_t index) {
  const auto place = static_cast<std::size_t>(index);
  return place < kColors.size() ? kColors[place].color : 0;
}

Color Color256(std::int32_t) {
  return 0;
}

Color ColorFromRgb(std::string_view text) {
  const auto first = text.find(',');
  if (first == std::string_view::npos) return 0;
  const auto second = text.find(',', first + 1);
  const bool complete = second != std::string_view::npos;
  const std::string_view parts[] = {text.substr(0, first),
                                    text.substr(first + 1, second - first - 1),
                                    complete ? text.substr(second + 1) : std::string_view()};
  Color result = 0;
  for (int i = 0; i < (complete ? 3 : 1); ++i) {
    const auto part = parseInteger(parts[i]);
    if (!part) break;
    result |= (static_cast<Color>(*part) & 0xFFU) << (8 * i);
  }
  return result;
}

}  // namespace qor
