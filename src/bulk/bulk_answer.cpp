// Answers on their way between processes.
#include "bulk/bulk_answer.h"

#include <algorithm>
#include <sstream>
#include <utility>

namespace qor {

BulkAnswer joined(const BulkAnswer& first, const BulkAnswer& second) {
  const auto failed = [](const BulkAnswer& each) { return each.result == BulkResult::failed; };
  BulkAnswer whole = failed(second) ? second : first;
  if (!failed(whole)) whole.result = std::min(first.result, second.result);
  whole.pages = std::max(first.pages, second.pages);
  whole.files = first.files + second.files;
  whole.bytes = first.bytes + second.bytes;
  if (whole.reason.empty()) whole.reason = first.reason;
  return whole;
}

std::string written(const BulkAnswer& answer) {
  std::ostringstream text;
  text << static_cast<int>(answer.result) << ' ' << answer.pages << ' ' << answer.bytes << ' '
       << answer.files << ' ' << answer.reason;
  return std::move(text).str();
}

BulkAnswer readAnswer(const std::string& text) {
  std::istringstream words(text);
  int result = 0;
  BulkAnswer answer;
  if (!(words >> result >> answer.pages >> answer.bytes >> answer.files) || result < 0 ||
      result > static_cast<int>(BulkResult::failed))
    return {.reason = "it gave no answer"};
  answer.result = static_cast<BulkResult>(result);
  words.get();
  std::getline(words, answer.reason);
  return answer;
}

}  // namespace qor
