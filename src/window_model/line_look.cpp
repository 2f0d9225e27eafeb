// Keys of lines.
#include "window_model/line_look.h"

#include <algorithm>

#include "base/text.h"
#include "window_model/ini_text.h"

namespace qor {
namespace {

constexpr std::int32_t kFarthest = 100000;  // pixels

std::string_view sectionOf(LineKind kind) {
  return kind == LineKind::row ? "RowSet" : "ShapeSet";
}

}  // namespace

PenStyle penOf(std::int32_t style) {
  switch (style) {
    case 0: return PenStyle::solid;
    case 1: return PenStyle::dash;
    case 3: return PenStyle::dashDot;
    case 4: return PenStyle::dashDotDot;
    default: return PenStyle::dot;
  }
}

LineLook lookIn(std::string_view ini, LineKind kind) {
  const IniText text(ini);
  using Blanks = IniText::Blanks;
  const auto number = [&](std::string_view key, std::int32_t usual, Blanks blanks = Blanks::left) {
    const auto value = text.value(sectionOf(kind), key, blanks);
    return value ? parseInteger(*value).value_or(usual) : usual;
  };
  LineLook look;
  look.height = std::clamp(number("Height", look.height), 1, kMostLineHeight);
  look.color = static_cast<Color>(number("Color ", 255, Blanks::kept)) & kWhite;
  look.penStyle = number("PenStyle", look.penStyle);
  look.penWidth = std::clamp(number("PenWidth", look.penWidth), 1, kMostPenWidth);
  look.lastTop = std::clamp(number("LastTop", look.lastTop), -kFarthest, kFarthest);
  look.showFlag = number("ShowFlag", look.showFlag);
  return look;
}

std::string withLook(std::string_view ini, LineKind kind, const LineLook& look) {
  IniText text(ini);
  using Blanks = IniText::Blanks;
  const auto set = [&](std::string_view key, std::int64_t number, Blanks blanks = Blanks::left) {
    text.set(sectionOf(kind), key, std::to_string(number), blanks);
  };
  set("Height", look.height);
  set("Color", look.color, Blanks::kept);
  set("PenStyle", look.penStyle);
  set("PenWidth", look.penWidth);
  set("LastTop", look.lastTop);
  set("ShowFlag", look.showFlag);
  return text.text();
}

std::string withTop(std::string_view ini, LineKind kind, std::int32_t top) {
  IniText text(ini);
  text.set(sectionOf(kind), "LastTop", std::to_string(top));
  return text.text();
}

}  // namespace qor
