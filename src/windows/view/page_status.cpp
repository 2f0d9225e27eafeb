// Telling of pages.
#include "windows/view/page_status.h"

#include "base/app_options.h"
#include "platform/qt/qt_text.h"
#include "window_model/file_dates.h"
#include "window_model/preview_texts.h"
#include "windows/start/report_name.h"
#include "windows/view/page_zoom.h"
#include "windows/view/view_desk.h"

namespace qor {

void PageStatus::tellDates() {
  const auto times = fileTimes(AppOptions.FileName);
  if (!times) return;
  const int bias = timeZoneBias();
  desk_.status.setDates(qtText(fileDateText(times->created, bias)) + "   " +
                        qtText(fileDateText(times->modified, bias)));
}

void PageStatus::startPage() {
  desk_.status.setMessage(standing_);
  tellNumber();
}

void PageStatus::tellNumber() {
  desk_.status.setPages(qtText(pageOfText(desk_.cursor.current(), desk_.cursor.total())));
}

// Name and description of the control that has the focus are told anew when they change.
void PageStatus::describeView() {
  const QString name = qtText(pageOfText(desk_.cursor.current(), desk_.cursor.total())) + ", " +
                       ReportName(AppOptions.FileName).file;
  const QString text = zoom_.onView() > 0 ? QString("%1%").arg(zoom_.onView()) : QString();
  PageScroll& area = *desk_.ui.pScroll;
  if (name != area.accessibleName()) area.setAccessibleName(name);
  if (text != area.accessibleDescription()) area.setAccessibleDescription(text);
}

void PageStatus::tellFileState() {
  if (desk_.growth.isFollowing()) return;
  switch (desk_.growth.fileState()) {
    case FileState::asIndexed: return;
    case FileState::changed: return desk_.status.setMessage(qtText(previewTexts().fileChanged));
    case FileState::gone: return desk_.status.setMessage(qtText(previewTexts().fileGone));
  }
}

}  // namespace qor
