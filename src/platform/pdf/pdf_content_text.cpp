// Operators of texts (ISO 32000-1, 9.4).
#include <cmath>
#include <limits>
#include <utility>

#include "base/byte_scan.h"
#include "platform/pdf/pdf_content.h"
#include "platform/pdf/pdf_file.h"

namespace qor {
namespace {

constexpr PdfTurn kUpright{};
constexpr std::int64_t kNowhere = std::numeric_limits<std::int64_t>::min();

std::int64_t thousandths(double length) {
  return std::llround(std::fmin(std::fmax(length, -1e9), 1e9) * 1000);
}

double fromThousandths(std::int64_t value) {
  return static_cast<double>(value) / 1000;
}

bool isEscaped(char code) {
  return (code == '(') | (code == ')') | (code == '\\') | (code == '\r') | (code == '\n');
}

}  // namespace

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

void PdfContent::setTextMatrix(std::int64_t x, std::int64_t y, const PdfTurn& turn) {
  appendDirections(turn);
  operate({fromThousandths(x), fromThousandths(y)}, "Tm");
  turn_ = turn;
}

void PdfContent::moveDown(std::int64_t leading) {
  if (written_.leading != leading) operate({fromThousandths(leading)}, "TL");
  written_.leading = leading;
  line_y_ -= leading;
}

bool PdfContent::startText(std::int64_t x, std::int64_t y, const PdfTurn& turn) {
  if (turn != kUpright || turn_ != kUpright) {
    setTextMatrix(x, y, turn);
  } else if (x == pen_x_ && y == line_y_) {
    return false;
  } else if (x == line_x_ && y < line_y_) {
    moveDown(line_y_ - y);
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
  while (true) {
    const std::size_t plain = firstByteOf(codes, isEscaped);
    bytes_.append(codes.substr(0, plain));
    if (plain == codes.size()) break;
    const char code = codes[plain];
    bytes_ += '\\';
    bytes_ += code == '\r' ? 'r' : code == '\n' ? 'n' : code;
    codes.remove_prefix(plain + 1);
  }
  bytes_ += ')';
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

void PdfContent::show(PdfPoint place, const PdfTextStyle& style, std::string_view codes,
                      double length, std::span<const PdfStep> steps) {
  if (codes.empty()) return;
  openText();
  useStyle(style);
  PdfTurn turn = style.turn;
  if (style.slanted) {
    turn.c += kPdfSlant * turn.a;
    turn.d += kPdfSlant * turn.b;
  }
  const bool nextLine = startText(thousandths(place.x), thousandths(place.y), turn);
  markText();
  if (steps.empty()) {
    appendString(codes);
    bytes_ += nextLine ? "'\n" : "Tj\n";
  } else {
    if (nextLine) bytes_ += "T*\n";
    appendSteps(codes, steps);
    bytes_ += "TJ\n";
  }
  // Ghostscript 10.0, which most queues print by, stays where it is at hidden letters.
  const bool isHidden = style.mode == PdfTextMode::hidden;
  pen_x_ = isHidden ? kNowhere : thousandths(place.x + length);
}

}  // namespace qor
