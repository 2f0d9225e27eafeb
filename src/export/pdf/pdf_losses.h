// What pages show and the PDF export, which writes lines of text, doesn't.
#pragma once

#include <bitset>

namespace qor {

enum PdfLoss {
  kPlacedTexts,  // before plain ones
  kFillings,
  kEllipses,
  kWidths,  // of letters
  kTurnedTexts,
  kPdfLossCount
};

using PdfLosses = std::bitset<kPdfLossCount>;

}  // namespace qor
