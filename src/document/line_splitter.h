// Cuts the bytes of a page into the texts of its lines, one after the other.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "document/item_kinds.h"

namespace qor {

// What ends a line: CR with the LF behind it, or, in texts of other systems, LF alone as well.
enum class LineEnds { carriageReturns, lineFeeds };

struct PageLine {
  std::string_view text;       // until the next line is asked for
  bool overprints = false;     // the line before ended in a bare CR
  bool afterFormFeed = false;  // or in a form feed
};

class LineSplitter {
 public:
  // The bytes must live as long. Those of a page behind the first may begin with what is left of
  // the end of the page before.
  LineSplitter(std::string_view bytes, std::int32_t page, PageMode mode, LineEnds ends);

  // The next line; nothing at the end of the page.
  std::optional<PageLine> next();

 private:
  bool isLineByte(char c) const;
  bool isAtEnd() const;
  void takeLineBytes();
  void append(std::string_view piece);
  bool endsLine(char c);
  bool lineHoldsMemo();
  PageLine take();
  void noteEnd(char c);

  std::string_view bytes_;
  bool keeps_tabs_;
  LineEnds ends_;
  std::size_t place_ = 0;
  std::string_view line_;  // in the bytes, or in joined_
  std::string joined_;
  bool memo_ = false;  // once true, no line of the page ends any more
  bool pending_overprint_ = false;
  bool pending_form_feed_ = false;
};

}  // namespace qor
