// Rules of edits.
#include "window_model/edit_rules.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "base/text.h"
#include "settings/number_text.h"

namespace qor {
namespace {

constexpr std::size_t kMostDigits = 3;
constexpr double kLargest = 999.0;         // of three digits
constexpr double kLargestDecimal = 999.9;  // and one behind the separator
constexpr double kDefaultHeight = 10.0;    // points
constexpr std::string_view kPageMarks = ",-";
constexpr std::size_t kNowhere = std::string_view::npos;

bool isControl(char key) {
  return static_cast<unsigned char>(key) < ' ' || key == '\x7F';
}

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

bool areDigits(std::string_view text, std::size_t most) {
  return text.size() <= most && std::all_of(text.begin(), text.end(), isDigit);
}

char withSeparator(char c, char separator) {
  return separator != '\0' && (c == '.' || c == ',') ? separator : c;
}

std::string_view beforeInsertion(const EditedText& edited) {
  const int at = edited.selectionLength > 0 ? edited.selectionStart : edited.caret;
  return edited.text.substr(0, static_cast<std::size_t>(at));
}

std::string withInserted(const EditedText& edited, std::string_view entering) {
  const std::string_view before = beforeInsertion(edited);
  std::string text(before);
  const auto selected = static_cast<std::size_t>(edited.selectionLength);
  return text.append(entering).append(edited.text.substr(before.size() + selected));
}

// Up to three digits, a separator, one more; any part may still be missing.
bool isDouble3_1(std::string_view text, char separator) {
  const std::string_view whole = upTo(text, separator);
  const std::string_view behind = text.substr(std::min(text.size(), whole.size() + 1));
  return areDigits(whole, kMostDigits) && areDigits(behind, 1);
}

bool isSignedDouble3_1(std::string_view text, char separator) {
  return isDouble3_1(text.substr(text.starts_with('-') ? 1 : 0), separator);
}

// True for what no number is to begin with.
bool isOutOfPlace(const EditedText& edited, char entering, char separator) {
  if (edited.text.empty()) return entering == '0' || entering == separator;
  return entering == separator && edited.selectionLength > 0 && edited.selectionStart == 0;
}

std::string withoutZeroOfTwo(std::string_view text) {
  return std::string(text.substr(text.size() == 2 && text.front() == '0' ? 1 : 0));
}

// Without zeros that stand before another digit, behind the minus if there is one.
std::string withoutLeadingZeros(std::string_view text) {
  std::string shorter(text);
  const std::size_t start = text.starts_with('-') ? 1 : 0;
  while (shorter.size() > start + 1 && shorter[start] == '0' && isDigit(shorter[start + 1]))
    shorter.erase(start, 1);
  return shorter;
}

// Minus zero is zero.
CheckedText withValue(std::string text) {
  const double value = ParseDoubleAnyLocale(text) + 0.0;
  return {std::move(text), value};
}

using Shape = bool (*)(std::string_view text, char separator);

TypedChar typedNumber(const EditedText& edited, char key, char separator, Shape shape) {
  if (isControl(key)) return key;
  const char entering = withSeparator(key, separator);
  if (isOutOfPlace(edited, entering, separator)) return std::nullopt;
  const bool fits = shape(withInserted(edited, {&entering, 1}), separator);
  return fits ? TypedChar(entering) : std::nullopt;
}

bool fitsInt3(std::string_view text) {
  return areDigits(text, kMostDigits);
}

bool fitsPages(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char c) { return isDigit(c) || kPageMarks.find(c) != kNowhere; });
}

// A number may end with its separator, and has a digit before it.
bool fitsNumber(std::string_view text, char separator, Shape shape) {
  const std::string_view whole = upTo(text, separator);
  return std::any_of(whole.begin(), whole.end(), isDigit) && shape(text, separator);
}

EditRule decimalRule(char separator, double lowest,
                     std::function<CheckedText(std::string_view)> changed) {
  EditRule rule;
  rule.typed = [separator](const EditedText& edited, char key) {
    return KeyPressCheck_Double3_1(edited, key, separator);
  };
  rule.fits = [separator](std::string_view text) {
    return fitsNumber(text, separator, isDouble3_1);
  };
  rule.changed = std::move(changed);
  rule.separator = separator;
  rule.step = 1.0;
  rule.lowest = lowest;
  rule.highest = kLargestDecimal;
  return rule;
}

}  // namespace

TypedChar KeyPressCheck_Int3(const EditedText& edited, char key) {
  if (isControl(key)) return key;
  const bool hasRoom = edited.text.size() < kMostDigits || edited.selectionLength > 0;
  return isDigit(key) && hasRoom ? TypedChar(key) : std::nullopt;
}

