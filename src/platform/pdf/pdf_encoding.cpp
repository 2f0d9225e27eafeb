// Encodings by number.
#include "platform/pdf/pdf_encoding.h"

#include "platform/system/text_encoding.h"

namespace qor {

PdfEncoding encodingOfCodePage(int codePage) {
  PdfEncoding encoding{};
  for (std::size_t i = 0; i < encoding.size(); ++i) {
    const char byte = static_cast<char>(i);
    const std::u32string code = codePointsFromCodePage({&byte, 1}, codePage);
    encoding[i] = code.empty() ? U'\xFFFD' : code.front();
  }
  return encoding;
}

}  // namespace qor
