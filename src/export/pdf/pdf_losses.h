// What pages show and the PDF export, which writes lines of text, doesn't.
#pragma once

#include <bitset>
#include <string>

#include "document/item_visitor.h"

namespace qor {

class VDocPage;
class VDocStr;

enum PdfLoss {
  kPlacedTexts,  // before plain ones, which then stand at the places of those
  kFillings,
  kEllipses,  // and whatever else is neither line nor rectangle
  kWidths,    // of letters and lines, and spaces between them
  kTurnedTexts,
  kUnderlines,  // and strike-outs
  kPens,        // dashed lines, and rectangles without a frame
  kPdfLossCount
};

using PdfLosses = std::bitset<kPdfLossCount>;

// They as a sentence without its point, in the language of the interface; empty where there are
// none.
std::string pdfNotice(PdfLosses losses);

// Looks at the pages of a document, in their order: a placed text moves plain ones on later pages,
// too.
class PdfLossWatch : private ItemVisitor {
 public:
  void look(const VDocStr& line);
  void look(const VDocPage& page);  // loaded

  const PdfLosses& found() const { return found_; }

 private:
  void text(VData_Text& text) override;
  void shape(VData_Shape& shape) override;

  PdfLosses found_;
  bool placed_ = false;  // there was a text with a place of its own
};

}  // namespace qor
