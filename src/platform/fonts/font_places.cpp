// Places of fonts, by fontconfig.
#include "platform/fonts/font_places.h"

#include <memory>

#include <fontconfig/fontconfig.h>

namespace qor {
namespace {

void add(std::vector<std::string>& places, FcStrList* list) {
  const std::unique_ptr<FcStrList, decltype(&FcStrListDone)> owned(list, FcStrListDone);
  while (const FcChar8* place = list == nullptr ? nullptr : FcStrListNext(list))
    places.emplace_back(reinterpret_cast<const char*>(place));
}

}  // namespace

std::vector<std::string> fontPlaces() {
  std::vector<std::string> places;
  if (FcInit() == FcFalse) return places;
  add(places, FcConfigGetFontDirs(nullptr));
  add(places, FcConfigGetCacheDirs(nullptr));
  add(places, FcConfigGetConfigFiles(nullptr));
  return places;
}

}  // namespace qor
