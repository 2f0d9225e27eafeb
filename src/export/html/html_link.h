// Names of files as values of attributes in HTML.
#pragma once

#include <string>
#include <string_view>

namespace qor {

// A reference to the file of this name, which is UTF-8, in ASCII: what a browser would take for
// something else than the name is written by the codes of its bytes. Plain names stay as they are,
// and so do addresses with a scheme but for what would end the attribute.
std::string htmlLink(std::string_view name);

}  // namespace qor
