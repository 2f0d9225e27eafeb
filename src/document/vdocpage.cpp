// Loading pages: bytes to lines.
#include "document/vdocpage.h"

#include <algorithm>
#include <functional>
#include <string>
#include <utility>

#include "base/app_options.h"
#include "base/errors.h"
#include "document/control_bytes.h"
#include "document/vcommand.h"
#include "platform/system/input_file.h"

namespace qor {
namespace {

// While a line holds this, line ends belong to it: the text of such an item spans lines.
constexpr std::string_view kMemoMark = "text memo";
const std::boyer_moore_horspool_searcher kMemoSearcher(kMemoMark.begin(), kMemoMark.end());

// No page that is to be read holds as much; a file without page ends that does must not fill the
// memory.
constexpr std::uint64_t kMaxPageBytes = 256U << 20;
constexpr std::size_t kMaxLines = 4'000'000;

[[noreturn]] void refuse(const VDocPage& page, const std::string& reason) {
  throw ReportError("Error: page " + std::to_string(page.Number) + " " + reason + ": " +
                    AppOptions.FileName);
}

std::string readBytes(const InputFile& file, std::uint64_t offset, std::uint64_t length) {
  std::string bytes(length, '\0');
  if (file.readAt(offset, bytes.data(), length) < length)
    throw FileError(AppOptions.FileName + ": became shorter since its pages were found");
  return bytes;
}

// A LF behind the form feed of the page before belongs to that end of a page.
std::string_view textOf(std::string_view bytes, LineEnds ends, std::int32_t page) {
  const bool ended = page > 1 && ends == LineEnds::lineFeeds && bytes.starts_with(kLineFeed);
  return bytes.substr(ended ? 1 : 0);
}

struct ReadingMode {
  bool keepTabs;
  LineEnds ends;
};

bool isLineByte(char c, const ReadingMode& mode) {
  if (static_cast<unsigned char>(c) > kEndOfFile) return true;
  switch (c) {
    case kCarriageReturn:
    case kFormFeed:
    case kEndOfFile: return false;
    case kTab: return mode.keepTabs;
    case kLineFeed: return mode.ends == LineEnds::carriageReturns;
    default: return true;
  }
}

// How many of the first bytes certainly stand above all that ends a line, counted in blocks: nearly
// all bytes of a report do, and a block is looked at as a whole.
std::size_t plainBytes(std::string_view bytes) {
  constexpr std::size_t kBlock = 32;
  std::size_t place = 0;
  for (; bytes.size() - place >= kBlock; place += kBlock) {
    unsigned char least = 0xFF;
    for (std::size_t i = 0; i < kBlock; ++i)
      least = std::min(least, static_cast<unsigned char>(bytes[place + i]));
    if (least <= kEndOfFile) break;
  }
  return place;
}

// Cuts the bytes of a page into lines.
class LineSplitter {
 public:
  LineSplitter(VDocPage& page, VCommand& commands, std::string_view bytes, const ReadingMode& mode)
      : page_(page), commands_(commands), bytes_(bytes), mode_(mode) {}

  void run() {
    while (place_ < bytes_.size() && bytes_[place_] != kEndOfFile) {
      takeLineBytes();
      if (place_ < bytes_.size() && bytes_[place_] != kEndOfFile) takeSpecialByte();
    }
    if (!line_.empty()) addLine();
  }

 private:
  void takeLineBytes() {
    const std::string_view rest = bytes_.substr(place_);
    std::size_t count = plainBytes(rest);
    while (count < rest.size() && isLineByte(rest[count], mode_)) ++count;
    append(rest.substr(0, count));
    place_ += count;
  }

  // Most lines are one piece of the page; those that lose a byte in their middle are put together.
  void append(std::string_view piece) {
    if (line_.empty()) {
      line_ = piece;
      return;
    }
    if (line_.data() != joined_.data()) joined_ = line_;
    joined_ += piece;
    line_ = joined_;
  }

  void takeSpecialByte() {
    const char c = bytes_[place_++];
    if (c == kTab) return;
    if (lineHoldsMemo()) {
      if (c == kLineFeed) append("\n");
      return;
    }
    addLine();
    if (c == kLineFeed) return;
    if (place_ < bytes_.size() && bytes_[place_] == kLineFeed) {
      ++place_;
    } else {
      pending_overprint_ = true;
    }
    if (c == kFormFeed) pending_form_feed_ = true;
  }

  bool lineHoldsMemo() {
    if (!memo_) memo_ = std::search(line_.begin(), line_.end(), kMemoSearcher) != line_.end();
    return memo_;
  }

  void addLine() {
    VDocStr& line = page_.AddLine(line_, commands_);
    if (std::exchange(pending_form_feed_, false)) line.AfterFormFeed = true;
    if (std::exchange(pending_overprint_, false)) {
      line.Overprint = 1;
      line.LineFeeds = 0;
    }
    line_ = {};
    if (++lines_ > kMaxLines) refuse(page_, "has more than 4 million lines");
    if (const char* excess = commands_.excess())
      refuse(page_, std::string("has more than 4 million ") + excess);
  }

  VDocPage& page_;
  VCommand& commands_;
  std::string_view bytes_;
  ReadingMode mode_;
  std::size_t place_ = 0;
  std::size_t lines_ = 0;
  std::string_view line_;  // in the bytes, or in joined_
  std::string joined_;
  bool memo_ = false;  // once true, no line of the page ends any more
  bool pending_overprint_ = false;
  bool pending_form_feed_ = false;
};

}  // namespace

std::string placeInReport(std::int32_t page) {
  return AppOptions.FileName + ": page " + std::to_string(page) + ": ";
}

VDocPage::VDocPage(std::int32_t number, VSet* settings) : Settings(settings), Number(number) {
}

VDocPage::~VDocPage() {
  ReleaseLines();
}

void VDocPage::ReadLines(const InputFile& file, std::uint64_t fileSize, PageMode mode,
                         LineEnds ends, FontState& font) {
  ReleaseLines();
  if (Length > kMaxPageBytes) refuse(*this, "is longer than 256 MB, which is too long to be read");
  std::string bytes;
  try {
    const std::uint64_t there = fileSize > Offset ? fileSize - Offset : 0;
    bytes = readBytes(file, Offset, std::min(Length, there));
  } catch (const FileError& error) {
    throw ReportError(std::string(error.what()) + ": page " + std::to_string(Number) +
                      ". Error: can't read data from document file: " + AppOptions.FileName);
  }
  VCommand commands(*Settings, font);
  try {
    LineSplitter(*this, commands, textOf(bytes, ends, Number), {mode == PageMode::sheets, ends})
        .run();
  } catch (...) {
    ReleaseLines();
    throw;
  }
  Font = std::make_unique<FontState>(font);
  Loaded = true;
}

VDocStr& VDocPage::AddLine(std::string_view text, VCommand& commands) {
  VDocStr*& link = LastLine == nullptr ? FirstLine : LastLine->Next;
  link = LastLine = new VDocStr(text, commands, empty_texts_);
  return *LastLine;
}

void VDocPage::ReleaseLines() {
  deleteChain<&VDocStr::Next>(FirstLine);
  LastLine = nullptr;
  empty_texts_.clear();
  Font.reset();
  Loaded = false;
}

}  // namespace qor
