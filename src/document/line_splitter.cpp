// Lines of a page.
#include "document/line_splitter.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "base/byte_scan.h"
#include "document/control_bytes.h"

namespace qor {
namespace {

// While a line holds this, line ends belong to it: the text of such an item spans lines.
constexpr std::string_view kMemoMark = "text memo";
const std::boyer_moore_horspool_searcher kMemoSearcher(kMemoMark.begin(), kMemoMark.end());

// A LF behind the form feed of the page before belongs to that end of a page.
std::string_view textOf(std::string_view bytes, LineEnds ends, std::int32_t page) {
  const bool ended = page > 1 && ends == LineEnds::lineFeeds && bytes.starts_with(kLineFeed);
  return bytes.substr(ended ? 1 : 0);
}

// All that ends a line, and some that doesn't.
bool maybeEnds(char c) {
  return static_cast<unsigned char>(c) <= kEndOfFile;
}

}  // namespace

LineSplitter::LineSplitter(std::string_view bytes, std::int32_t page, PageMode mode, LineEnds ends)
    : bytes_(textOf(bytes, ends, page)), keeps_tabs_(mode == PageMode::sheets), ends_(ends) {
}

bool LineSplitter::isLineByte(char c) const {
  if (static_cast<unsigned char>(c) > kEndOfFile) return true;
  switch (c) {
    case kCarriageReturn:
    case kFormFeed:
    case kEndOfFile: return false;
    case kTab: return keeps_tabs_;
    case kLineFeed: return ends_ == LineEnds::carriageReturns;
    default: return true;
  }
}

bool LineSplitter::isAtEnd() const {
  return place_ == bytes_.size() || bytes_[place_] == kEndOfFile;
}

std::optional<PageLine> LineSplitter::next() {
  while (!isAtEnd()) {
    takeLineBytes();
    if (isAtEnd()) break;
    const char c = bytes_[place_++];
    if (!endsLine(c)) continue;
    const PageLine line = take();
    noteEnd(c);
    return line;
  }
  if (line_.empty()) return std::nullopt;
  return take();
}

void LineSplitter::takeLineBytes() {
  const std::string_view rest = bytes_.substr(place_);
  std::size_t count = firstByteOf(rest, maybeEnds);
  while (count < rest.size() && isLineByte(rest[count])) ++count;
  append(rest.substr(0, count));
  place_ += count;
}

// Most lines are one piece of the page; those that lose a byte in their middle are put together.
void LineSplitter::append(std::string_view piece) {
  if (line_.empty()) {
    line_ = piece;
    return;
  }
  if (line_.data() != joined_.data()) joined_ = line_;
  joined_ += piece;
  line_ = joined_;
}

bool LineSplitter::endsLine(char c) {
  if (c == kTab) return false;
  if (!lineHoldsMemo()) return true;
  if (c == kLineFeed) append("\n");
  return false;
}

bool LineSplitter::lineHoldsMemo() {
  if (!memo_) memo_ = std::search(line_.begin(), line_.end(), kMemoSearcher) != line_.end();
  return memo_;
}

PageLine LineSplitter::take() {
  return {std::exchange(line_, {}), std::exchange(pending_overprint_, false),
          std::exchange(pending_form_feed_, false)};
}

// How the next line stands to the one that ended in this byte.
void LineSplitter::noteEnd(char c) {
  if (c == kLineFeed) return;
  if (place_ < bytes_.size() && bytes_[place_] == kLineFeed) {
    ++place_;
  } else {
    pending_overprint_ = true;
  }
  pending_form_feed_ = c == kFormFeed;
}

}  // namespace qor
