// Pages, and what is drawn on them.
#include "platform/pdf/pdf_document.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "base/units.h"
#include "platform/pdf/pdf_fonts.h"

namespace qor {

PdfDocument::PdfDocument(ByteSink& sink, PdfInformation information)
    : pages_(sink, std::move(information)), fonts_(std::make_unique<PdfFonts>(pages_.faces())) {
  pages_.openFitted();
}

PdfDocument::~PdfDocument() = default;

void PdfDocument::setResourceFile(const std::string& path) {
  resources_ = PdfResources(path);
}

void PdfDocument::defineEncoding(const std::string& name, const PdfEncoding& encoding) {
  encodings_[name] = fonts_->addEncoding(encoding);
}

void PdfDocument::beginPage() {
  pages_.beginPage();
  saved_.clear();
  state_ = {};
  path_ = {};
}

void PdfDocument::save() {
  content().save();
  saved_.push_back(state_);
}

void PdfDocument::restore() {
  if (saved_.empty()) return;
  content().restore();
  state_ = saved_.back();
  saved_.pop_back();
}

void PdfDocument::translate(double x, double y) {
  content().transform(1, 0, 0, 1, x, y);
}

void PdfDocument::rotate(double degrees) {
  const double angle = degrees * std::numbers::pi / 180;
  content().transform(std::cos(angle), std::sin(angle), -std::sin(angle), std::cos(angle), 0, 0);
}

void PdfDocument::moveTo(double x, double y) {
  content().moveTo({x, y});
  path_ = {x, y};
}

void PdfDocument::lineTo(double x, double y) {
  content().lineTo({x, y});
  path_ = {x, y};
}

void PdfDocument::rectangle(double x, double y, double width, double height) {
  content().rectangle({x, y, width, height});
  path_ = {x, y};
}

void PdfDocument::stroke() {
  content().paint(PdfPainting::stroke);
  path_ = {};
}

void PdfDocument::fitImage(const PdfImage& image, double x, double y, const FitOptions& fit) {
  const double perPixel = pointsPerDot(fit.dpi);
  FitOptions::Box size = {image.width * perPixel, image.height * perPixel};
  if (fit.method == FitMethod::entire) size = fit.box;
  if (fit.method == FitMethod::meet) {
    const double scale = std::min(fit.box.width / size.width, fit.box.height / size.height);
    size = {size.width * scale, size.height * scale};
  }
  if (!(size.width > 0) || !(size.height > 0)) return;
  pages_.showImage(image,
                   {x + fit.horizontal * (fit.box.width - size.width),
                    y + fit.vertical * (fit.box.height - size.height), size.width, size.height});
}

}  // namespace qor
