// A page of a report as dots of 1/96 inch, made by the program on one of its three roads.
#pragma once

#include <cstdint>
#include <string>

#include "platform/canvas/canvas.h"
#include "platform/pictures/picture.h"
#include "support/temporary_directory.h"

namespace qor::test {

enum class Road { picture, print, document };  // the last is the export to PDF

constexpr Road kRoads[] = {Road::picture, Road::print, Road::document};

// The directory is the current one of the program.
Picture pageBy(Road road, const TemporaryDirectory& place, const std::string& report,
               const std::string& codePage = "866", int page = 1);

// The page as a picture, of a report that needs no other files.
inline Picture pictureOf(const std::string& report) {
  return pageBy(Road::picture, TemporaryDirectory(), report);
}

// Boxes are of dots or of millimetres, their right and bottom edges behind the last dot.
std::string text(const Rect& box);

// A line with one item at these millimetres; without the corner across where that is 0.
std::string itemTag(const std::string& name, const Rect& place, const std::string& keys);

// 0xRRGGBB; white outside of the picture.
std::uint32_t dotAt(const Picture& picture, int x, int y);
bool isInk(const Picture& picture, int x, int y);  // nearer to black than to white

// How far two dots are apart in the colour where they differ most.
int apart(std::uint32_t first, std::uint32_t second);

// What is not white, within the box, or anywhere.
Rect inkBox(const Picture& picture, const Rect& within);
inline Rect inkBox(const Picture& picture) {
  return inkBox(picture, {0, 0, picture.width, picture.height});
}

// Where a place of millimetres lies, cut to 1/1440 inch as reports have it.
double dotOf(double millimetres);
inline int wholeDotOf(double millimetres) {
  return static_cast<int>(dotOf(millimetres));
}

}  // namespace qor::test
