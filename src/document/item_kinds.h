// Kinds that reports and settings give as numbers. A report may give any number; what an unknown
// one does stands where the item is drawn.
#pragma once

#include <cstdint>

namespace qor {

// VData_Shape::ShapeType.
enum ShapeKind : std::int32_t {
  kLineShape = 1,
  kRectangleShape,
  kRoundedShape,
  kEllipseShape,
  kPictureShape,  // a rectangle that leaves a picture of itself beside the report
};

// VData_Shape::PenType. Any other number draws as a solid line.
enum PenKind : std::int32_t {
  kNoPen = 0,
  kSolidPen,
  kDashPen,
  kDotPen,
  kDashDotPen,
  kDashDotDotPen
};

// VData_Shape::BrushType. Any other number leaves the brush that is there.
enum BrushKind : std::int32_t {
  kNoBrush = 0,
  kSolidBrush,
  kBackwardHatch,
  kCrossHatch,
  kDiagonalCrossHatch,
  kForwardHatch,
  kHorizontalHatch,
  kVerticalHatch
};

// VData_Text::AlignH, from the left, and AlignV, from the top.
enum AlignKind : std::int32_t { kAlignStart = 0, kAlignCentre, kAlignEnd };

// VData_Image::ImageStretch.
enum StretchKind : std::int32_t {
  kNaturalStretch = 0,   // the picture's own size, 96 pixels to the inch
  kFillStretch,          // all of the box, whatever the picture's proportions
  kFitStretch,           // as much of the box as they allow
  kTwipPerPixelStretch,  // in the page's corner
};

// VSetPage::PrintPagesSet.
enum PrintRange : std::int32_t { kPrintAllPages = 0, kPrintCurrentPage, kPrintListedPages };

// What a page is read for. Only sheets differ: they keep the tabulators of lines, all others drop
// them.
enum class PageMode {
  plain = 0,
  text = 2,
  html = 3,
  rtf = 4,
  doc = 5,
  pictures = 7,  // and PDF
  sheets = 8
};

}  // namespace qor
