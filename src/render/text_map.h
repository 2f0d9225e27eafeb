// What a page says and where: its lines as they are read, with the place of each character. Find,
// selection, copying and reading aloud stand on it. Lines are those of the report in their order,
// then rows of texts with places of their own (see ItemTexts). A page may have millions of lines:
// the map keeps where each starts, and lays one out when it is asked for. It looks at a loaded page
// and lives no longer; the document's code page must be loaded. All places are twips.
#pragma once

#include <string>
#include <tuple>
#include <vector>

#include "document/document_letters.h"
#include "platform/canvas/canvas.h"
#include "render/text_stretch.h"

namespace qor {

class VData;
class VDocPage;
class VDocStr;

// A gap between characters: before the one at `column`, from 0, or behind the last.
struct TextPlace {
  std::size_t line = 0;
  std::size_t column = 0;

  bool operator==(const TextPlace&) const = default;
  bool operator<(const TextPlace& other) const {
    return std::tie(line, column) < std::tie(other.line, other.column);
  }
};

class TextMap {
 public:
  // Walks the page as DrawPage does and paints nothing.
  TextMap(VDocPage& page, const DocumentLetters& letters);

  std::size_t lineCount() const { return bands_.size(); }
  const TextBand& band(std::size_t line) const { return bands_[line]; }

  // The page as one text, in which each line has an end of one character: where a line starts, or
  // for the number of lines how long all of it is; and what stands where, at most the last end.
  std::size_t offset(std::size_t line) const { return offsets_[line]; }
  TextPlace placeOf(std::size_t offset) const;

  std::u32string text(std::size_t line) const;
  TextLine line(std::size_t line) const;

  // The gap nearest to a spot: of the lines at its height, or of the nearest one. The start of
  // the page where it has no text.
  TextPlace placeNear(const Spot& spot) const;

 private:
  struct Start {
    VDocStr* line;
    Point corner;
  };

  void addRows(const VDocPage& page);
  void addOffset(std::size_t length);
  std::vector<std::size_t> linesAt(double y) const;

  DocumentLetters letters_;
  std::vector<Start> starts_;               // of the report's lines
  std::vector<std::vector<VData*>> rows_;   // of texts with places of their own
  std::vector<TextBand> bands_;             // of all lines
  std::vector<std::size_t> offsets_ = {0};  // of all lines, and the end
};

}  // namespace qor
