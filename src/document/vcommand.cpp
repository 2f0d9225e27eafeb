// The command language of reports.
#include "document/vcommand.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "base/byte_scan.h"
#include "document/attributes.h"
#include "document/control_bytes.h"
#include "document/control_sequences.h"
#include "document/vdata.h"
#include "document/vset.h"

namespace qor {
namespace {

enum StyleKey { kFont, kBold, kItalic, kUnderline, kStrikeOut, kWide, kFirstHeading };

constexpr std::array<std::string_view, 12> kStyleKeys = {"font", "b",  "i",  "u",  "s",  "w1",
                                                         "h1",   "h2", "h3", "h4", "h5", "h6"};
constexpr std::array<double, 6> kHeadingPoints = {24, 18, 15, 12, 8, 6};

enum ItemKey { kPage, kText, kShape, kImage, kBarcode };

constexpr std::array<std::string_view, 5> kItemKeys = {"page", "text", "shape", "img", "barcode"};

constexpr std::size_t kLongestKey = 7;

// Of a page. None that is to be read has as many.
constexpr std::size_t kMaxItems = 4'000'000;
constexpr std::size_t kMaxTags = 4'000'000;

bool endsKey(char c) {
  return c == ' ' || c == '/' || c == '>';
}

// Where a text may be over: form feeds count as blanks.
bool mayEndRun(char c) {
  return (isControl(c) & (c != kFormFeed)) | (c == '<');
}

// The place of the key among the keys, or -1.
template <std::size_t Count>
int keyIndexOf(std::string_view key, const std::array<std::string_view, Count>& keys) {
  const auto found = std::find(keys.begin(), keys.end(), key);
  return found == keys.end() ? -1 : static_cast<int>(found - keys.begin());
}

}  // namespace

VCommand::VCommand(VSet& settings, FontState& font)
    : Font(&font), Settings(&settings), shared_font_(font), is_shared_(true) {
}

const char* VCommand::excess() const {
  return items_ > kMaxItems ? "items" : tags_ > kMaxTags ? "tags" : nullptr;
}

const SharedFont& VCommand::sharedFont() {
  if (!std::exchange(is_shared_, true)) shared_font_ = SharedFont(*Font);
  return shared_font_;
}

FontState& VCommand::changedFont() {
  is_shared_ = false;
  return *Font;
}

std::unique_ptr<VData> VCommand::NextItem(LineCursor& cursor) {
  if (cursor.atEnd()) return nullptr;
  if (isControl(cursor.current())) {
    std::size_t place = cursor.offset();
    RunControlSequences(cursor.line(), place, nullptr, changedFont());
    cursor.moveTo(place);
    return nullptr;
  }
  if (cursor.current() == '<') {
    if (const auto tag = tagAt(cursor, cursor.offset())) return ParseTag(cursor, *tag);
  }
  return takeTextRun(cursor);
}

std::size_t VCommand::endOfRun(LineCursor& cursor) {
  const std::string_view line = cursor.line();
  std::size_t end = cursor.offset();
  while (true) {
    end += firstByteOf(line.substr(end), mayEndRun);
    if (end == line.size() || line[end] != '<' || tagAt(cursor, end)) return end;
    ++end;
  }
}

std::unique_ptr<VData> VCommand::takeTextRun(LineCursor& cursor) {
  const std::size_t end = endOfRun(cursor);
  auto item = std::make_unique<VData_Text>(cursor.between(cursor.offset(), end), sharedFont());
  ++items_;
  if (item->Text.find(kFormFeed) != std::string::npos)
    std::replace(item->Text.begin(), item->Text.end(), kFormFeed, ' ');
  cursor.moveTo(end);
  return item;
}

std::optional<VCommand::Tag> VCommand::tagAt(LineCursor& cursor, std::size_t place) {
  const std::string_view rest = cursor.from(place + 1).substr(0, kLongestKey + 1);
  const auto* const end = std::find_if(rest.begin(), rest.end(), endsKey);
  const std::string_view key(rest.begin(), end);
  if (const int style = keyIndexOf(key, kStyleKeys); style >= 0) {
    return styleTagAt(cursor, place, style);
  }
  if (const int item = keyIndexOf(key, kItemKeys); item >= 0) return itemTagAt(cursor, place, item);
  return std::nullopt;
}

std::optional<VCommand::Tag> VCommand::styleTagAt(LineCursor& cursor, std::size_t place, int key) {
  const std::size_t keyEnd = place + 1 + kStyleKeys[static_cast<std::size_t>(key)].size();
  const std::string_view rest = cursor.from(keyEnd);
  if (rest.starts_with("/>")) return Tag{true, key, TagForm::closing, {}, keyEnd + 2};
  if (rest.starts_with('>')) return Tag{true, key, TagForm::plain, {}, keyEnd + 1};
  if (!rest.starts_with(' ') || !cursor.closeFollows(keyEnd)) return std::nullopt;
  const std::size_t close = cursor.nextClose(keyEnd);
  const bool empty = cursor.line()[close - 1] == '/';
  return Tag{true, key, empty ? TagForm::empty : TagForm::opening,
             cursor.between(keyEnd + 1, std::max(keyEnd + 1, close - (empty ? 1 : 0))), close + 1};
}

// An item tag ends at the first ">" of the line. Where that one doesn't belong to a "/>", there is
// no telling where the tag ends, and it stays text.
std::optional<VCommand::Tag> VCommand::itemTagAt(LineCursor& cursor, std::size_t place, int key) {
  const std::size_t keyEnd = place + 1 + kItemKeys[static_cast<std::size_t>(key)].size();
  if (!cursor.from(keyEnd).starts_with(' ') || !cursor.emptyCloseFollows(keyEnd)) {
    return std::nullopt;
  }
  const std::size_t close = cursor.nextClose(keyEnd);
  if (cursor.line()[close - 1] != '/') return std::nullopt;
  return Tag{false, key, TagForm::empty, cursor.between(keyEnd + 1, close - 1), close + 1};
}

std::unique_ptr<VData> VCommand::ParseTag(LineCursor& cursor, const Tag& tag) {
  cursor.moveTo(tag.end);
  ++tags_;
  if (!tag.style) return MakeItem(tag);
  ApplyStyleCommand(tag);
  // A line that ends in an opening tag gets an empty text, so that it has a height.
  const bool endsLine = tag.form == TagForm::opening && cursor.atEnd();
  return endsLine ? std::make_unique<VData_Text>("", SharedFont()) : nullptr;
}

void VCommand::ApplyStyleCommand(const Tag& tag) {
  switch (tag.form) {
    case TagForm::closing: closeStyle(tag.key); break;
    case TagForm::plain:
      openStyle(tag.key);
      applyPlainStyle(tag.key);
      break;
    case TagForm::empty: readAttributes(tag.attributes, changedFont()); break;
    case TagForm::opening:
      if (tag.key != kFont) break;
      openStyle(tag.key);
      readAttributes(tag.attributes, changedFont());
      break;
  }
}

void VCommand::openStyle(int key) {
  Push(key, sharedFont());
}

void VCommand::closeStyle(int key) {
  if (!Pop(key, shared_font_)) return;
  is_shared_ = true;
  *Font = *shared_font_;
}

void VCommand::applyPlainStyle(int key) {
  FontState& font = changedFont();
  switch (key) {
    case kFont: break;
    case kBold: font.LogFont.Weight = kBoldWeight; break;
    case kItalic: font.LogFont.Italic = 1; break;
    case kUnderline: font.LogFont.Underline = 1; break;
    case kStrikeOut: font.LogFont.StrikeOut = 1; break;
    case kWide: font.WidthFactor *= 2; break;
    default: font.Height = kHeadingPoints[static_cast<std::size_t>(key - kFirstHeading)];
  }
}

std::unique_ptr<VData> VCommand::MakeItem(const Tag& tag) {
  const auto withAttributes = [&](auto item) -> std::unique_ptr<VData> {
    readAttributes(tag.attributes, *item);
    ++items_;
    return item;
  };
  switch (tag.key) {
    case kText: return withAttributes(std::make_unique<VData_Text>("", sharedFont()));
    case kShape: return withAttributes(std::make_unique<VData_Shape>(Settings));
    case kImage: return withAttributes(std::make_unique<VData_Image>(Settings));
    case kBarcode: return makeBarcode(tag);
    default: return nullptr;
  }
}

std::unique_ptr<VData> VCommand::makeBarcode(const Tag& tag) {
  auto item = std::make_unique<VData_BarCode>(Settings);
  readAttributes(tag.attributes, *item);
  item->follow(barcode_before_);
  barcode_before_ = item.get();
  ++items_;
  return item;
}

}  // namespace qor
