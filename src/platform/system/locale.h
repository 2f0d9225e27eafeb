// What the user's locale decides.
#pragma once

namespace qor {

// The number that stands for the system's ANSI code page: QOR_ANSI_CODEPAGE where it is set to a
// number, else by the language of the locale.
int systemAnsiCodePage();

// The OEM code page that belongs to it, which DOS programs of the same country write.
int systemOemCodePage();

// The decimal mark of the locale, one byte.
char decimalSeparator();

}  // namespace qor
