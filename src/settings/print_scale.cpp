// The print scale. Sheets of A4 keep an allowance of about three percent.
#include "settings/print_scale.h"

#include "base/units.h"

namespace qor {
namespace {

constexpr std::int32_t kA4 = 9;
constexpr std::int32_t kNaturalSize = 100;
constexpr std::int64_t kAllowance = 2;

// How much wider the printer's sheet is than the paper of the options.
double widthRatio(const ScaleQuestion& question, const VSetPage& page, const VSetPrn& printer) {
  const double paper = realPixelsFromMillimetres(page.PaperWidth, question.screenDpi);
  if (printer.LogPixelsX == 0 || paper == 0) return 0;
  const std::int64_t sheet =
      std::int64_t{printer.PhysicalWidth} * question.screenDpi / printer.LogPixelsX;
  return static_cast<double>(sheet) / paper;
}

// How much of the paper's width the page as drawn takes, at the zoom.
std::int64_t fillingPercent(const ScaleQuestion& question, const VSetPage& page) {
  const std::int64_t paper = pixelsFromMillimetres(page.PaperWidth, question.screenDpi);
  return question.zoom * paper / question.pageWidth;
}

}  // namespace

std::int32_t ComputePrintScale(const ScaleQuestion& question, const VSetPage& page,
                               const VSetPrn& printer) {
  if (question.pageWidth == 0) return kNaturalSize;
  const std::int64_t percent = fillingPercent(question, page);
  if (page.PaperSize != kA4) return clamped(percent);
  return truncated(static_cast<double>(percent - kAllowance) - widthRatio(question, page, printer));
}

std::optional<std::int32_t> previewPrintScale(const ScaleQuestion& question, const VSetPage& page,
                                              const VSetPrn& printer) {
  if (question.pageWidth == 0) return std::nullopt;
  const std::int64_t percent = fillingPercent(question, page);
  if (page.PaperSize != kA4) return clamped(percent);
  return truncated(static_cast<double>(percent - kAllowance) * widthRatio(question, page, printer));
}

}  // namespace qor
