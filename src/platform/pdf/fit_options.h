// Where a text line or a picture is put in a box.
#pragma once

#include "base/units.h"

namespace qor {

enum class FitMethod { none, entire, meet };

struct FitOptions {
  struct Box {
    double width = 0;  // points; negative boxes lie left of or below their corner
    double height = 0;
  };

  Box box{};
  double horizontal = 0;  // of what is fitted and of the box: 0 left, 0.5 centre, 1 right
  double vertical = 0;    // 0 bottom, 0.5 centre, 1 top
  FitMethod method = FitMethod::none;
  double dpi = kPointsPerInch;  // of pictures
};

}  // namespace qor
