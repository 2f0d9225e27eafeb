// Telling of changes.
#include "windows/accessible/page_announcer.h"

#include <algorithm>
#include <utility>

#include "platform/qt/qt_text.h"
#include "window_model/preview_texts.h"
#include "windows/accessible/spoken_notice.h"
#include "windows/accessible/spoken_page.h"
#include "windows/find/text_finder.h"
#include "windows/selection/page_selection.h"
#include "windows/view/view_desk.h"

namespace qor {
namespace {

// Characters of a page that go with the news of it, the rest when it is asked for.
constexpr int kMostTold = 0x10000;

}  // namespace

PageAnnouncer::PageAnnouncer(ViewDesk& desk, SpokenPage& page, SpokenNotice& notice,
                             PageSelection& selection, TextFinder& finder)
    : desk_(desk), page_(page), notice_(notice), selection_(selection), finder_(finder) {
  connect(&selection, &PageSelection::changed, this, &PageAnnouncer::tellSelection);
  connect(&finder, &TextFinder::presentChanged, this, &PageAnnouncer::tellHit);
  QAccessible::installActivationObserver(this);
}

PageAnnouncer::~PageAnnouncer() {
  QAccessible::removeActivationObserver(this);
}

// Who begins to listen asks for what there is.
void PageAnnouncer::accessibilityActiveChanged(bool active) {
  told_text_ = active ? page_.text(0, kMostTold) : QString();
}

// The first page is told with the window.
void PageAnnouncer::tellPage() {
  const int number = desk_.cursor.current();
  const int before = std::exchange(told_page_, number);
  tellText(before != number);
  if (before == number) return;
  told_selection_.reset();
  tellCaret();
  if (before != 0 && QAccessible::isActive())
    notice_.tell(qtText(pageOfText(number, desk_.cursor.total())));
}

// The text of a large page isn't made only to see that it is the same.
void PageAnnouncer::tellText(bool turned) {
  if (!QAccessible::isActive() || (!turned && told_text_.size() == kMostTold)) return;
  const QString text = page_.text(0, kMostTold);
  if (text == told_text_) return;
  QAccessibleTextUpdateEvent event(desk_.ui.pScroll, 0, std::exchange(told_text_, text), text);
  QAccessible::updateAccessibility(&event);
}

void PageAnnouncer::tellSelection() {
  const TextSelection* selected = selection_.onView();
  const auto now = selected == nullptr ? std::nullopt : std::optional(*selected);
  const auto before = std::exchange(told_selection_, now);
  if (now == before || !now) return;
  page_.moveCaret(now->focus());
  tellCaret();
  const bool wasMarked = before && !before->isEmpty();
  if (!QAccessible::isActive() || (now->isEmpty() && !wasMarked)) return;
  const auto [from, end] = std::minmax(now->anchor(), now->focus());
  QAccessibleTextSelectionEvent event(desk_.ui.pScroll, page_.offsetOf(from), page_.offsetOf(end));
  QAccessible::updateAccessibility(&event);
}

void PageAnnouncer::tellHit() {
  const auto hit = finder_.presentHitOn(desk_.cursor.current());
  if (!hit) return;
  page_.moveCaret({hit->line, hit->span.first});
  tellCaret();
}

void PageAnnouncer::tellCaret() {
  if (!QAccessible::isActive()) return;
  QAccessibleTextCursorEvent event(desk_.ui.pScroll, page_.caret());
  QAccessible::updateAccessibility(&event);
}

}  // namespace qor
