// Looks for a text in a report, in pieces, so that whoever does them can answer in between: the
// pages from a first one on, then those before it. Pages that come meanwhile are looked at, too. It
// keeps how many hits each page has; where they stand is found again when somebody wants to see it.
#pragma once

#include <cstdint>
#include <functional>

#include "search/page_search.h"
#include "search/search_hits.h"

namespace qor {

class ReportSearch {
 public:
  // Begins with that page. Throws as PageSearch. The document must live as long.
  ReportSearch(VDoc& doc, const FindQuery& query, const LetterRules& rules, std::int32_t first);

  // Looks on while it is told to, some hundred lines at a time; false once all pages are searched.
  // Throws as VDoc::RequireSameFile and VDocPage::ReadLines, and NumberedError where the report
  // can't be opened.
  bool goOn(const std::function<bool()>& mayGoOn);

  // The report has grown: its pages from this one on are looked at anew.
  void searchFrom(std::int32_t page);

  const SearchHits& hits() const { return hits_; }
  bool isDone() const { return !pageAtHand(); }

  // Whether there is nothing to look for, and a letter of it that the code page hasn't, or 0.
  bool isEmpty() const { return search_.isEmpty(); }
  char32_t missingLetter() const { return search_.missingLetter(); }

 private:
  std::int32_t pageAtHand() const;
  void searchPage(const InputFile& file);
  void endPage();

  VDoc& doc_;
  PageSearch search_;
  SearchHits hits_;
  std::int32_t first_;
  std::int32_t behind_;      // the next page from the first one on
  std::int32_t before_ = 1;  // and of those before it
  bool started_ = false;
  std::uint64_t found_ = 0;  // on the page at hand
};

}  // namespace qor
