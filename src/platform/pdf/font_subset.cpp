// Loading the module that cuts fonts.
#include "platform/pdf/font_subset.h"

#include "base/errors.h"
#include "platform/system/module.h"

namespace qor {

FontSubset subsetFont(const std::string& file, int index, const std::set<std::uint32_t>& glyphs) {
  static auto* const cut = reinterpret_cast<CutFont*>(moduleSymbol("qor_harfbuzz", kCutFont));
  if (cut == nullptr) throw FileError(file + ": fonts can't be embedded: " + moduleError());
  FontSubset subset;
  cut(file, index, glyphs, subset);
  return subset;
}

}  // namespace qor
