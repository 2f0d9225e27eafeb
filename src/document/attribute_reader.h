// Cuts the attributes of a tag into keys and values.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "document/font_state.h"

namespace qor {

struct AttributeValue {
  std::string_view text;
  bool quoted = false;
};

// Walks a tag's attributes from the left. What it has looked for it remembers, so that a tag of
// megabytes is still read in one pass.
class AttributeReader {
 public:
  explicit AttributeReader(std::string_view attributes) { continueWith(attributes); }

  // True once nothing but blanks is left.
  bool atEnd();

  // The text before the next "=", trimmed; nothing where no "=" is left.
  std::optional<std::string_view> key();

  // Steps over the key and its "=" and takes the value: up to a quote that a blank follows (or the
  // last resort, any quote) where it is quoted, else up to a blank.
  AttributeValue takeValue();

  // The same for a text that may hold quotes and blanks: it ends where the next attribute starts.
  AttributeValue takeText();

  // Steps over a word that is no attribute.
  void skipToken();

 private:
  void continueWith(std::string_view rest);
  std::string_view valueStart();
  AttributeValue takePlain(std::string_view text);
  AttributeValue takeQuoted(std::string_view text);

  std::string_view rest_;
  const char* equals_ = nullptr;      // the next "=", or the end of the text
  const char* last_blank_ = nullptr;  // null where there is none
};

// How the texts of values become what items hold; nothing where they can't be read.
std::optional<std::int32_t> wholeNumber(const AttributeValue& value);
std::optional<double> realNumber(const AttributeValue& value);
std::optional<bool> flag(const AttributeValue& value);
std::optional<std::uint8_t> byteNumber(const AttributeValue& value);

// Millimetres as twips. A quoted value must be whole. An unquoted one may hold one "." or ",": the
// digits are read without it, and only one or two of them behind it scale the result down.
std::optional<std::int32_t> millimetresAsTwips(const AttributeValue& value);

std::optional<Color> colorByName(const AttributeValue& value);
std::optional<Color> colorByIndex(const AttributeValue& value);
std::optional<Color> colorOf256(const AttributeValue& value);
std::optional<Color> colorByRgb(const AttributeValue& value);
std::optional<Color> colorByNumber(const AttributeValue& value);

}  // namespace qor
