// Operators (ISO 32000-1, annex A).
#include "platform/pdf/pdf_content.h"

#include <cmath>
#include <tuple>
#include <utility>

#include "platform/pdf/pdf_file.h"

namespace qor {
namespace {

constexpr double kSlant = 0.2126;         // the tangent of 12 degrees
constexpr double kBoldStroke = 1.0 / 30;  // of the size

std::int64_t thousandths(double points) {
  return std::llround(std::fmin(std::fmax(points, -1e9), 1e9) * 1000);
}

}  // namespace

std::string_view PdfContent::bytes() {
  closeText();
  return bytes_;
}

void PdfContent::clear() {
  bytes_.clear();
  wanted_ = written_ = {};
  saved_.clear();
  in_text_ = false;
}

void PdfContent::operate(std::initializer_list<double> operands, std::string_view operation) {
  for (const double operand : operands) {
    appendNumber(bytes_, operand);
    bytes_ += ' ';
  }
  bytes_.append(operation) += '\n';
}

void PdfContent::save() {
  closeText();
  bytes_ += "q\n";
  saved_.emplace_back(wanted_, written_);
}

void PdfContent::restore() {
  if (saved_.empty()) return;
  closeText();
  bytes_ += "Q\n";
  std::tie(wanted_, written_) = std::move(saved_.back());
  saved_.pop_back();
}

void PdfContent::transform(double a, double b, double c, double d, double e, double f) {
  closeText();
  // A direction needs more digits than a place.
  for (const double part : {a, b, c, d}) bytes_ += std::to_string(part) + " ";
  operate({e, f}, "cm");
}

void PdfContent::useStroke(const PdfColor& color, double width, const std::vector<double>& dash) {
  if (written_.stroke != color) operate({color.red, color.green, color.blue}, "RG");
  if (written_.lineWidth != width) operate({width}, "w");
  written_.stroke = color;
  written_.lineWidth = width;
  if (written_.dash == dash) return;
  bytes_ += "[";
  for (const double length : dash) appendNumber(bytes_ += ' ', length);
  bytes_ += "]0 d\n";
  written_.dash = dash;
}

void PdfContent::preparePath() {
  closeText();
  useStroke(wanted_.stroke, 1, wanted_.dash);
}

void PdfContent::moveTo(double x, double y) {
  preparePath();
  operate({x, y}, "m");
}

void PdfContent::lineTo(double x, double y) {
  operate({x, y}, "l");
}

void PdfContent::rectangle(double x, double y, double width, double height) {
  preparePath();
  operate({x, y, width, height}, "re");
}

void PdfContent::stroke() {
  bytes_ += "S\n";
}

void PdfContent::image(const std::string& name, double x, double y, double width, double height) {
  closeText();
  bytes_ += "q\n";
  operate({width, 0, 0, height, x, y}, "cm");
  bytes_ += "/" + name + " Do\nQ\n";
}

void PdfContent::openText() {
  if (in_text_) return;
  bytes_ += "BT\n";
  in_text_ = true;
  slanted_ = false;
  line_x_ = line_y_ = pen_x_ = 0;
}

void PdfContent::closeText() {
  if (!in_text_) return;
  bytes_ += "ET\n";
  in_text_ = false;
}

void PdfContent::useStyle(const PdfTextStyle& style) {
  const PdfColor& color = wanted_.fill;
  if (written_.fill != color) operate({color.red, color.green, color.blue}, "rg");
  written_.fill = color;
  const auto before = std::exchange(written_.text, style);
  if (!before || before->face != style.face || before->size != style.size) {
    bytes_ += "/F" + std::to_string(style.face) + " ";
    operate({style.size}, "Tf");
  }
  if ((before && before->bold) != style.bold) operate({style.bold ? 2.0 : 0.0}, "Tr");
  if (style.bold) useStroke(color, std::abs(style.size) * kBoldStroke, {});
}

bool PdfContent::startText(std::int64_t x, std::int64_t y, bool slanted) {
  const auto points = [](std::int64_t value) { return static_cast<double>(value) / 1000; };
  if (slanted || slanted_) {
    bytes_ += "1 0 " + std::to_string(slanted ? kSlant : 0) + " 1 ";
    operate({points(x), points(y)}, "Tm");
    slanted_ = slanted;
  } else if (x == pen_x_ && y == line_y_) {
    return false;
  } else if (x == line_x_ && y < line_y_) {
    if (written_.leading != line_y_ - y) operate({points(line_y_ - y)}, "TL");
    written_.leading = line_y_ - y;
    line_y_ = y;
    return true;
  } else {
    operate({points(x - line_x_), points(y - line_y_)}, "Td");
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

void PdfContent::show(double x, double y, const PdfTextStyle& style, std::string_view codes,
                      double length) {
  if (codes.empty()) return;
  openText();
  useStyle(style);
  const bool nextLine = startText(thousandths(x), thousandths(y), style.slanted);
  appendString(codes);
  bytes_ += nextLine ? "'\n" : "Tj\n";
  pen_x_ = thousandths(x + length);
}

}  // namespace qor
