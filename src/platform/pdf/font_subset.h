// Cutting a font file down to the glyphs that a document uses.
#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>

namespace qor {

struct FontSubset {
  std::string bytes;    // a TrueType file, or the CFF table of an OpenType one
  bool hasCff = false;  // the latter
  std::map<std::uint32_t, std::uint32_t> places;  // the file's glyphs to the subset's
};

// The face of this index in a file. Throws FileError where it can't be cut, or the module that does
// it is not there.
FontSubset subsetFont(const std::string& file, int index, const std::set<std::uint32_t>& glyphs);

// What the module offers under this name, for the loader.
using CutFont = void(const std::string& file, int index, const std::set<std::uint32_t>& glyphs,
                     FontSubset& subset);
inline constexpr const char* kCutFont = "qorCutFont";

}  // namespace qor
