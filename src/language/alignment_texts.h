// The texts of alignment lines and of their properties.
#pragma once

#include <string_view>

namespace qor {

struct AlignmentTexts {
  // The names of the lines, and of their menu's entries.
  std::string_view rowLine;
  std::string_view shapeLine;
  std::string_view lineProperties;
  std::string_view deleteLine;
  // The properties.
  std::string_view title;
  std::string_view size;
  std::string_view height;
  std::string_view color;
  std::string_view style;
  std::string_view lineWidth;
  std::string_view showAtStart;
  std::string_view apply;
  std::string_view cancel;
  // Behind what was typed.
  std::string_view notANumber;
};

}  // namespace qor
