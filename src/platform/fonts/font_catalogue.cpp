// Choosing font files, by fontconfig.
#include "platform/fonts/font_catalogue.h"

#include <algorithm>
#include <map>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "base/errors.h"
#include "base/text.h"
#include "platform/fonts/fontconfig_handles.h"

namespace qor {
namespace {

// Windows weights from here on are bold.
constexpr int kBoldFrom = 600;

// Bitmap fonts of Windows that reports ask for, and outlines of the same look.
constexpr std::pair<std::string_view, const char*> kStandIns[] = {
    {"ms sans serif", "Arial"}, {"ms serif", "Times New Roman"}, {"system", "Arial"},
    {"courier", "Courier New"}, {"fixedsys", "Courier New"},     {"terminal", "Courier New"},
    {"helv", "Arial"},          {"tms rmn", "Times New Roman"}};

const FcChar8* text(const char* value) {
  return reinterpret_cast<const FcChar8*>(value);
}

FontPattern patternOf(const FaceRequest& request) {
  FontPattern pattern(FcPatternCreate());
  FcPatternAddString(pattern.get(), FC_FAMILY, text(request.family.c_str()));
  const std::string lowerName = lowerAscii(request.family);
  for (const auto& [name, standIn] : kStandIns) {
    if (lowerName == name) FcPatternAddString(pattern.get(), FC_FAMILY, text(standIn));
  }
  const int weight = request.weight <= 0 ? kPlainWeight : std::min(request.weight, 1000);
  FcPatternAddInteger(pattern.get(), FC_WEIGHT, FcWeightFromOpenType(weight));
  FcPatternAddInteger(pattern.get(), FC_SLANT, request.italic ? FC_SLANT_ITALIC : FC_SLANT_ROMAN);
  FcPatternAddBool(pattern.get(), FC_SCALABLE, FcTrue);
  FcConfigSubstitute(nullptr, pattern.get(), FcMatchPattern);
  FcDefaultSubstitute(pattern.get());
  return pattern;
}

int integerOf(FcPattern* pattern, const char* object, int otherwise) {
  int value = otherwise;
  FcPatternGetInteger(pattern, object, 0, &value);
  return value;
}

// What the file lacks of the request. Rules of the system may have noted that the face is to be
// made bold or slanted, and call it so already.
FaceStyle styleOf(FcPattern* found, const FaceRequest& request) {
  FcBool emboldened = FcFalse;
  FcPatternGetBool(found, FC_EMBOLDEN, 0, &emboldened);
  FcMatrix* matrix = nullptr;
  const bool slanted =
      FcPatternGetMatrix(found, FC_MATRIX, 0, &matrix) == FcResultMatch && matrix->xy != 0;
  const bool isBold =
      integerOf(found, FC_WEIGHT, FC_WEIGHT_REGULAR) >= FC_WEIGHT_DEMIBOLD && emboldened == FcFalse;
  const bool isItalic = integerOf(found, FC_SLANT, FC_SLANT_ROMAN) != FC_SLANT_ROMAN && !slanted;
  FaceStyle style;
  style.syntheticBold = request.weight >= kBoldFrom && !isBold;
  style.syntheticSlant = request.italic && !isItalic;
  return style;
}

// Faces are opened once for the process.
std::shared_ptr<const FontFace> openFace(FcPattern* found, const FaceRequest& request) {
  FcChar8* file = nullptr;
  if (FcPatternGetString(found, FC_FILE, 0, &file) != FcResultMatch) return nullptr;
  const FaceStyle style = styleOf(found, request);
  using Key = std::tuple<std::string, int, bool, bool>;
  static std::map<Key, std::shared_ptr<const FontFace>> open;
  const std::string name = reinterpret_cast<const char*>(file);
  const int index = integerOf(found, FC_INDEX, 0);
  auto& face = open[{name, index, style.syntheticBold, style.syntheticSlant}];
  if (!face) face = std::make_shared<const FontFace>(name, index, style);
  return face;
}

// Every font of the system, the likest first.
class FallbackList {
 public:
  explicit FallbackList(const FaceRequest& request) : request_(request) {
    const FontPattern pattern = patternOf(request);
    FcResult result = FcResultNoMatch;
    fonts_.reset(FcFontSort(nullptr, pattern.get(), FcTrue, nullptr, &result));
  }

