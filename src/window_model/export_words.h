// What the window says of exports.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace qor {

struct TargetLook;

// While a file is made, in the language of the interface; when it is there, in that of the report's
// code page.
std::string exportWaitText(std::string_view file);
std::string exportedText(std::string_view file, int documentCodePage);

// What is wrong with a target, on one line; empty where nothing is.
std::string faultText(const TargetLook& look);

// Whether these files, one at least, are to be replaced: a question, and a line for each of the
// first of them.
std::string replaceQuestion(const std::vector<std::string>& existing);

}  // namespace qor
