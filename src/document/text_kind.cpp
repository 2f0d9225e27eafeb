// Looking at bytes.
#include "document/text_kind.h"

#include <algorithm>
#include <string>

#include "document/code_page.h"
#include "document/control_bytes.h"
#include "document/item_visitor.h"
#include "document/page_loop.h"
#include "document/vdoc.h"

namespace qor {
namespace {

unsigned byteAt(std::string_view bytes, std::size_t place) {
  return static_cast<unsigned char>(bytes[place]);
}

// Bytes of the sequence that starts with this one; 0 where none does. Longer forms than needed are
// rare enough to be let through.
std::size_t sequenceLength(unsigned lead) {
  if (lead >= 0xC2 && lead <= 0xDF) return 2;
  if (lead >= 0xE0 && lead <= 0xEF) return 3;
  return lead >= 0xF0 && lead <= 0xF4 ? 4 : 0;
}

bool isLeftOut(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return byte >= 128 && CodePageTable[byte - 128U] == 0;
}

// A code page of one byte a character shows two or three wrong letters for each beyond ASCII.
bool looksLikeUtf8(std::string_view bytes) {
  bool found = false;
  for (std::size_t place = 0; place < bytes.size();) {
    if (byteAt(bytes, place) < 0x80) {
      ++place;
      continue;
    }
    const std::size_t length = sequenceLength(byteAt(bytes, place));
    if (length == 0) return false;
    const std::size_t end = std::min(place + length, bytes.size());
    for (std::size_t trail = place + 1; trail < end; ++trail) {
      if ((byteAt(bytes, trail) & 0xC0U) != 0x80) return false;
    }
    found = found || end == place + length;
    place = end;
  }
  return found;
}

class LeftOutCounter : public ItemVisitor {
 public:
  void text(VData_Text& text) override {
    if (text.inBox()) return;
    const auto count = std::count_if(text.Text.begin(), text.Text.end(), isLeftOut);
    letters += static_cast<std::int32_t>(count);
  }

  std::int32_t letters = 0;
};

}  // namespace

TextKind kindOf(std::string_view bytes) {
  const bool crs = bytes.find(kCarriageReturn) != std::string_view::npos;
  return {looksLikeUtf8(bytes), !crs && bytes.find(kLineFeed) != std::string_view::npos};
}

TextKind kindOfFirstPage(VDoc& doc) {
  constexpr std::uint64_t kEnough = std::uint64_t{64} * 1024;
  const VDocPage* page = doc.findPage(1);
  const auto file = page == nullptr ? std::nullopt : VDoc::OpenFile();
  if (!file) return {};
  std::string bytes(static_cast<std::size_t>(std::min(page->Length, kEnough)), '\0');
  bytes.resize(file->readAt(page->Offset, bytes.data(), bytes.size()));
  return kindOf(bytes);
}

std::int32_t lettersLeftOut(const VDocPage& page) {
  LeftOutCounter counter;
  forEachLine(page, [&counter](const VDocStr& line) { line.tell(counter); });
  return counter.letters;
}

}  // namespace qor
