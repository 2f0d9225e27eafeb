// Texts in JSON (RFC 8259).
#pragma once

#include <string>
#include <string_view>

namespace qor {

// A text with its quotes. Bytes that are no UTF-8 become "\udc80" to "\udcff".
std::string jsonText(std::string_view text);

}  // namespace qor
