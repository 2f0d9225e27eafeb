// Loading pages: bytes to lines.
#include "document/vdocpage.h"

#include <algorithm>
#include <string>

#include "base/app_options.h"
#include "base/errors.h"
#include "document/vcommand.h"
#include "platform/system/input_file.h"

namespace qor {
namespace {

// No page that is to be read holds as much; a file without page ends that does must not fill the
// memory.
constexpr std::uint64_t kMaxPageBytes = 256U << 20;
constexpr std::size_t kMaxLines = 4'000'000;

[[noreturn]] void refuse(const VDocPage& page, const std::string& reason) {
  throw ReportError("Error: page " + std::to_string(page.Number) + " " + reason + ": " +
                    AppOptions.FileName);
}

}  // namespace

std::string placeInReport(std::int32_t page) {
  return AppOptions.FileName + ": page " + std::to_string(page) + ": ";
}

VDocPage::VDocPage(std::int32_t number, VSet* settings) : Settings(settings), Number(number) {
}

VDocPage::~VDocPage() {
  ReleaseLines();
}

std::string_view VDocPage::ReadBytes(const InputFile& file, std::uint64_t fileSize,
                                     std::string& buffer) const {
  if (Length > kMaxPageBytes) refuse(*this, "is longer than 256 MB, which is too long to be read");
  const std::uint64_t there = fileSize > Offset ? fileSize - Offset : 0;
  const auto wanted = static_cast<std::size_t>(std::min(Length, there));
  if (buffer.size() < wanted) buffer.resize(wanted);
  try {
    if (file.readAt(Offset, buffer.data(), wanted) < wanted)
      throw FileError(AppOptions.FileName + ": became shorter since its pages were found");
  } catch (const FileError& error) {
    throw ReportError(std::string(error.what()) + ": page " + std::to_string(Number) +
                      ". Error: can't read data from document file: " + AppOptions.FileName);
  }
  return {buffer.data(), wanted};
}

void VDocPage::ReadLines(const InputFile& file, std::uint64_t fileSize, PageMode mode,
                         LineEnds ends, FontState& font) {
  ReleaseLines();
  std::string buffer;
  LineSplitter lines(ReadBytes(file, fileSize, buffer), Number, mode, ends);
  VCommand commands(*Settings, font);
  try {
    addLines(lines, commands);
  } catch (...) {
    ReleaseLines();
    throw;
  }
  Font = std::make_unique<FontState>(font);
  Loaded = true;
}

void VDocPage::addLines(LineSplitter& lines, VCommand& commands) {
  std::size_t count = 0;
  while (const auto line = lines.next()) {
    AddLine(*line, commands);
    if (++count > kMaxLines) refuse(*this, "has more than 4 million lines");
    if (const char* excess = commands.excess())
      refuse(*this, std::string("has more than 4 million ") + excess);
  }
}

void VDocPage::AddLine(const PageLine& line, VCommand& commands) {
  VDocStr*& link = LastLine == nullptr ? FirstLine : LastLine->Next;
  link = LastLine = new VDocStr(line.text, commands, empty_texts_);
  LastLine->AfterFormFeed = line.afterFormFeed;
  if (!line.overprints) return;
  LastLine->Overprint = 1;
  LastLine->LineFeeds = 0;
}

void VDocPage::ReleaseLines() {
  deleteChain<&VDocStr::Next>(FirstLine);
  LastLine = nullptr;
  empty_texts_.clear();
  Font.reset();
  Loaded = false;
}

}  // namespace qor
