// Letters that choose controls from the keyboard, as marks in their captions: "&Copies".
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace qor {

// The captions, UTF-8, with a mark before one letter of each; no letter serves two, nor one of the
// marked captions that are seen with them. Where there are not enough letters, the last captions go
// without. A "&" of the caption itself is written twice.
std::vector<std::string> withMnemonics(const std::vector<std::string_view>& captions,
                                       const std::vector<std::string>& seenWithThem = {});

}  // namespace qor
