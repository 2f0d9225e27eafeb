// The bytes of a report as letters, one for one, through the real table of its code page: for what
// is read, found and copied. What is drawn may lack some.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace qor {

class DocumentLetters {
 public:
  // Throws as DocumentText.
  explicit DocumentLetters(int codePage);

  char32_t of(char byte) const { return letters_[static_cast<unsigned char>(byte)]; }
  void append(std::string_view bytes, std::u32string& text) const;

 private:
  std::array<char32_t, 256> letters_;
};

}  // namespace qor
