// The document's file: opening it, its head, and its pages on demand.
#include "document/vdoc.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>

#include "base/app_options.h"
#include "base/errors.h"
#include "document/control_bytes.h"
#include "document/control_sequences.h"
#include "document/vcommand.h"
#include "platform/system/file_sample.h"
#include "platform/system/messages.h"

namespace qor {
namespace {

constexpr std::size_t kHeaderSize = 1024;
constexpr std::uint64_t kShortFile = 4096;  // its lines end as the report generator writes them

struct BaseFontRule {
  std::string_view start;
  std::int32_t percent;
};

// How the first bytes of a report tell the width of its base font.
constexpr BaseFontRule kBaseFontRules[] = {{"\017", 125},     {"\033CB\017", 125}, {"\033(9", 125},
                                           {"\033(s18", 125}, {"\033(s10", 75},    {"\033E", 150}};

std::int32_t baseFontPercent(std::string_view header) {
  for (const BaseFontRule& rule : kBaseFontRules) {
    if (header.starts_with(rule.start)) return rule.percent;
  }
  return 100;
}

}  // namespace

std::optional<InputFile> VDoc::OpenFile() {
  if (AppOptions.FileName.empty()) throw NumberedError(kErrorOpenDocument, {});
  try {
    return InputFile(AppOptions.FileName);
  } catch (const FileError& error) {
    showError(std::string("Error: ") + error.what());
    LastError.set(kErrorOpenDocument, AppOptions.FileName);
    return std::nullopt;
  }
}

int VDoc::ReadHeader(const InputFile& file) {
  std::array<char, kHeaderSize> buffer{};
  std::string_view header;
  try {
    header = {buffer.data(), file.readAt(0, buffer.data(), buffer.size())};
  } catch (const FileError& error) {
    showWarning(error.what());
    LastError.set(kErrorReadDocument, AppOptions.FileName);
    throw NumberedError(kErrorReadDocument, AppOptions.FileName);
  }
  if (header.size() <= 2) return 0;
  BaseFontPercent = baseFontPercent(header);
  if (header.front() != kEscape) return 0;
  std::size_t consumed = 0;
  VSetPage page = Settings.Page;
  FontState font;
  RunControlSequences(header, consumed, &page, font);
  if (!std::exchange(head_applied_, true)) Settings.Page = page;
  head_ = header.substr(0, consumed);
  HeaderLength = static_cast<std::uint32_t>(consumed);
  return 1;
}

bool VDoc::FileChanged() {
  if (!fileExists(AppOptions.FileName)) return false;
  const auto file = OpenFile();
  if (!file) return false;
  const std::uint64_t before = std::exchange(KnownSize, file->size());
  return KnownSize != before;
}

VDocPage* VDoc::findPage(std::int32_t number) {
  if (number < 1 || number > PageCount) return nullptr;
  return &Pages[static_cast<std::size_t>(number - 1)];
}

VDocPage* VDoc::GetPage(std::int32_t number, PageMode mode) {
  VDocPage* page = findPage(number);
  if (page == nullptr) return nullptr;
  const auto file = OpenFile();
  if (!file) return page;
  return &LoadPage(number, *file, mode);
}

VDocPage& VDoc::LoadPage(std::int32_t number, const InputFile& file, PageMode mode) {
  VDocPage& page = *findPage(number);
  readPage(page, file, mode);
  return page;
}

void VDoc::noteFile(const InputFile& file) {
  scanned_ = file.stamp();
  sample_ = sampleOf(file, scanned_.size);
}

void VDoc::RequireSameFile() const {
  const auto now = fileStamp(AppOptions.FileName);
  if (now == scanned_) return;
  const bool grown = MayGrow && now && now->file == scanned_.file && now->size > scanned_.size;
  if (!grown || sampleOf(InputFile(AppOptions.FileName), scanned_.size) != sample_)
    throw ReportError(AppOptions.FileName + ": the report has changed since its pages were found");
}

const FontState& VDoc::FontAt(std::int32_t number) {
  if (fonts_.known() == 0 || base_font_ != Settings.Font) {
    base_font_ = Settings.Font;
    FontState first = base_font_;
    std::size_t cursor = 0;
    RunControlSequences(head_, cursor, nullptr, first);
    fonts_.restart(first);
  }
  return fonts_.at(number);
}

// A short file may still grow, and is looked at again.
void VDoc::findLineEnds(const InputFile& file) {
  if (line_ends_ || file.size() <= kShortFile) return;
  line_ends_ = lineEndsOf(file);
  if (line_ends_ == LineEnds::lineFeeds) ForgetFonts();
}

LineEnds VDoc::lineEndsOf(const InputFile& file) const {
  const VDocPage& page = Pages.front();
  std::array<char, kHeaderSize> buffer;
  std::uint64_t place = page.Offset;
  for (const std::uint64_t end = page.Offset + page.Length; place < end;) {
    const auto wanted =
        static_cast<std::size_t>(std::min<std::uint64_t>(buffer.size(), end - place));
    const std::size_t count = file.readAt(place, buffer.data(), wanted);
    const std::string_view bytes(buffer.data(), count);
    if (bytes.find(kCarriageReturn) != std::string_view::npos) return LineEnds::carriageReturns;
    if (count < wanted) break;
    place += count;
  }
  return LineEnds::lineFeeds;
}

void VDoc::beforeReading(VDocPage& page, const InputFile& file) {
  // The first page of a quick scan starts at 0, before the control sequences.
  if (page.Number == 1 && HeaderLength > 0) page.Offset = HeaderLength;
  findLineEnds(file);
}

std::string_view VDoc::PageBytes(std::int32_t number, const InputFile& file, std::string& buffer) {
  VDocPage& page = *findPage(number);
  beforeReading(page, file);
  return page.ReadBytes(file, scanned_.size, buffer);
}

void VDoc::readPage(VDocPage& page, const InputFile& file, PageMode mode) {
  beforeReading(page, file);
  FontState font = FontAt(page.Number);
  page.ReadLines(file, scanned_.size, mode, lineEnds(), font);
  fonts_.endOfPage(page.Number, font);
}

void VDoc::ReadUpTo(std::int32_t number, const InputFile& file) {
  FontAt(number);
  while (fonts_.known() < std::min(number, PageCount)) {
    VDocPage& page = *findPage(fonts_.known());
    readPage(page, file);
    page.ReleaseLines();
  }
}

void VDoc::ReadUpTo(std::int32_t number) {
  if (const auto file = OpenFile()) ReadUpTo(number, *file);
}

void VDoc::ReleasePage(std::int32_t number) {
  if (VDocPage* page = findPage(number)) page->ReleaseLines();
}

void VDoc::Clear() {
  Pages.clear();
  PageCount = 0;
  KnownSize = 0;
  HeaderLength = 0;
  head_.clear();
  line_ends_.reset();
  ForgetFonts();
}

VDocPage& VDoc::appendPage(std::uint64_t offset, std::uint64_t length) {
  VDocPage& page = Pages.emplace_back(++PageCount, &Settings);
  page.Offset = offset;
  page.Length = length;
  return page;
}

}  // namespace qor
