// Printer control sequences.
#include "document/control_sequences.h"

#include <algorithm>

#include "base/units.h"
#include "document/control_bytes.h"
#include "document/font_state.h"
#include "document/vset.h"

namespace qor {
namespace {

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

char upperCase(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

std::int32_t opposite(std::int32_t value) {
  return clamped(-std::int64_t{value});
}

// What a parameterised command does. `whole` is the number cut to a whole one.
struct Parameter {
  double number;
  std::int32_t whole;
};

int orientationOf(std::int32_t n) {
  return n >= 0 && n <= 3 ? n + 1 : 1;
}

// The weights of "(s n B" from -7 to 7.
constexpr int kWeights[] = {0,   100, 200, 200, 300, 400, 400, 500,
                            600, 600, 700, 800, 800, 900, 900};

// One run of the interpreter: the fonts and pages that commands act on. Each command returns how
// many bytes it used, itself included.
class Interpreter {
 public:
  Interpreter(VSetPage* page, FontState& font) : page_(page), font_(font) {}

  std::size_t run(std::string_view text);

 private:
  std::size_t runAmpersand(std::string_view text);
  std::size_t runParenthesis(std::string_view text);
  static std::size_t runAsterisk(std::string_view text);

  void setPosition(char letter, Parameter n);
  void setUnderline(char letter, Parameter n);
  void setPitch(char letter, Parameter n);
  void setPageLayout(char letter, Parameter n);
  void setFontLook(char letter, Parameter n);
  void setCodePage(char letter, Parameter n);
  void setWidthFactor(std::string_view argument);
  void setHeight(std::string_view argument);
  void reset();

  VSetPage* page_;
  FontState& font_;
};

// Reads a number and a letter and gives both to `act`; returns the bytes used, 0 where there is no
// number.
template <class Act>
std::size_t runParameter(std::string_view text, Act act) {
  double number = 0;
  const std::size_t length = ReadNumber(text, number);
  if (length == 0) return 0;
  if (length < text.size()) act(text[length], Parameter{number, truncated(number)});
  return length + 1;
}

void Interpreter::reset() {
  if (page_ != nullptr) *page_ = VSetPage();
  font_.Reset();
}

void Interpreter::setWidthFactor(std::string_view argument) {
  if (argument.starts_with('0')) font_.WidthFactor /= 2;
  if (argument.starts_with('1')) font_.WidthFactor *= 2;
}

void Interpreter::setHeight(std::string_view argument) {
  if (argument.starts_with('0')) font_.Height = (font_.Height + 1) / 2;
  if (argument.starts_with('1')) font_.Height *= 2;
}

void Interpreter::setPosition(char letter, Parameter n) {
  if (page_ == nullptr) return;
  if (letter == 'P') page_->Orientation = orientationOf(n.whole % 4);
  switch (upperCase(letter)) {
    case 'L': page_->MarginLeft = opposite(n.whole); break;
    case 'M': page_->MarginRight = opposite(n.whole); break;
    default: break;
  }
}

void Interpreter::setUnderline(char letter, Parameter n) {
  if (upperCase(letter) == 'D') font_.LogFont.Underline = n.whole >= 0 && n.whole <= 4 ? 1 : 0;
}

void Interpreter::setPitch(char letter, Parameter n) {
  switch (upperCase(letter)) {
    case 'H': font_.CharSpacing = millimetresFromPitch(n.number); break;
    case 'S':
      if (n.whole == 0) font_.Width = 7.2;
      if (n.whole == 2) font_.Width = 4.2;
      if (n.whole == 4) font_.Width = 6.0;
      break;
    default: break;
  }
}

void Interpreter::setPageLayout(char letter, Parameter n) {
  switch (upperCase(letter)) {
    case 'C': font_.RowHeight = n.number; return;
    case 'D':
      if (n.whole != 0) font_.Height = pointsOfLines(n.whole);
      return;
    default: break;
  }
  if (page_ == nullptr) return;
  switch (upperCase(letter)) {
    case 'E': page_->MarginTop = opposite(n.whole); break;
    case 'F': page_->MarginBottom = opposite(n.whole); break;
    case 'O': page_->Orientation = orientationOf(n.whole); break;
    case 'X': page_->NumOfCopies = n.whole >= 1 && n.whole <= 999 ? n.whole : 1; break;
    default: break;
  }
}

void Interpreter::setFontLook(char letter, Parameter n) {
  switch (upperCase(letter)) {
    case 'B':
      if (n.whole >= -7 && n.whole <= 7) font_.LogFont.Weight = kWeights[n.whole + 7];
      break;
    case 'H':
      if (n.number != 0) font_.Width = pointsOfCharacters(n.number);
      break;
    case 'V': font_.Height = n.number; break;
    default: break;
  }
}

void Interpreter::setCodePage(char letter, Parameter n) {
  if (page_ != nullptr && upperCase(letter) == 'T' && n.number == 9) page_->BaseCodePage = 857;
}

std::size_t Interpreter::runAmpersand(std::string_view text) {
  if (text.empty()) return 0;
  const std::string_view rest = text.substr(1);
  const auto group = [&](auto action) {
    return 1 + runParameter(rest, [&](char letter, Parameter n) { (this->*action)(letter, n); });
  };
  switch (text.front()) {
    case 'a': return group(&Interpreter::setPosition);
    case 'd':
      if (!rest.starts_with('@')) return group(&Interpreter::setUnderline);
      font_.LogFont.Underline = 0;
      return 2;
    case 'k': return group(&Interpreter::setPitch);
    case 'l': return group(&Interpreter::setPageLayout);
    case 'u': return 1 + runParameter(rest, [](char, Parameter) {});
    default: return 0;
  }
}

std::size_t Interpreter::runParenthesis(std::string_view text) {
  if (text.starts_with('s')) {
    return 1 + runParameter(text.substr(1),
                            [this](char letter, Parameter n) { setFontLook(letter, n); });
  }
  return runParameter(text, [this](char letter, Parameter n) { setCodePage(letter, n); });
}

std::size_t Interpreter::runAsterisk(std::string_view text) {
  const auto nothing = [](char, Parameter) {};
  if (const std::size_t used = runParameter(text, nothing); used > 0) return used;
  if (!text.starts_with('p')) return 1;
  return 1 + std::max<std::size_t>(1, runParameter(text.substr(1), nothing));
}

std::size_t Interpreter::run(std::string_view text) {
  if (text.empty()) return 0;
  const std::string_view rest = text.substr(1);
  switch (text.front()) {
    case 15: font_.WidthFactor = 0.6; return 0;
    case 18: font_.WidthFactor = 1.0; return 0;
    case 'C': return rest.starts_with('\0') ? 3 : 2;
    case '9':
      if (page_ != nullptr) page_->MarginLeft = 0;
      return 1;
    case 'E': reset(); return 1;
    case '=':
    case 'Y':
    case 'Z': return 1;
    case 'W': setWidthFactor(rest); return 2;
    case 'w': setHeight(rest); return 2;
    case '3': return 3;
    case '2': return 2;
    case '&': return 1 + runAmpersand(rest);
    case '(': return 1 + runParenthesis(rest);
    case '*': return 1 + runAsterisk(rest);
    default: return 0;
  }
}

}  // namespace

std::size_t ReadNumber(std::string_view text, double& value) {
  constexpr int kPlaces = 4;
  constexpr double kLargest = 1e15;
  std::size_t used = !text.empty() && (text[0] == '+' || text[0] == '-') ? 1 : 0;
  const bool negative = used == 1 && text[0] == '-';
  double digits = 0;
  const std::size_t start = used;
  for (; used < text.size() && isDigit(text[used]); ++used) {
    digits = std::min(kLargest, digits * 10 + (text[used] - '0'));
  }
  double unit = 1;
  if (used > start && used < text.size() && text[used] == '.') {
    int places = 0;
    for (++used; used < text.size() && isDigit(text[used]); ++used) {
      if (places++ >= kPlaces) continue;
      digits = digits * 10 + (text[used] - '0');
      unit *= 10;
    }
  }
  value = (negative ? -digits : digits) / unit;
  return used;
}

void RunControlSequences(std::string_view text, std::size_t& cursor, VSetPage* page,
                         FontState& font) {
  Interpreter interpreter(page, font);
  const auto advance = [&](std::size_t count) { cursor = std::min(text.size(), cursor + count); };
  while (cursor < text.size() && text[cursor] == kEscape) {
    advance(1);
    advance(interpreter.run(text.substr(cursor)));
  }
  if (cursor >= text.size() || !isControl(text[cursor])) return;
  interpreter.run(text.substr(cursor));
  advance(1);
}

}  // namespace qor
