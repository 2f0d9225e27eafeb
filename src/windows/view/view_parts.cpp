// The parts of the window.
#include "windows/view/view_parts.h"

#include "windows/view/view_desk.h"

namespace qor {

ViewParts::ViewParts(QMainWindow* window, ViewCommands offered)
    : desk(std::make_unique<ViewDesk>(window)),
      errors(*desk->page_control, window),
      number(*desk),
      list(*desk),
      zoom(*desk),
      pageStatus(*desk, zoom),
      pages(*desk, zoom, errors),
      scale(*desk, pages),
      notes(*desk, pages),
      turner(*desk, number),
      switches(*desk, pages, list, scale),
      forms(*desk, std::move(offered), zoom, pages, notes, scale) {
}

ViewParts::~ViewParts() = default;

}  // namespace qor
