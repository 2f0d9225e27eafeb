// A document of a word processor while it is typed: text goes in where the typing stands, in the
// font and the styles that stand there; shapes and pictures hang behind the text at places of the
// sheet.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

#include "platform/canvas/canvas.h"
#include "platform/pictures/embedded_picture.h"

namespace qor {

class OutputFile;

struct WordPage {
  double width = 210;  // of the sheet as it lies, mm
  double height = 297;
  double margin = 10;  // on all four sides, points
};

enum class WordShapeKind { line, rectangle, roundedRectangle, ellipse };

// Its box counts from the sheet's corner, in twips, and may be turned over. The pen is in twips,
// too, and always draws.
struct WordShape {
  WordShapeKind kind = WordShapeKind::rectangle;
  Rect box;
  Pen pen;
  std::int32_t rounding = 0;  // of a rounded rectangle's corners: their radius, twips
};

struct WordPicture {
  Rect box;  // as a shape's
  std::optional<Pen> frame;
};

// How a page break comes into the text: typed, as part of what is typed there, or put beside it.
enum class WordBreak { typed, beside };

// All of its operations throw FileError where the file can't take what they write.
class WordDocument {
 public:
  virtual ~WordDocument() = default;

  // Once, before anything is typed.
  virtual void setPage(const WordPage& page) = 0;

  // Of what is typed from here on, as the styles below: they stay until they are toggled again.
  // The size is rounded to half points, from 1 to 1,638.
  virtual void setFont(std::string_view face, double points) = 0;
  virtual void toggleBold() = 0;
  virtual void toggleItalic() = 0;
  virtual void toggleUnderline() = 0;

  // UTF-8. A line end in it ends a line of the paragraph; other control characters are left out.
  virtual void typeText(std::string_view text) = 0;
  virtual void endParagraph() = 0;
  virtual void breakPage(WordBreak way) = 0;

  virtual void addShape(const WordShape& shape) = 0;
  virtual void addPicture(const EmbeddedPicture& picture, const WordPicture& place) = 0;

  // Writes the whole document. The file is not committed.
  virtual void save() = 0;
};

// Rich Text Format, version 1.9.1. The file must outlive the document, and nobody else may write to
// it.
std::unique_ptr<WordDocument> makeRtfDocument(OutputFile& file);

}  // namespace qor
