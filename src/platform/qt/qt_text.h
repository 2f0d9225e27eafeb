// Texts for Qt.
#pragma once

#include <QString>
#include <string_view>

namespace qor {

// From UTF-8.
inline QString qtText(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace qor
