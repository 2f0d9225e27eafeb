// Attribute syntax.
#include "document/attribute_reader.h"

#include <algorithm>
#include <string>

#include "base/text.h"
#include "base/units.h"
#include "document/colors.h"

namespace qor {
namespace {

// What is left behind a value is cut to this, so a very long tag loses its tail.
constexpr std::size_t kMaxRest = 1024;

std::string_view behind(std::string_view text, std::size_t place) {
  return place == std::string_view::npos ? std::string_view() : text.substr(place + 1);
}

bool isDecimalMark(char c) {
  return c == '.' || c == ',';
}

std::optional<Color> asColor(std::optional<std::int32_t> number, Color (*color)(std::int32_t)) {
  if (!number) return std::nullopt;
  return color(*number);
}

}  // namespace

bool AttributeReader::atEnd() {
  rest_ = trimmedLeft(rest_);
  return rest_.empty();
}

void AttributeReader::continueWith(std::string_view rest) {
  rest_ = rest;
  equals_ = nullptr;
  const auto blank = rest.rfind(' ');
  last_blank_ = blank == std::string_view::npos ? nullptr : rest.data() + blank;
}

std::optional<std::string_view> AttributeReader::key() {
  const char* end = rest_.data() + rest_.size();
  if (equals_ < rest_.data()) equals_ = std::find(rest_.data(), end, '=');
  if (equals_ == end) return std::nullopt;
  return trimmed({rest_.data(), equals_});
}

std::string_view AttributeReader::valueStart() {
  return trimmedLeft({equals_ + 1, rest_.data() + rest_.size()});
}

AttributeValue AttributeReader::takePlain(std::string_view text) {
  const std::string_view value = upTo(text, ' ');
  continueWith(text.substr(value.size(), kMaxRest));
  return {value, false};
}

AttributeValue AttributeReader::takeQuoted(std::string_view text) {
  auto end = text.find("\" ");
  if (end != std::string_view::npos) {
    continueWith(text.substr(end + 1, kMaxRest));
  } else {
    end = text.find('"');
    rest_ = {};
  }
  return {text.substr(0, end), true};
}

AttributeValue AttributeReader::takeValue() {
  const std::string_view text = valueStart();
  return text.starts_with('"') ? takeQuoted(text.substr(1)) : takePlain(text);
}

AttributeValue AttributeReader::takeText() {
  std::string_view text = valueStart();
  if (!text.starts_with('"')) return takePlain(text);
  text.remove_prefix(1);
  const std::string_view upToEquals = text.substr(0, text.find('=') + 1);
  const auto lastBreak = upToEquals.find_last_of("\" ");
  if (lastBreak == std::string_view::npos) {
    rest_ = {};
    return {upTo(text, '"'), true};
  }
  const auto lastQuote = upToEquals.rfind('"');
  const std::string_view tail = behind(upToEquals, lastQuote);
  const std::string_view blanksFrom = lastQuote == std::string_view::npos ? upToEquals : tail;
  const auto blanks =
      static_cast<std::size_t>(std::count(blanksFrom.begin(), blanksFrom.end(), ' '));
  const std::size_t length = lastBreak > blanks ? lastBreak - blanks : 0;
  continueWith(text.substr(lastBreak + 1, kMaxRest));
  return {text.substr(0, length), true};
}

void AttributeReader::skipToken() {
  rest_ = trimmedLeft(rest_);
  if (last_blank_ < rest_.data()) {
    rest_ = {};
    return;
  }
  const auto mark = rest_.find_first_of(" \"");
  const bool quoted = rest_[mark] == '"';
  rest_ = behind(rest_, mark);
  if (!quoted) return;
  const auto second = rest_.find('"');
  rest_ = behind(rest_, second != std::string_view::npos ? second : rest_.find(' '));
}

std::optional<std::int32_t> wholeNumber(const AttributeValue& value) {
  return parseInteger(value.text);
}

std::optional<double> realNumber(const AttributeValue& value) {
  return parseInteger(value.text);
}

std::optional<bool> flag(const AttributeValue& value) {
  const auto number = parseInteger(value.text);
  if (!number) return std::nullopt;
  return *number != 0;
}

std::optional<std::uint8_t> byteNumber(const AttributeValue& value) {
  const auto number = parseInteger(value.text);
  if (!number) return std::nullopt;
  return static_cast<std::uint8_t>(*number);
}

std::optional<std::int32_t> millimetresAsTwips(const AttributeValue& value) {
  const std::string_view text = value.text;
  const auto* const mark =
      value.quoted ? text.end() : std::find_if(text.begin(), text.end(), isDecimalMark);
  const auto number = parseInteger(text, static_cast<std::size_t>(mark - text.begin()));
  if (!number) return std::nullopt;
  // 7,200 twips are 127 mm.
  switch (text.end() - mark) {
    case 2: return clamped(std::int64_t{*number} * 720 / 127);
    case 3: return clamped(std::int64_t{*number} * 72 / 127);
    default: return clamped(std::int64_t{*number} * 7200 / 127);
  }
}

std::optional<Color> colorByName(const AttributeValue& value) {
  return ColorByName(value.text);
}

std::optional<Color> colorByIndex(const AttributeValue& value) {
  return asColor(parseInteger(value.text), ColorByIndex);
}

std::optional<Color> colorOf256(const AttributeValue& value) {
  return asColor(parseInteger(value.text), Color256);
}

std::optional<Color> colorByRgb(const AttributeValue& value) {
  return ColorFromRgb(value.text);
}

std::optional<Color> colorByNumber(const AttributeValue& value) {
  return asColor(parseInteger(value.text),
                 [](std::int32_t number) { return static_cast<Color>(number); });
}

}  // namespace qor
