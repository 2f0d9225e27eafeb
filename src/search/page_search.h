// Looks for a text on a page, some lines at a time: a page may have millions. It reads the bytes of
// the page and lays nothing out; its lines are those of a TextMap of the page.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "document/document_letters.h"
#include "document/item_texts.h"
#include "document/line_splitter.h"
#include "search/page_filter.h"
#include "search/text_matcher.h"

namespace qor {

class InputFile;
class VCommand;
class VDoc;

struct TextHit {
  std::size_t line = 0;
  TextSpan span;

  bool operator==(const TextHit&) const = default;
};

class PageSearch {
 public:
  // Throws as DocumentLetters. The document must live as long.
  PageSearch(VDoc& doc, const FindQuery& query, const LetterRules& rules);
  ~PageSearch();

  // A hit, and the text of its line.
  using Found = std::function<void(const TextHit&, std::u32string_view)>;

  // Starts with a page that there is. Throws as VDocPage::ReadLines.
  void start(std::int32_t page, const InputFile& file);

  // Looks through some lines; false once there are no more.
  bool step(const Found& found);

  // All of a page.
  void run(std::int32_t page, const InputFile& file, const Found& found);

  TextMatcher& matcher() { return matcher_; }
  bool isEmpty() const { return matcher_.isEmpty(); }
  char32_t missingLetter() const { return filter_.missingLetter(); }

 private:
  struct Reading;

  void lookAt(std::u32string_view text, const Found& found);
  void readItems(const PageLine& line);
  void findInRows(const Found& found);

  VDoc& doc_;
  DocumentLetters letters_;
  TextMatcher matcher_;
  PageFilter filter_;
  std::string buffer_;
  std::unique_ptr<Reading> reading_;  // of the page at hand
  std::optional<LineSplitter> lines_;
  ItemTexts texts_;
  std::size_t line_ = 0;
};

}  // namespace qor
