// Text as RTF: ASCII as it is, everything else by its number, with "?" for readers that don't know
// Unicode. One character stands for one there, which is what readers take for granted: some that
// are told so count wrong.
#pragma once

#include <string>
#include <string_view>

namespace qor {

// UTF-8 as the text of a paragraph: line ends become line breaks, tabulators stay, other control
// characters below the blank are left out. What RTF itself is made of goes by its number: all
// readers know that, and not all know the other ways.
void appendRtfText(std::string_view utf8, std::string& rtf);

// The same as a name in a table, which ends with a semicolon: on one line, without tabulators.
void appendRtfName(std::string_view utf8, std::string& rtf);

}  // namespace qor
