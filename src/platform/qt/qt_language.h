// The language of Qt's own texts, such as those of its file dialog.
#pragma once

#include <string_view>

namespace qor {

// From now on they are in the language of this id ("ru"), where Qt's translations are installed;
// else in English. Needs the application.
void translateQt(std::string_view language);

}  // namespace qor
