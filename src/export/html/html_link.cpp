// References (RFC 3986) in attributes.
#include "export/html/html_link.h"

#include <algorithm>
#include <cstdio>

namespace qor {
namespace {

// Of those that a path may hold, "'" and "&" are left out for HTML's sake. "\" separates in names
// from other systems, and browsers take it so.
constexpr std::string_view kPlainMarks = "-._~!$()*+,;=@/\\:";
// What addresses hold besides: they have been written as references.
constexpr std::string_view kAddressMarks = "%#?[]'";

bool isLetterOrDigit(char c) {
  return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

bool isAddress(std::string_view name) {
  const std::size_t end = name.find("://");
  return end != std::string_view::npos && end > 1 &&
         std::all_of(name.begin(), name.begin() + static_cast<std::ptrdiff_t>(end),
                     isLetterOrDigit);
}

// The part before the first ":" of a relative reference would be a scheme, but for the letter of a
// drive.
bool startsWithScheme(std::string_view name) {
  const std::size_t colon = name.find(':');
  const std::size_t separator = name.find_first_of("/\\");
  const bool isDrive = colon == 1 && separator == 2;
  return colon < separator && !isDrive;
}

void appendByte(char c, std::string& link) {
  char code[4];
  std::snprintf(code, sizeof code, "%%%02X", static_cast<unsigned char>(c));
  link += code;
}

}  // namespace

std::string htmlLink(std::string_view name) {
  const bool address = isAddress(name);
  std::string link;
  if (!address && startsWithScheme(name)) link = "./";
  // Two slashes would lead to the root of another host.
  if (name.starts_with("//")) link = "/.";
  for (const char c : name) {
    const bool plain = isLetterOrDigit(c) || kPlainMarks.find(c) != std::string_view::npos ||
                       (address && kAddressMarks.find(c) != std::string_view::npos);
    if (plain) {
      link += c;
    } else if (c == '&') {
      link += "&amp;";
    } else {
      appendByte(c, link);
    }
  }
  return link;
}

}  // namespace qor
