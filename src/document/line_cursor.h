// A place in a line, and where the ends of tags lie from there on. What it finds it remembers, so
// that a line of ten million "<" is still read in one pass.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace qor {

class LineCursor {
 public:
  explicit LineCursor(std::string_view line) : line_(line) {}

  bool atEnd() const { return offset_ >= line_.size(); }
  char current() const { return line_[offset_]; }
  std::size_t offset() const { return offset_; }
  void moveTo(std::size_t offset) { offset_ = offset; }

  std::string_view line() const { return line_; }
  std::string_view from(std::size_t place) const { return line_.substr(place); }
  std::string_view between(std::size_t start, std::size_t end) const {
    return line_.substr(start, end - start);
  }

  // True if a ">" (or a "/>") stands anywhere behind the place.
  bool closeFollows(std::size_t place) { return isLastBehind(last_close_, ">", place); }
  bool emptyCloseFollows(std::size_t place) { return isLastBehind(last_empty_close_, "/>", place); }

  // The first ">" at or behind the place, which has one.
  std::size_t nextClose(std::size_t place) {
    if (next_close_ < place || searched_from_ > place) {
      next_close_ = line_.find('>', place);
      searched_from_ = place;
    }
    return next_close_;
  }

 private:
  // `last` is the last place of the mark, looked for at the first question: most lines hold no tag.
  bool isLastBehind(std::optional<std::size_t>& last, std::string_view mark, std::size_t place) {
    if (!last) last = line_.rfind(mark);
    return *last != std::string_view::npos && *last > place;
  }

  std::string_view line_;
  std::size_t offset_ = 0;
  std::optional<std::size_t> last_close_;
  std::optional<std::size_t> last_empty_close_;
  std::size_t next_close_ = 0;
  std::size_t searched_from_ = 1;
};

}  // namespace qor
