// Listing font families by character set, by fontconfig.
#include "platform/fonts/font_families.h"

#include <algorithm>
#include <map>
#include <memory>
#include <set>
#include <string_view>

#include "platform/fonts/fontconfig_handles.h"
#include "platform/system/text_encoding.h"

namespace qor {
namespace {

constexpr int kAnyCharset = 1;
constexpr int kSymbolCharset = 2;

// Letters that a character set has and its neighbours lack.
std::u32string lettersOf(int charset) {
  switch (charset) {
    case 128: return U"\u3042\u30A2";
    case 129:
    case 130: return U"\uAC00\uD55C";
    case 134: return U"\u4E2D\u6C49";
    case 136: return U"\u4E2D\u6F22";
    default:
      return codePointsFromCodePage("\xE0\xE6\xEA\xF0\xF2\xF4\xF8", codePageOfCharset(charset));
  }
}

FontSet trueTypeFonts() {
  const FontPattern pattern(FcPatternCreate());
  FcPatternAddString(pattern.get(), FC_FONTFORMAT, reinterpret_cast<const FcChar8*>("TrueType"));
  const std::unique_ptr<FcObjectSet, FontconfigDeleter> objects(
      FcObjectSetBuild(FC_FAMILY, FC_CHARSET, FC_SYMBOL, nullptr));
  return FontSet(FcFontList(nullptr, pattern.get(), objects.get()));
}

bool isSymbol(FcPattern* font) {
  FcBool symbol = FcFalse;
  FcPatternGetBool(font, FC_SYMBOL, 0, &symbol);
  return symbol != FcFalse;
}

bool hasAll(FcPattern* font, std::u32string_view letters) {
  FcCharSet* characters = nullptr;
  if (FcPatternGetCharSet(font, FC_CHARSET, 0, &characters) != FcResultMatch) return false;
  return std::all_of(letters.begin(), letters.end(), [characters](char32_t c) {
    return c == U'\xFFFD' || FcCharSetHasChar(characters, c) != FcFalse;
  });
}

bool serves(FcPattern* font, int charset, std::u32string_view letters) {
  if (charset == kAnyCharset) return true;
  if (charset == kSymbolCharset) return isSymbol(font);
  return hasAll(font, letters);
}

// All names of the family that fontconfig takes for one.
std::vector<std::string> matchedFamilies(const std::string& name) {
  const FontPattern pattern(FcPatternCreate());
  FcPatternAddString(pattern.get(), FC_FAMILY, reinterpret_cast<const FcChar8*>(name.c_str()));
  FcConfigSubstitute(nullptr, pattern.get(), FcMatchPattern);
  FcDefaultSubstitute(pattern.get());
  FcResult result = FcResultNoMatch;
  const FontPattern found(FcFontMatch(nullptr, pattern.get(), &result));
  std::vector<std::string> families;
  FcChar8* family = nullptr;
  for (int i = 0; found && FcPatternGetString(found.get(), FC_FAMILY, i, &family) == FcResultMatch;
       ++i) {
    families.emplace_back(reinterpret_cast<const char*>(family));
  }
  return families;
}

bool findsFamily(const std::string& name) {
  const std::vector<std::string> families = matchedFamilies(name);
  const bool isNamed = std::any_of(families.begin(), families.end(),
                                   [wanted = lowerUtf8(name)](const std::string& family) {
                                     return lowerUtf8(family) == wanted;
                                   });
  if (isNamed) return true;
  // What comes for a name that nobody has is no stand-in.
  static const std::vector<std::string> anyFamilies = matchedFamilies("no such family");
  return families != anyFamilies;
}

}  // namespace

// Asking takes its time, and every document of a process asks for the same few.
bool hasFamily(const std::string& name) {
  constexpr std::size_t kMostKnown = 256;
  static std::map<std::string, bool> known;
  if (known.size() >= kMostKnown) known.clear();
  const auto [found, isNew] = known.try_emplace(name);
  if (isNew) found->second = findsFamily(name);
  return found->second;
}

namespace {

// Reports name these, whatever the system has.
constexpr const char* kReportFamilies[] = {"Arial", "Courier New", "Times New Roman"};

bool standsInFor(const char* name, const std::set<std::string>& families) {
  const std::vector<std::string> matched = matchedFamilies(name);
  return hasFamily(name) && std::any_of(matched.begin(), matched.end(), [&](const auto& family) {
           return families.contains(family);
         });
}

}  // namespace

std::vector<std::string> trueTypeFamilies(int charset) {
  const std::u32string letters = lettersOf(charset);
  std::set<std::string> names;
  const FontSet fonts = trueTypeFonts();
  for (int i = 0; fonts && i < fonts->nfont; ++i) {
    FcChar8* name = nullptr;
    if (!serves(fonts->fonts[i], charset, letters)) continue;
    if (FcPatternGetString(fonts->fonts[i], FC_FAMILY, 0, &name) != FcResultMatch) continue;
    names.emplace(reinterpret_cast<const char*>(name));
  }
  for (const char* name : kReportFamilies) {
    if (standsInFor(name, names)) names.emplace(name);
  }
  return {names.begin(), names.end()};
}

}  // namespace qor
