// Selecting on pages.
#include "windows/selection/page_selection.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

#include "windows/selection/copied_data.h"
#include "windows/view/page_text.h"
#include "windows/view/text_marks.h"
#include "windows/view/view_desk.h"

namespace qor {
namespace {

constexpr float kOpacity = 0.35F;
constexpr int kRoom = 40;  // pixels that are seen around the end of a selection

}  // namespace

PageSelection::PageSelection(ViewDesk& desk, PageText& text) : desk_(desk), text_(text) {
}

PageSelection::~PageSelection() {
  desk_.page_control->overlay().setShown(*this, false);
}

bool PageSelection::isPossible() {
  return desk_.page_control->overlay().mapping() && text_.map() != nullptr;
}

bool PageSelection::isOnView() const {
  return page_ == desk_.cursor.current() && desk_.page_control->overlay().mapping();
}

bool PageSelection::isEmpty() const {
  return selection_.isEmpty() || !isOnView();
}

// Null where nothing of the page on view is selected.
const TextMap* PageSelection::textWithSelection() {
  return isEmpty() ? nullptr : text_.map();
}

void PageSelection::change(const Change& change) {
  if (!isPossible()) return;
  if (!isOnView()) selection_ = {};
  page_ = desk_.cursor.current();
  change(selection_, *text_.map());
  followPage();
}

void PageSelection::changeAt(const QPoint& onScreen, const SpotChange& change) {
  const PageOverlay& overlay = desk_.page_control->overlay();
  const auto mapping = overlay.mapping();
  if (!mapping) return;
  const QPoint pixel = overlay.mapFromGlobal(onScreen);
  const Spot spot = mapping->toTwips({double(pixel.x()), double(pixel.y())});
  this->change([&](TextSelection& selection, const TextMap& map) { change(selection, map, spot); });
}

void PageSelection::followPage() {
  desk_.page_control->overlay().setShown(*this, !isEmpty());
  emit changed();
}

void PageSelection::paint(QPainter& painter, const PageMapping& mapping) {
  const TextMap* map = textWithSelection();
  if (map == nullptr) return;
  QColor colour = desk_.page_control->palette().color(QPalette::Active, QPalette::Highlight);
  colour.setAlphaF(kOpacity);
  painter.setBrush(colour);
  painter.setPen(Qt::NoPen);
  for (const std::size_t number : linesIn(painter.clipBoundingRect(), *map, mapping)) {
    if (!selection_.touches(*map, number)) continue;
    const TextLine line = map->line(number);
    for (const TextSpan& span : selection_.spansOf(*map, number, line)) {
      for (const QPolygonF& outline : outlinesOf(line, span, mapping)) painter.drawPolygon(outline);
    }
  }
}

void PageSelection::showEnd() {
  const auto mapping = desk_.page_control->overlay().mapping();
  const TextMap* map = text_.map();
  if (!mapping || map == nullptr) return;
  const Spot pixel = mapping->toPixels(selection_.end(*map));
  const QPoint inControl(static_cast<int>(pixel.x), static_cast<int>(pixel.y));
  const QPoint onBoard = desk_.page_control->mapToParent(inControl);
  desk_.ui.pScroll->ensureVisible(onBoard.x(), onBoard.y(), kRoom, kRoom);
}

void PageSelection::mnuCopyClick() {
  const TextMap* map = textWithSelection();
  if (map != nullptr) QGuiApplication::clipboard()->setMimeData(copiedData(*map, selection_));
}

void PageSelection::mnuSelectPageClick() {
  change([](TextSelection& selection, const TextMap& map) { selection.takePage(map); });
}

void PageSelection::offer() {
  QClipboard* clipboard = QGuiApplication::clipboard();
  const TextMap* map = textWithSelection();
  if (map != nullptr && clipboard->supportsSelection())
    clipboard->setText(copiedPlain(*map, selection_), QClipboard::Selection);
}

}  // namespace qor