TypedChar KeyPressCheck_StringPages(const EditedText& edited, char key) {
  if (isControl(key)) return key;
  const bool isMark = kPageMarks.find(key) != kNowhere;
  if (!isMark && !isDigit(key)) return std::nullopt;
  const std::string_view before = beforeInsertion(edited);
  const bool isBehindMark = !before.empty() && kPageMarks.find(before.back()) != kNowhere;
  return isBehindMark && (isMark || key == '0') ? std::nullopt : TypedChar(key);
}

TypedChar KeyPressCheck_Double3_1(const EditedText& edited, char key, char separator) {
  return typedNumber(edited, key, separator, isDouble3_1);
}

TypedChar txtFontSpaceKeyPress(const EditedText& edited, char key, char separator) {
  return typedNumber(edited, key, separator, isSignedDouble3_1);
}

CheckedText TextChangeCheck_Int3(std::string_view text) {
  return withValue(withoutZeroOfTwo(text));
}

CheckedText TextChangeCheck_Int3_1(std::string_view text) {
  CheckedText checked = TextChangeCheck_Int3(text);
  if (checked.text == "0") checked.text = "1";
  checked.value = std::max(1.0, checked.value);
  return checked;
}

std::string txtFontChange(std::string_view text, char separator) {
  if (text.starts_with(separator)) text.remove_prefix(1);
  const bool isWhole = text.find(separator) == kNowhere;
  return std::string(isWhole ? text.substr(0, kMostDigits) : text);
}

CheckedText txtFontHeightChange(std::string_view text, char separator) {
  std::string checked = txtFontChange(text, separator);
  if (checked.empty()) return {checked, kDefaultHeight};
  return withValue(checked == "0" ? "1" : checked);
}

CheckedText txtFontWidthChange(std::string_view text, char separator) {
  return withValue(txtFontChange(text, separator));
}

CheckedText txtFontSpaceChange(std::string_view text) {
  return withValue(withoutLeadingZeros(text));
}

CheckedText txtPageSizeChange(std::string_view text) {
  return withValue(std::string(text.substr(text.starts_with("00") ? 2 : 0)));
}

EditRule copiesRule() {
  constexpr double kMost = std::numeric_limits<std::int32_t>::max();
  return {KeyPressCheck_Int3, fitsInt3, TextChangeCheck_Int3_1, '\0', 1.0, 1.0, kMost};
}

EditRule marginRule() {
  return {KeyPressCheck_Int3, fitsInt3, TextChangeCheck_Int3, '\0', 1.0, 0.0, kLargest};
}

EditRule pagesRule() {
  const auto same = [](std::string_view text) { return CheckedText{std::string(text)}; };
  return {KeyPressCheck_StringPages, fitsPages, same};
}

EditRule pageSizeRule(char separator) {
  return decimalRule(separator, 0.0, txtPageSizeChange);
}

EditRule fontHeightRule(char separator) {
  return decimalRule(separator, 1.0, [separator](std::string_view text) {
    return txtFontHeightChange(text, separator);
  });
}

EditRule fontWidthRule(char separator) {
  return decimalRule(separator, 0.0, [separator](std::string_view text) {
    return txtFontWidthChange(text, separator);
  });
}

EditRule fontSpaceRule(char separator) {
  EditRule rule = decimalRule(separator, -kLargestDecimal, txtFontSpaceChange);
  rule.typed = [separator](const EditedText& edited, char key) {
    return txtFontSpaceKeyPress(edited, key, separator);
  };
  rule.fits = [separator](std::string_view text) {
    return fitsNumber(text, separator, isSignedDouble3_1);
  };
  rule.step = 0.1;
  return rule;
}

std::optional<std::string> pastedText(const EditRule& rule, const EditedText& edited,
                                      std::string_view pasted) {
  std::string entering(trimmed(pasted));
  for (char& c : entering) c = withSeparator(c, rule.separator);
  if (entering.empty() || !rule.fits(withInserted(edited, entering))) return std::nullopt;
  return entering;
}

std::string steppedText(const EditRule& rule, std::string_view text, int steps) {
  const double value = rule.changed(text).value + rule.step * steps;
  const double tenths = std::round(std::clamp(value, rule.lowest, rule.highest) * 10.0);
  std::string stepped = FloatToStr(tenths / 10.0);
  for (char& c : stepped) c = withSeparator(c, rule.separator);
  return stepped;
}

}  // namespace qor
