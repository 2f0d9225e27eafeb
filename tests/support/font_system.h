// Systems with few fonts, as files for the variable FONTCONFIG_FILE.
#pragma once

#include <string>

#include "support/rows.h"

namespace qor::test {

inline constexpr const char* kFontSystemHead = R"(<fontconfig>
  <dir>/usr/share/fonts</dir>
  <cachedir>/var/cache/fontconfig</cachedir>
  <match>
    <edit name="family" mode="append_last" binding="weak"><string>Liberation Serif</string></edit>
  </match>
  <selectfont>
    <rejectfont><pattern><patelt name="scalable"><bool>true</bool></patelt></pattern></rejectfont>
    <acceptfont>
)";

// A system that has these families alone, and others, as "Arial=Liberation Mono", that stand in.
// Whoever names none of them gets Liberation Serif.
inline std::string systemOf(const std::string& families, const std::string& standIns = "") {
  std::string text = kFontSystemHead;
  for (const std::string& family : linesOf(families, '|'))
    text += "<pattern><patelt name='family'><string>" + family + "</string></patelt></pattern>";
  text += "</acceptfont></selectfont>";
  for (const auto& [name, family] : rowsOf(standIns, "="))
    text += "<alias binding='same'><family>" + name + "</family><accept><family>" + family +
            "</family></accept></alias>";
  return text + "</fontconfig>";
}

}  // namespace qor::test
