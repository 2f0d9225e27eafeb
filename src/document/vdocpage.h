// One page of the document: where it stands in the file and, while it is in use, its lines.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "base/chain.h"
#include "document/font_state.h"
#include "document/line_splitter.h"
#include "document/vdocstr.h"

namespace qor {

class InputFile;
class VCommand;
class VSet;

// "<report>: page <number>: ", for messages about what stands there.
std::string placeInReport(std::int32_t page);

class VDocPage {
 public:
  VDocPage(std::int32_t number, VSet* settings);
  ~VDocPage();
  VDocPage(const VDocPage&) = delete;
  VDocPage& operator=(const VDocPage&) = delete;

  // Reads the page's bytes and builds its lines, with the font that runs at its start; `font` is
  // then the one at its end. The file had that size when its pages were found: a last page may be
  // told to be longer than it is. Throws ReportError where they can't be read, and for a page of
  // more than 256 MB or four million lines, items or tags; the page then has no lines.
  void ReadLines(const InputFile& file, std::uint64_t fileSize, PageMode mode, LineEnds ends,
                 FontState& font);

  // The bytes of it, in a buffer that is made larger where it must be. Throws as ReadLines.
  std::string_view ReadBytes(const InputFile& file, std::uint64_t fileSize,
                             std::string& buffer) const;

  // Builds one line and appends it.
  void AddLine(const PageLine& line, VCommand& commands);

  // Drops the lines; the place in the file stays.
  void ReleaseLines();

  ChainView<&VDocStr::Next, VDocStr> lines() const {
    return ChainView<&VDocStr::Next, VDocStr>(FirstLine);
  }

  VDocStr* FirstLine = nullptr;  // owned
  VDocStr* LastLine = nullptr;
  VSet* Settings;                   // the document's
  std::unique_ptr<FontState> Font;  // at the end of the page, while it is loaded: that of its grid
  std::uint64_t Offset = 0;
  std::uint64_t Length = 0;
  std::int32_t Number;   // 1 for the first page
  bool Selected = true;  // in the print range
  bool Loaded = false;   // the lines are those of the file

 private:
  void addLines(LineSplitter& lines, VCommand& commands);

  EmptyTexts empty_texts_;
};

}  // namespace qor
