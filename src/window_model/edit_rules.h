// What the edits of the settings take: which characters can be typed, which texts can be pasted,
// and what becomes of a text once it has changed.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace qor {

// The text of an edit. Positions count characters; without a selection its length is 0.
struct EditedText {
  std::string_view text;
  int caret = 0;
  int selectionStart = 0;
  int selectionLength = 0;
};

// The character that goes in for one that was typed, or none. Control characters pass: they stand
// for keys such as Backspace and Tab. "." and "," become the decimal separator. Font sizes are
// typed by KeyPressCheck_Double3_1, too.
using TypedChar = std::optional<char>;
TypedChar KeyPressCheck_Int3(const EditedText& edited, char key);
TypedChar KeyPressCheck_StringPages(const EditedText& edited, char key);
TypedChar KeyPressCheck_Double3_1(const EditedText& edited, char key, char separator);
TypedChar txtFontSpaceKeyPress(const EditedText& edited, char key, char separator);

// A text as it is to stand, and its value. An empty text stays so: one can clear an edit and type.
struct CheckedText {
  std::string text;
  double value = 0.0;
};

// What becomes of a text that has changed; margins and copies first.
CheckedText TextChangeCheck_Int3(std::string_view text);
CheckedText TextChangeCheck_Int3_1(std::string_view text);
CheckedText txtFontHeightChange(std::string_view text, char separator);
CheckedText txtFontWidthChange(std::string_view text, char separator);
CheckedText txtFontSpaceChange(std::string_view text);
CheckedText txtPageSizeChange(std::string_view text);  // width and height

// What both font sizes have in common: a separator at the start goes, and of four digits without
// one three stay.
std::string txtFontChange(std::string_view text, char separator);

// All that an edit obeys.
struct EditRule {
  std::function<TypedChar(const EditedText&, char)> typed;
  std::function<bool(std::string_view)> fits;  // whether a text that was pasted into may stand
  std::function<CheckedText(std::string_view)> changed;
  char separator = '\0';  // that "." and "," become; 0 where they stay
  double step = 0.0;      // of the arrow keys; 0 where there is none
  double lowest = 0.0;    // that they reach
  double highest = 0.0;
};

EditRule copiesRule();
EditRule marginRule();                    // mm
EditRule pagesRule();                     // its texts have no value
EditRule pageSizeRule(char separator);    // mm
EditRule fontHeightRule(char separator);  // points
EditRule fontWidthRule(char separator);
EditRule fontSpaceRule(char separator);

// What goes in for a text that is pasted, without blanks around it; or none, since only the whole
// of it does.
std::optional<std::string> pastedText(const EditRule& rule, const EditedText& edited,
                                      std::string_view pasted);

// The text so many steps further, back where they are negative, within the limits.
std::string steppedText(const EditRule& rule, std::string_view text, int steps);

}  // namespace qor
