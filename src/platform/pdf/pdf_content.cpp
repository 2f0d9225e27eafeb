// Operators of shapes and states (ISO 32000-1, annex A).
#include "platform/pdf/pdf_content.h"

#include <array>
#include <cmath>
#include <tuple>
#include <utility>

#include "platform/pdf/pdf_file.h"

namespace qor {

std::string_view PdfContent::bytes() {
  endDecoration();
  return bytes_;
}

void PdfContent::clear(bool marked) {
  bytes_.clear();
  wanted_ = written_ = {};
  saved_.clear();
  open_ = Open::nothing;
  marked_ = marked;
  mark_ = Mark::none;
  mark_count_ = 0;
  marks_.clear();
  line_ended_ = true;
}

void PdfContent::operate(std::initializer_list<double> operands, std::string_view operation) {
  for (const double operand : operands) {
    appendNumber(bytes_, operand);
    bytes_ += ' ';
  }
  bytes_.append(operation) += '\n';
}

// A direction needs more digits than a place, and that of narrow letters still more.
void PdfContent::appendDirections(const PdfTurn& turn) {
  for (const double part : {turn.a, turn.b, turn.c, turn.d}) {
    appendNumber(bytes_, part, std::abs(part) > 1e-9 && std::abs(part) < 0.1 ? 12 : 6);
    bytes_ += ' ';
  }
}

void PdfContent::operateColor(const PdfColor& color, std::string_view operation) {
  operate({color.red, color.green, color.blue}, operation);
}

// Ends a text or a row of rectangles; between them operators may stand that are neither.
void PdfContent::close() {
  if (open_ == Open::rectangles) bytes_ += "f\n";
  if (open_ == Open::text) {
    if (mark_ == Mark::text) endMark();
    bytes_ += "ET\n";
  }
  open_ = Open::nothing;
}

void PdfContent::endMark() {
  bytes_ += "EMC\n";
  mark_ = Mark::none;
}

void PdfContent::openDecoration() {
  close();
  if (!marked_ || mark_ == Mark::decoration) return;
  bytes_ += "/Artifact BMC\n";
  mark_ = Mark::decoration;
}

void PdfContent::endDecoration() {
  close();
  if (mark_ == Mark::decoration) endMark();
}

void PdfContent::save() {
  endDecoration();
  bytes_ += "q\n";
  saved_.emplace_back(wanted_, written_);
}

void PdfContent::restore() {
  if (saved_.empty()) return;
  endDecoration();
  bytes_ += "Q\n";
  std::tie(wanted_, written_) = std::move(saved_.back());
  saved_.pop_back();
}

void PdfContent::transform(double a, double b, double c, double d, double e, double f) {
  endDecoration();
  appendDirections({a, b, c, d});
  operate({e, f}, "cm");
}

void PdfContent::clip(const PdfBox& box) {
  endDecoration();
  operate({box.x, box.y, box.width, box.height}, "re");
  bytes_ += "W n\n";
}

void PdfContent::useStroke(const Stroke& stroke) {
  if (written_.stroke.color != stroke.color) operateColor(stroke.color, "RG");
  if (written_.stroke.width != stroke.width) operate({stroke.width}, "w");
  if (written_.stroke.cap != stroke.cap) bytes_ += stroke.cap == PdfCap::round ? "1 J\n" : "0 J\n";
  if (written_.stroke.dash != stroke.dash) {
    bytes_ += "[";
    for (const double length : stroke.dash) appendNumber(bytes_ += ' ', length);
    bytes_ += "]0 d\n";
  }
  written_.stroke = stroke;
}

void PdfContent::useFill() {
  if (written_.fill == wanted_.fill) return;
  const auto& [color, pattern] = wanted_.fill;
  if (pattern.empty()) {
    operateColor(color, "rg");
  } else {
    if (written_.fill.pattern.empty()) bytes_ += "/Hatch cs\n";
    operateColor(color, "/" + pattern + " scn");
  }
  written_.fill = wanted_.fill;
}

void PdfContent::prepareFill() {
  openDecoration();
  useFill();
}

void PdfContent::moveTo(PdfPoint to) {
  openDecoration();
  useStroke(wanted_.stroke);
  operate({to.x, to.y}, "m");
}

void PdfContent::lineTo(PdfPoint to) {
  operate({to.x, to.y}, "l");
}

void PdfContent::curveTo(PdfPoint control1, PdfPoint control2, PdfPoint to) {
  operate({control1.x, control1.y, control2.x, control2.y, to.x, to.y}, "c");
}

void PdfContent::closePath() {
  bytes_ += "h\n";
}

void PdfContent::rectangle(const PdfBox& box) {
  openDecoration();
  useStroke(wanted_.stroke);
  operate({box.x, box.y, box.width, box.height}, "re");
}

void PdfContent::paint(PdfPainting painting) {
  constexpr std::array<const char*, 3> kOperators = {"S\n", "f\n", "B\n"};
  bytes_ += kOperators[static_cast<std::size_t>(painting)];
}

void PdfContent::fillRectangle(const PdfBox& box) {
  if (open_ != Open::rectangles || written_.fill != wanted_.fill) prepareFill();
  open_ = Open::rectangles;
  operate({box.x, box.y, box.width, box.height}, "re");
}

void PdfContent::image(const std::string& name, const PdfBox& box) {
  openDecoration();
  bytes_ += "q\n";
  operate({box.width, 0, 0, box.height, box.x, box.y}, "cm");
  bytes_ += "/" + name + " Do\nQ\n";
}

}  // namespace qor
