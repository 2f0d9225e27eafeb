// A place between whole units, such as twips of a page or pixels of its view.
#pragma once

namespace qor {

struct Spot {
  double x = 0;
  double y = 0;
};

}  // namespace qor
