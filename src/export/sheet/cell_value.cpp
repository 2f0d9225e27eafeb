// Values of texts.
#include "export/sheet/cell_value.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cmath>
#include <iterator>
#include <optional>
#include <string>

#include "base/text.h"

namespace qor {
namespace {

using Kind = CellValue::Kind;

constexpr std::size_t kMostDecimals = 10;
constexpr std::size_t kDateLength = 10;

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

bool isGap(char c) {
  return c == ' ' || c == ',';
}

bool looksLikeNumber(std::string_view text) {
  const auto belongs = [](char c) { return isDigit(c) || isGap(c) || c == '.'; };
  return text.front() == ' ' && std::all_of(text.begin(), text.end(), belongs) &&
         std::any_of(text.begin(), text.end(), isDigit);
}

// The characters behind the first ".", or behind the first "," where there is no ".".
std::size_t decimalsOf(std::string_view number) {
  auto mark = number.find('.');
  if (mark == std::string_view::npos) mark = number.find(',');
  return mark == std::string_view::npos ? 0 : std::min(number.size() - mark - 1, kMostDecimals);
}

std::optional<double> realOf(std::string_view digits) {
  double value = 0;
  const char* last = digits.data() + digits.size();
  const auto [end, error] = std::from_chars(digits.data(), last, value);
  if (error != std::errc() || end != last || !std::isfinite(value)) return std::nullopt;
  return value;
}

// A whole number beyond 32 bits is one where nothing of it is lost.
bool holdsWhole(double value, std::string_view digits) {
  digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size() - 1));
  char exact[320];
  const auto end = std::to_chars(exact, exact + sizeof exact, value, std::chars_format::fixed, 0);
  return digits == std::string_view(exact, end.ptr);
}

// `number` is trimmed.
CellValue numberOf(std::string_view number) {
  const std::size_t decimals = decimalsOf(number);
  std::string joined;
  std::string_view digits = number;
  if (std::any_of(number.begin(), number.end(), isGap)) {
    std::remove_copy_if(number.begin(), number.end(), std::back_inserter(joined), isGap);
    digits = joined;
  }
  if (decimals == 0 && digits.ends_with('.')) digits.remove_suffix(1);
  const auto value = realOf(digits);
  if (!value || (decimals == 0 && !holdsWhole(*value, digits))) return {};
  return {decimals == 0 ? Kind::whole : Kind::decimal, *value, static_cast<int>(decimals)};
}

// Two or four digits, of which the first ones may be blanks.
std::optional<int> partOf(std::string_view text) {
  const std::string_view digits = text.substr(std::min(text.find_first_not_of(' '), text.size()));
  if (digits.empty() || !std::all_of(digits.begin(), digits.end(), isDigit)) return std::nullopt;
  int value = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), value);
  return value;
}

CellValue dateOf(std::string_view text) {
  if (text.size() != kDateLength || text[2] != '/' || text[5] != '/') return {};
  const auto day = partOf(text.substr(0, 2));
  const auto month = partOf(text.substr(3, 2));
  const auto year = partOf(text.substr(6));
  const std::int32_t number = day && month && year ? sheetDay(*day, *month, *year) : 0;
  return number == 0 ? CellValue() : CellValue{Kind::date, double(number)};
}

}  // namespace

std::int32_t sheetDay(int day, int month, int year) {
  using namespace std::chrono;
  const year_month_day date(std::chrono::year(year),
                            std::chrono::month(static_cast<unsigned>(month)),
                            std::chrono::day(static_cast<unsigned>(day)));
  if (!date.ok()) return 0;
  constexpr sys_days kDayZero = 1899y / December / 30;
  constexpr std::int32_t kFirstOfMarch1900 = 61;
  const auto number = static_cast<std::int32_t>((sys_days(date) - kDayZero).count());
  return number >= kFirstOfMarch1900 ? number : std::max(number - 1, 0);
}

CellValue cellValueOf(std::string_view text) {
  if (text.find_first_not_of(' ') == std::string_view::npos) return {Kind::blank};
  const std::string_view value = trimmed(text);
  return looksLikeNumber(text) ? numberOf(value) : dateOf(value);
}

}  // namespace qor
