// The parts of the window.
#include "windows/view/view_parts.h"

#include "base/path.h"
#include "platform/system/directory.h"
#include "platform/system/user_settings.h"
#include "windows/view/page_under_lines.h"
#include "windows/view/view_desk.h"

namespace qor {

ViewParts::ViewParts(QMainWindow* window, ViewCommands offered, UserSettings& settings)
    : desk(std::make_unique<ViewDesk>(window)),
      errors(*desk->page_control, window),
      number(*desk),
      list(*desk),
      zoom(*desk),
      pageStatus(*desk, zoom),
      pages(*desk, zoom, errors),
      text(pages),
      find(*desk, pages, text, settings),
      selection(*desk, text),
      textTool(*desk, selection),
      spoken(*desk, pages, text, selection),
      notice(desk->ui.form),
      pageNews(*desk, spoken, notice, selection, find.finder()),
      hitNews(find, spoken, notice),
      scale(*desk, pages),
      notes(*desk, pages),
      lines(desk->ui.pScroll->viewport(),
            {programDirectory(), std::string(directoryOf(settings.location()))},
            pageUnderLines(*desk, pages)),
      turner(*desk, number, lines),
      switches(*desk, pages, list, scale),
      forms(*desk, std::move(offered), zoom, pages, notes, scale),
      opening(settings, window) {
}

ViewParts::~ViewParts() = default;

}  // namespace qor
