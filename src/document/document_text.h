// The bytes of a report as Unicode, through the real table of its code page, for exports that carry
// text and don't draw it.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace qor {

class DocumentText {
 public:
  // The system's table, but for 857, which is the suite's own; where the system has none, that of
  // LoadCodePage, and throws as that.
  explicit DocumentText(int codePage);

  void append(std::string_view bytes, std::string& utf8) const;
  std::string utf8(std::string_view bytes) const;

 private:
  std::array<std::string, 128> upper_;  // from byte 128 on
};

}  // namespace qor
