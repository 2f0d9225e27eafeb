// Where a text line or a picture is put in a box.
#pragma once

#include <optional>
#include <string_view>

namespace qor {

enum class FitMethod { none, entire, meet };

struct FitOptions {
  struct Box {
    double width = 0;  // points; negative boxes lie left of or below their corner
    double height = 0;
  };

  std::optional<Box> box;
  double horizontal = 0;  // of what is fitted and of the box: 0 left, 0.5 centre, 1 right
  double vertical = 0;    // 0 bottom, 0.5 centre, 1 top
  FitMethod method = FitMethod::none;
  std::optional<double> dpi;  // of pictures
};

// Reads "boxsize={W H}", "position={left|center|right bottom|center|top}", "fitmethod=entire|meet"
// and "dpi N" in any order; one word of position counts for both directions. What can't be read is
// passed over.
FitOptions parseFitOptions(std::string_view text);

}  // namespace qor
