// Filtering pages.
#include "search/page_filter.h"

#include <algorithm>
#include <map>

#include "document/control_bytes.h"
#include "document/document_letters.h"
#include "search/text_matcher.h"

namespace qor {
namespace {

// What all bytes that start more than a letter become.
constexpr char kSpecial = 1;

bool isMoreThanALetter(char c) {
  return c == '<' || isControl(c);
}

// A line feed that ends no line is dropped from the text of its own.
bool holdsLineFeedInLine(std::string_view bytes) {
  for (auto at = bytes.find(kLineFeed); at != bytes.npos; at = bytes.find(kLineFeed, at + 1)) {
    if (at == 0 || (bytes[at - 1] != kCarriageReturn && bytes[at - 1] != kFormFeed)) return true;
  }
  return false;
}

}  // namespace

PageFilter::PageFilter(const TextMatcher& matcher, const DocumentLetters& letters) {
  std::map<char32_t, char> firsts;
  for (int i = 0; i < 256; ++i) {
    const char byte = static_cast<char>(i);
    const bool endsLine = byte == kCarriageReturn || byte == kLineFeed || byte == kFormFeed;
    char& alike = alike_[static_cast<std::size_t>(i)];
    if (isMoreThanALetter(byte)) {
      alike = endsLine ? byte : kSpecial;
    } else {
      alike = firsts.try_emplace(matcher.folding()(letters.of(byte)), byte).first->second;
    }
  }
  for (const char32_t letter : matcher.wanted())
    if (!isBlank(letter) && !firsts.contains(letter)) missing_ = letter;
  if (missing_ != 0) return;
  for (const char32_t letter : matcher.fixedPiece()) piece_ += firsts.at(letter);
}

bool PageFilter::mayHold(std::string_view bytes, LineEnds ends) {
  if (bytes_.size() < bytes.size()) bytes_.resize(bytes.size());
  std::transform(bytes.begin(), bytes.end(), bytes_.begin(),
                 [this](char c) { return alike_[static_cast<unsigned char>(c)]; });
  const std::string_view alike(bytes_.data(), bytes.size());
  if (alike.find(kSpecial) != alike.npos) return true;
  if (ends == LineEnds::carriageReturns && holdsLineFeedInLine(bytes)) return true;
  return missing_ == 0 && alike.find(piece_) != alike.npos;
}

bool PageFilter::isPlain(std::string_view line) {
  return std::none_of(line.begin(), line.end(), isMoreThanALetter);
}

}  // namespace qor
