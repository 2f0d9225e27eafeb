// Pages for those who hear them.
#include "windows/accessible/spoken_page.h"

#include <algorithm>
#include <limits>

#include "window_model/letter_runs.h"
#include "windows/accessible/page_accessible.h"
#include "windows/qt_letters.h"
#include "windows/selection/page_selection.h"
#include "windows/view/page_image.h"
#include "windows/view/page_show.h"
#include "windows/view/page_text.h"
#include "windows/view/small_pages.h"
#include "windows/view/text_marks.h"
#include "windows/view/view_desk.h"

namespace qor {
namespace {

constexpr int kRoom = 40;  // pixels that are seen around what is scrolled to

int offsetFrom(std::size_t number) {
  return static_cast<int>(std::min<std::size_t>(number, std::numeric_limits<int>::max()));
}

std::size_t numberFrom(int offset) {
  return static_cast<std::size_t>(std::max(0, offset));
}

}  // namespace

SpokenPage::SpokenPage(ViewDesk& desk, PageShow& pages, PageText& text, PageSelection& selection)
    : QObject(desk.ui.pScroll), desk_(desk), pages_(pages), text_(text), selection_(selection) {
  PageAccessible::install();
  connect(&text, &PageText::dropped, this, &SpokenPage::drop);
}

// Of several pages on view the marked one need not be the one that is loaded.
const TextMap* SpokenPage::map() {
  if (desk_.page_control->overlay().mapping()) return text_.map();
  VDoc* doc = pages_.document();
  return doc == nullptr || desk_.busy ? nullptr : beside_.map(*doc, desk_.cursor.current());
}

void SpokenPage::drop() {
  laid_out_.reset();
  beside_.drop();
}

int SpokenPage::length() {
  const TextMap* page = map();
  return page == nullptr ? 0 : offsetFrom(page->offset(page->lineCount()));
}

QString SpokenPage::text(int from, int end) {
  QString told;
  const TextMap* page = map();
  const std::size_t behind = numberFrom(std::min(end, length()));
  std::size_t at = numberFrom(from);
  while (at < behind) {
    const std::size_t line = page->placeOf(at).line;
    const std::size_t start = page->offset(line);
    const std::u32string letters = page->text(line) + U'\n';
    const std::size_t last = std::min(behind, page->offset(line + 1));
    told += QString::fromStdU32String(letters.substr(at - start, last - at));
    at = last;
  }
  return told;
}

std::u32string SpokenPage::lineOf(int page, std::size_t line) {
  const TextMap* text = page == desk_.cursor.current() ? map() : nullptr;
  return text == nullptr || line >= text->lineCount() ? std::u32string() : text->text(line);
}

std::optional<TextSpan> SpokenPage::pieceAt(int offset, QAccessible::TextBoundaryType kind) {
  if (offset < 0 || offset >= length()) return std::nullopt;
  const TextMap& page = *map();
  const std::size_t at = numberFrom(offset);
  const std::size_t line = page.placeOf(at).line;
  const std::size_t start = page.offset(line);
  const std::size_t end = page.offset(line + 1);
  if (kind == QAccessible::NoBoundary) return TextSpan{0, numberFrom(length())};
  const bool isEnd = at + 1 == end;
  if (kind == QAccessible::CharBoundary || (kind == QAccessible::WordBoundary && isEnd))
    return TextSpan{at, 1};
  if (kind != QAccessible::WordBoundary) return TextSpan{start, end - start};
  const TextSpan word = runAt(page.text(line), at - start, kQtLetters);
  return TextSpan{start + word.first, word.count};
}

const TextLine& SpokenPage::laidOut(std::size_t line) {
  if (!laid_out_ || laid_out_->first != line) laid_out_.emplace(line, map()->line(line));
  return laid_out_->second;
}

std::optional<SpokenPage::Sight> SpokenPage::sight() const {
  const PageOverlay& overlay = desk_.page_control->overlay();
  if (const auto mapping = overlay.mapping()) return Sight{&overlay, *mapping};
  const SmallPages& several = desk_.page_control->smallPages();
  for (const SmallPages::SmallPage& page : several.pages()) {
    if (page.number == desk_.cursor.current())
      return Sight{page.image, PageMapping(several.view(), page.image->devicePixelRatioF())};
  }
  return std::nullopt;
}

// Empty for what has no outline of its own, as the blank between two texts of a row.
QRectF SpokenPage::outlineOf(const TextPlace& place, const PageMapping& mapping) {
  QRectF box;
  for (const QPolygonF& outline : outlinesOf(laidOut(place.line), {place.column, 1}, mapping))
    box |= outline.boundingRect();
  return box;
}

// In pixels of what is seen. Without an outline it is where the one before it ends, or the line.
QRectF SpokenPage::boxOf(const TextPlace& place, const PageMapping& mapping) {
  const QRectF box = outlineOf(place, mapping);
  if (!box.isEmpty()) return box;
  if (place.column > 0) {
    const QRectF before = outlineOf({place.line, place.column - 1}, mapping);
    if (!before.isEmpty()) return {before.right(), before.top(), 1, before.height()};
  }
  const TextBand& band = map()->band(place.line);
  const Spot top = mapping.toPixels({0, band.top});
  return {top.x, top.y, 1, mapping.toPixels({0, band.bottom}).y - top.y};
}

QRect SpokenPage::placeOf(int offset) {
  const auto seen = sight();
  if (offset < 0 || offset >= length() || !seen) return {};
  const QRect box = boxOf(map()->placeOf(numberFrom(offset)), seen->mapping).toAlignedRect();
  return {seen->control->mapToGlobal(box.topLeft()), box.size()};
}

int SpokenPage::offsetAt(const QPoint& onScreen) {
  const auto seen = sight();
  if (!seen || length() == 0) return -1;
  const QPointF pixel = seen->control->mapFromGlobal(QPointF(onScreen));
  const int gap = offsetOf(map()->placeNear(seen->mapping.toTwips({pixel.x(), pixel.y()})));
  for (const int offset : {gap, gap - 1})
    if (placeOf(offset).contains(onScreen)) return offset;
  return -1;
}

void SpokenPage::show(int from, int end) {
  for (const int offset : {end - 1, from}) {
    const QRect place = placeOf(offset);
    if (place.isEmpty()) continue;
    const QWidget& board = *desk_.ui.pScroll->widget();
    const QPoint seen = board.mapFromGlobal(place.center());
    desk_.ui.pScroll->ensureVisible(seen.x(), seen.y(), kRoom, kRoom);
  }
}

int SpokenPage::caret() {
  return caret_page_ == desk_.cursor.current() ? offsetOf(caret_) : 0;
}

void SpokenPage::moveCaret(const TextPlace& place) {
  caret_ = place;
  caret_page_ = desk_.cursor.current();
}

int SpokenPage::offsetOf(const TextPlace& place) {
  if (length() == 0) return 0;
  const TextMap& page = *map();
  const std::size_t line = std::min(place.line, page.lineCount() - 1);
  return offsetFrom(std::min(page.offset(line) + place.column, page.offset(line + 1) - 1));
}

std::vector<TextSpan> SpokenPage::selections() {
  const TextSelection* selected = selection_.onView();
  if (selected == nullptr || selected->isEmpty() || length() == 0) return {};
  if (selected->kind() == SelectionKind::lines) {
    const auto [from, end] = std::minmax(selected->anchor(), selected->focus());
    const std::size_t start = numberFrom(offsetOf(from));
    return {{start, numberFrom(offsetOf(end)) - start}};
  }
  std::vector<TextSpan> parts;
  const TextMap& page = *map();
  for (const std::size_t line : selected->lines(page)) {
    for (const TextSpan& part : selected->spansOf(page, line, laidOut(line)))
      parts.push_back({page.offset(line) + part.first, part.count});
  }
  return parts;
}

void SpokenPage::select(int from, int end) {
  selection_.change([&](TextSelection& selection, const TextMap& page) {
    selection.select(page, page.placeOf(numberFrom(from)), page.placeOf(numberFrom(end)));
  });
}

}  // namespace qor