  const FaceRequest& request() const { return request_; }

  std::shared_ptr<const FontFace> find(char32_t character) const {
    for (int i = 0; fonts_ && i < fonts_->nfont; ++i) {
      FcCharSet* characters = nullptr;
      FcPattern* font = fonts_->fonts[i];
      if (FcPatternGetCharSet(font, FC_CHARSET, 0, &characters) != FcResultMatch) continue;
      if (FcCharSetHasChar(characters, character) != FcFalse) return openFace(font, request_);
    }
    return nullptr;
  }

 private:
  FaceRequest request_;
  FontSet fonts_;
};

bool hasTables(FcPattern* font) {
  FcChar8* format = nullptr;
  if (FcPatternGetString(font, FC_FONTFORMAT, 0, &format) != FcResultMatch) return false;
  const std::string_view name = reinterpret_cast<const char*>(format);
  return name == "TrueType" || name == "CFF";
}

// Old files don't tell their width.
bool isSameStyle(FcPattern* first, FcPattern* second) {
  FcChar8* families[2] = {};
  FcPatternGetString(first, FC_FAMILY, 0, &families[0]);
  FcPatternGetString(second, FC_FAMILY, 0, &families[1]);
  const auto same = [&](const char* object) {
    return integerOf(first, object, 0) == integerOf(second, object, 0);
  };
  return families[0] != nullptr && families[1] != nullptr &&
         FcStrCmpIgnoreCase(families[0], families[1]) == 0 && same(FC_WEIGHT) && same(FC_SLANT);
}

// The same face in a file with tables, where there is one: only such a file can go into documents,
// and older files of the same faces often stand beside them. Null where there is none.
FontPattern withTables(FcPattern* pattern, FcPattern* found) {
  FcResult result = FcResultNoMatch;
  const FontSet fonts(FcFontSort(nullptr, pattern, FcFalse, nullptr, &result));
  for (int i = 0; fonts && i < fonts->nfont; ++i) {
    FcPattern* font = fonts->fonts[i];
    if (hasTables(font) && isSameStyle(font, found))
      return FontPattern(FcFontRenderPrepare(nullptr, pattern, font));
  }
  return nullptr;
}

std::shared_ptr<const FontFace> findFace(const FaceRequest& request) {
  const FontPattern pattern = patternOf(request);
  FcResult result = FcResultNoMatch;
  FontPattern found(FcFontMatch(nullptr, pattern.get(), &result));
  if (found && !hasTables(found.get())) {
    if (auto other = withTables(pattern.get(), found.get())) found = std::move(other);
  }
  auto face = found ? openFace(found.get(), request) : nullptr;
  if (!face) throw SystemError("no font is installed");
  return face;
}

}  // namespace

std::shared_ptr<const FontFace> matchFace(const FaceRequest& request) {
  constexpr std::size_t kMaxMatches = 256;
  static std::map<std::tuple<std::string, int, bool>, std::shared_ptr<const FontFace>> known;
  if (known.size() >= kMaxMatches) known.clear();
  auto& face = known[{request.family, request.weight, request.italic}];
  if (!face) face = findFace(request);
  return face;
}

std::shared_ptr<const FontFace> fallbackFace(const FaceRequest& request, char32_t character) {
  static std::vector<FallbackList> lists;
  const auto list = std::find_if(lists.begin(), lists.end(), [&](const FallbackList& candidate) {
    return candidate.request() == request;
  });
  if (list != lists.end()) return list->find(character);
  constexpr std::size_t kMaxLists = 16;
  if (lists.size() == kMaxLists) lists.erase(lists.begin());
  return lists.emplace_back(request).find(character);
}

}  // namespace qor
