// Operators (ISO 32000-1, annex A).
#include "platform/pdf/pdf_content.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <tuple>
#include <utility>

#include "platform/pdf/pdf_file.h"

namespace qor {
namespace {

constexpr PdfTurn kUpright{};

std::int64_t thousandths(double length) {
  return std::llround(std::fmin(std::fmax(length, -1e9), 1e9) * 1000);
}

double fromThousandths(std::int64_t value) {
  return static_cast<double>(value) / 1000;
}

// A direction needs more digits than a place, and that of narrow letters still more.
void appendDirections(std::string& bytes, const PdfTurn& turn) {
  for (const double part : {turn.a, turn.b, turn.c, turn.d}) {
    char text[40];
    std::snprintf(text, sizeof text, "%.*f ",
                  std::abs(part) > 1e-9 && std::abs(part) < 0.1 ? 12 : 6, part);
    bytes += text;
  }
}

}  // namespace

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
  appendDirections(bytes_, {a, b, c, d});
  operate({e, f}, "cm");
}

void PdfContent::clip(double x, double y, double width, double height) {
  endDecoration();
  operate({x, y, width, height}, "re");
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

void PdfContent::moveTo(double x, double y) {
  openDecoration();
  useStroke(wanted_.stroke);
  operate({x, y}, "m");
}

void PdfContent::lineTo(double x, double y) {
  operate({x, y}, "l");
}

void PdfContent::curveTo(double x1, double y1, double x2, double y2, double x, double y) {
  operate({x1, y1, x2, y2, x, y}, "c");
}

void PdfContent::closePath() {
  bytes_ += "h\n";
}

void PdfContent::rectangle(double x, double y, double width, double height) {
  openDecoration();
  useStroke(wanted_.stroke);
  operate({x, y, width, height}, "re");
}

void PdfContent::paint(PdfPainting painting) {
  constexpr std::array<const char*, 3> kOperators = {"S\n", "f\n", "B\n"};
  bytes_ += kOperators[static_cast<std::size_t>(painting)];
}

void PdfContent::fillRectangle(double x, double y, double width, double height) {
  if (open_ != Open::rectangles || written_.fill != wanted_.fill) prepareFill();
  open_ = Open::rectangles;
  operate({x, y, width, height}, "re");
}

void PdfContent::image(const std::string& name, double x, double y, double width, double height) {
  openDecoration();
  bytes_ += "q\n";
  operate({width, 0, 0, height, x, y}, "cm");
  bytes_ += "/" + name + " Do\nQ\n";
}

void PdfContent::openText() {
  if (open_ == Open::text) return;
  endDecoration();
  bytes_ += "BT\n";
  open_ = Open::text;
  turn_ = kUpright;
  line_x_ = line_y_ = pen_x_ = 0;
}

void PdfContent::markText() {
  if (!marked_ || (mark_ == Mark::text && !line_ended_)) return;
  if (mark_ == Mark::text) endMark();
  bytes_ += "/P<</MCID " + std::to_string(mark_count_++) + ">>BDC\n";
  mark_ = Mark::text;
  if (line_ended_) marks_.push_back(0);
  line_ended_ = false;
  ++marks_.back();
}

void PdfContent::useStyle(const PdfTextStyle& style) {
  useFill();
  const bool isFirst = !written_.text;
  const PdfTextStyle before = std::exchange(written_.text, style).value_or(PdfTextStyle());
  if (isFirst || before.face != style.face || before.size != style.size) {
    bytes_ += "/F" + std::to_string(style.face) + " ";
    operate({style.size}, "Tf");
  }
  if (before.stretch != style.stretch) operate({style.stretch}, "Tz");
  if (before.spacing != style.spacing) operate({style.spacing}, "Tc");
  if (before.mode != style.mode) operate({static_cast<double>(style.mode)}, "Tr");
  if (style.mode == PdfTextMode::bold)
    useStroke({wanted_.fill.color, std::abs(style.size) * kPdfBoldStroke, written_.stroke.cap, {}});
}

bool PdfContent::startText(std::int64_t x, std::int64_t y, const PdfTurn& turn) {
  if (turn != kUpright || turn_ != kUpright) {
    appendDirections(bytes_, turn);
    operate({fromThousandths(x), fromThousandths(y)}, "Tm");
    turn_ = turn;
  } else if (x == pen_x_ && y == line_y_) {
    return false;
  } else if (x == line_x_ && y < line_y_) {
    const std::int64_t leading = line_y_ - y;
    if (written_.leading != leading) operate({fromThousandths(leading)}, "TL");
    written_.leading = leading;
    line_y_ = y;
    return true;
  } else {
    operate({fromThousandths(x - line_x_), fromThousandths(y - line_y_)}, "Td");
  }
  line_x_ = x;
  line_y_ = y;
  return false;
}

// Most texts hold nothing that has to be told apart from the marks of a string.
void PdfContent::appendString(std::string_view codes) {
  bytes_ += '(';
  std::size_t first = 0;
  for (std::size_t i = 0; i < codes.size(); ++i) {
    const char code = codes[i];
    const bool isMark = code == '(' || code == ')' || code == '\\';
    if (!isMark && code != '\r' && code != '\n') continue;
    bytes_.append(codes.substr(first, i - first)) += '\\';
    bytes_ += isMark ? code : code == '\r' ? 'r' : 'n';
    first = i + 1;
  }
  bytes_.append(codes.substr(first)) += ')';
}

void PdfContent::appendSteps(std::string_view codes, std::span<const PdfStep> steps) {
  bytes_ += '[';
  std::size_t first = 0;
  for (const PdfStep& step : steps) {
    appendString(codes.substr(first, step.code - first));
    appendNumber(bytes_, step.back);
    first = step.code;
  }
  appendString(codes.substr(first));
  bytes_ += ']';
}

void PdfContent::show(double x, double y, const PdfTextStyle& style, std::string_view codes,
                      double length, std::span<const PdfStep> steps) {
  if (codes.empty()) return;
  openText();
  useStyle(style);
  PdfTurn turn = style.turn;
  if (style.slanted) {
    turn.c += kPdfSlant * turn.a;
    turn.d += kPdfSlant * turn.b;
  }
  const bool nextLine = startText(thousandths(x), thousandths(y), turn);
  markText();
  if (steps.empty()) {
    appendString(codes);
    bytes_ += nextLine ? "'\n" : "Tj\n";
  } else {
    if (nextLine) bytes_ += "T*\n";
    appendSteps(codes, steps);
    bytes_ += "TJ\n";
  }
  pen_x_ = thousandths(x + length);
}

}  // namespace qor
