// Texts of the preview window that hold numbers.
#include "window_model/preview_texts.h"

#include <algorithm>

#include "base/text.h"

namespace qor {

std::string withText(std::string_view text, std::string_view part) {
  const std::string_view start = upTo(text, '%');
  std::string result(start);
  return result.append(part).append(text.substr(std::min(text.size(), start.size() + 1)));
}

std::string withNumber(std::string_view text, std::int64_t number) {
  return withText(text, std::to_string(number));
}

std::string pageOfText(int page, int total) {
  const PreviewTexts& texts = previewTexts();
  if (total == 0) return std::string(texts.pageless);
  std::string text(texts.page);
  text.append(" ").append(std::to_string(page)).append(" ").append(texts.of);
  return text.append(" ").append(std::to_string(total));
}

std::string pageListText(int page) {
  return "   " + std::string(previewTexts().page) + " " + std::to_string(page);
}

}  // namespace qor
