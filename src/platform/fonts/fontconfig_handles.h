// Owners of fontconfig's objects, for the files of platform/ that ask it for fonts.
#pragma once

#include <memory>

#include <fontconfig/fontconfig.h>

namespace qor {

struct FontconfigDeleter {
  void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
  void operator()(FcFontSet* set) const { FcFontSetDestroy(set); }
  void operator()(FcObjectSet* objects) const { FcObjectSetDestroy(objects); }
};

using FontPattern = std::unique_ptr<FcPattern, FontconfigDeleter>;
using FontSet = std::unique_ptr<FcFontSet, FontconfigDeleter>;

}  // namespace qor
