// The locale, from the environment and the C library.
#include <cstdlib>
#include <iterator>
#include <string_view>

#include <langinfo.h>
// The POSIX parts of it have no C++ header.
#include <locale.h>  // NOLINT(modernize-deprecated-headers)

#include "base/text.h"
#include "platform/system/locale.h"

namespace qor {
namespace {

struct LanguageCodePage {
  std::string_view language;
  int codePage;
};

constexpr LanguageCodePage kCodePages[] = {
    {"ru", 1251}, {"uk", 1251}, {"be", 1251}, {"bg", 1251}, {"mk", 1251}, {"sr", 1251},
    {"tr", 1254}, {"az", 1254}, {"pl", 1250}, {"cs", 1250}, {"sk", 1250}, {"hu", 1250},
    {"ro", 1250}, {"hr", 1250}, {"sl", 1250}, {"el", 1253}, {"he", 1255}, {"ar", 1256},
    {"lt", 1257}, {"lv", 1257}, {"et", 1257}, {"vi", 1258}};

std::string_view environment(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string_view() : std::string_view(value);
}

// The language part of the locale, such as "ru" of "ru_RU.UTF-8".
std::string_view localeLanguage() {
  for (const char* name : {"LC_ALL", "LC_CTYPE", "LANG"}) {
    const std::string_view value = environment(name);
    if (!value.empty()) return value.substr(0, value.find_first_of("_.@"));
  }
  return {};
}

}  // namespace

int systemAnsiCodePage() {
  if (const auto number = parseInteger(environment("QOR_ANSI_CODEPAGE"))) return *number;
  const std::string_view language = localeLanguage();
  for (const LanguageCodePage& row : kCodePages) {
    if (row.language == language) return row.codePage;
  }
  return 1252;
}

int systemOemCodePage() {
  struct Row {
    int ansi;
    int oem;
  };
  static constexpr Row rows[] = {{1250, 852}, {1251, 866}, {1253, 737}, {1254, 857},
                                 {1255, 862}, {1256, 720}, {1257, 775}, {1258, 1258}};
  const int ansi = systemAnsiCodePage();
  for (const Row& row : rows) {
    if (row.ansi == ansi) return row.oem;
  }
  return 850;
}

char decimalSeparator() {
  const locale_t locale = ::newlocale(LC_NUMERIC_MASK, "", nullptr);
  if (locale == nullptr) return '.';
  const std::string_view mark = ::nl_langinfo_l(RADIXCHAR, locale);
  const char separator = mark.size() == 1 ? mark.front() : '.';
  ::freelocale(locale);
  return separator;
}

}  // namespace qor
