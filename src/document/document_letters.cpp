// Letters of reports.
#include "document/document_letters.h"

#include <algorithm>
#include <iterator>

#include "document/document_text.h"
#include "platform/system/text_encoding.h"

namespace qor {

DocumentLetters::DocumentLetters(int codePage) {
  const DocumentText table(codePage);
  for (std::size_t i = 0; i < letters_.size(); ++i) {
    const char byte = static_cast<char>(i);
    letters_[i] =
        i < 0x80 ? static_cast<char32_t>(i) : codePointsFromUtf8(table.utf8({&byte, 1})).front();
  }
}

void DocumentLetters::append(std::string_view bytes, std::u32string& text) const {
  std::transform(bytes.begin(), bytes.end(), std::back_inserter(text),
                 [this](char byte) { return of(byte); });
}

}  // namespace qor
