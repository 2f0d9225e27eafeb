// The parts of the window, made in the order in which they need each other. The window wires them
// together; the commands reach them here. Another form, bar or panel is another part.
#pragma once

#include <memory>

#include "windows/accessible/hit_announcer.h"
#include "windows/accessible/page_announcer.h"
#include "windows/accessible/spoken_notice.h"
#include "windows/accessible/spoken_page.h"
#include "windows/alignment/alignment_lines.h"
#include "windows/find/find_panel.h"
#include "windows/selection/page_selection.h"
#include "windows/selection/text_tool.h"
#include "windows/start/report_opening.h"
#include "windows/view/error_box.h"
#include "windows/view/form_calls.h"
#include "windows/view/page_list_pane.h"
#include "windows/view/page_notes_watch.h"
#include "windows/view/page_number_edit.h"
#include "windows/view/page_show.h"
#include "windows/view/page_status.h"
#include "windows/view/page_text.h"
#include "windows/view/page_turner.h"
#include "windows/view/page_zoom.h"
#include "windows/view/paper_scale.h"
#include "windows/view/view_menu.h"
#include "windows/view/view_switches.h"
#include "windows/view/view_tools.h"

class QMainWindow;

namespace qor {

struct ViewParts {
  ViewParts(QMainWindow* window, ViewCommands offered, UserSettings& settings);
  ~ViewParts();

  std::unique_ptr<ViewDesk> desk;
  ErrorBox errors;
  PageNumberEdit number;
  PageListPane list;
  PageZoom zoom;
  PageStatus pageStatus;
  PageShow pages;
  PageText text;
  FindPanel find;
  PageSelection selection;
  TextTool textTool;
  SpokenPage spoken;
  SpokenNotice notice;
  PageAnnouncer pageNews;
  HitAnnouncer hitNews;
  PaperScale scale;
  PageNotesWatch notes;
  AlignmentLines lines;
  PageTurner turner;
  ViewSwitches switches;
  FormCalls forms;
  ReportOpening opening;
  // Made last: they ask the parts above for their state.
  std::unique_ptr<ViewTools> tools;
  std::unique_ptr<ViewMenu> menu;
};

}  // namespace qor
