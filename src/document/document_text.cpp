// Text of reports.
#include "document/document_text.h"

#include <algorithm>

#include "document/code_page.h"
#include "platform/system/text_encoding.h"

namespace qor {
namespace {

constexpr int kTurkishDos = 857;
constexpr char32_t kUndefined = 0xFFFD;

std::string utf8Of(char32_t c) {
  std::string text;
  appendUtf8(text, c);
  return text;
}

// A table of a file's may name halves of characters.
bool isCharacter(char32_t c) {
  return c != 0 && (c < 0xD800 || c > 0xDFFF);
}

bool isAscii(char c) {
  return static_cast<unsigned char>(c) < 0x80;
}

}  // namespace

DocumentText::DocumentText(int codePage) {
  if (codePage == kTurkishDos || !isSingleByteCodePage(codePage)) {
    LoadCodePage(codePage);
    std::transform(CodePageTable.begin(), CodePageTable.end(), upper_.begin(),
                   [](char32_t entry) { return utf8Of(isCharacter(entry) ? entry : kUndefined); });
    return;
  }
  for (std::size_t i = 0; i < upper_.size(); ++i) {
    const char byte = static_cast<char>(0x80 + i);
    upper_[i] = utf8FromCodePage({&byte, 1}, codePage);
  }
}

void DocumentText::append(std::string_view bytes, std::string& utf8) const {
  while (!bytes.empty()) {
    const auto plain = std::find_if_not(bytes.begin(), bytes.end(), isAscii);
    const auto count = static_cast<std::size_t>(plain - bytes.begin());
    utf8.append(bytes.substr(0, count));
    bytes.remove_prefix(count);
    if (bytes.empty()) return;
    utf8 += upper_[static_cast<unsigned char>(bytes.front()) - 0x80U];
    bytes.remove_prefix(1);
  }
}

std::string DocumentText::utf8(std::string_view bytes) const {
  std::string text;
  append(bytes, text);
  return text;
}

}  // namespace qor
