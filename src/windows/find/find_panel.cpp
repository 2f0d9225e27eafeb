// Find in the report.
#include "windows/find/find_panel.h"

#include "language/language.h"
#include "platform/qt/qt_text.h"
#include "window_model/preview_texts.h"
#include "window_model/recent_texts.h"
#include "windows/find/find_bar.h"
#include "windows/find/hit_list_pane.h"
#include "windows/view/page_show.h"
#include "windows/view/page_text.h"
#include "windows/view/text_marks.h"
#include "windows/view/view_desk.h"

namespace qor {
namespace {

// Where a side of the area is to be scrolled to: a spot outside of the part between `low` and
// `high` comes to its middle.
int seenAt(int seen, int low, int high) {
  return seen >= low && seen <= high ? seen : (low + high) / 2;
}

}  // namespace

FindPanel::FindPanel(ViewDesk& desk, PageShow& pages, PageText& text, UserSettings& settings)
    : desk_(desk),
      text_(text),
      settings_(settings),
      finder_(desk, pages),
      marks_(desk, text, finder_),
      small_marks_(desk, pages, finder_),
      bar_(new FindBar(desk.ui.form)),
      list_(new HitListPane(desk, finder_)) {
  desk.ui.rows->insertWidget(1, bar_);
  connect(bar_, &FindBar::queryChanged, this, &FindPanel::startSearch);
  connect(bar_, &FindBar::moveWanted, this, &FindPanel::move);
  connect(bar_, &FindBar::closeWanted, this, &FindPanel::close);
  connect(bar_, &FindBar::listToggled, this, [this] { list_->setShown(bar_->showsList()); });
  connect(list_, &HitListPane::hitChosen, &finder_, &TextFinder::setPresent);
  connect(list_, &HitListPane::hitChosen, this, &FindPanel::noteText);
  connect(&finder_, &TextFinder::changed, this, &FindPanel::tell);
  connect(&finder_, &TextFinder::presentChanged, this, [this] {
    tell();
    emit pageWanted(finder_.present()->page);
  });
  connect(&pages, &PageShow::shown, &finder_, &TextFinder::restartIfReadAnew);
}

void FindPanel::mnuFindClick() {
  offerEarlier();
  const bool wasOpen = bar_->isVisible();
  bar_->open();
  if (!wasOpen) startSearch();
  list_->setShown(bar_->showsList());
}

void FindPanel::move(int direction) {
  if (!finder_.isActive()) return mnuFindClick();
  noteText();
  finder_.move(direction);
}

bool FindPanel::close() {
  if (bar_->isHidden()) return false;
  noteText();
  finder_.stop();
  small_marks_.clear();
  marks_.update();
  list_->restart();
  list_->setShown(false);
  bar_->hide();
  desk_.ui.pScroll->setFocus();
  return true;
}

void FindPanel::noteText() {
  noteRecent(settings_, kRecentSearches, bar_->text().toStdString());
  offerEarlier();
}

void FindPanel::offerEarlier() {
  QStringList earlier;
  for (const std::string& text : recentTexts(settings_, kRecentSearches))
    earlier.append(qtText(text));
  bar_->setEarlier(earlier);
}

void FindPanel::startSearch() {
  list_->restart();
  small_marks_.clear();
  const FindQuery query = bar_->query();
  query.text.empty() ? finder_.stop() : finder_.start(query);
  tell();
}

void FindPanel::tell() {
  bar_->tell(foundText());
  list_->update();
  marks_.update();
  small_marks_.update();
  emit told();
}

QString FindPanel::foundText() const {
  if (!finder_.isActive()) return finder_.failure();
  const FindTexts& texts = findTexts();
  const ReportSearch& search = finder_.search();
  if (search.isEmpty()) return qtText(texts.blanksAlone);
  if (!finder_.failure().isNull()) return finder_.failure();
  const std::uint64_t total = search.hits().total();
  QString going = finder_.isSearching() ? qtText(texts.searching) : QString();
  if (total == 0 && !going.isEmpty()) return going;
  if (total == 0 && search.missingLetter() != 0)
    return qtText(texts.letterMissing)
        .replace('%', QString::fromStdU32String(std::u32string(1, search.missingLetter())));
  if (total == 0) return qtText(texts.notFound);
  QString found = qtText(withNumber(texts.hits, static_cast<std::int64_t>(total)));
  if (const auto present = finder_.present())
    found = QString("%1 %2 %3")
                .arg(search.hits().indexOf(*present) + 1)
                .arg(qtText(texts.hitOf))
                .arg(total);
  if (finder_.wentRound()) found += qtText(texts.wentRound);
  return found + going;
}

void FindPanel::scrollToPresent() {
  const auto hit = finder_.presentHit();
  const auto mapping = desk_.page_control->overlay().mapping();
  const TextMap* map = text_.map();
  marks_.update();
  if (!hit || !mapping || map == nullptr || hit->line >= map->lineCount()) return;
  QRectF place;
  for (const QPolygonF& outline : outlinesOf(map->line(hit->line), hit->span, *mapping))
    place |= outline.boundingRect();
  if (place.isEmpty()) return;
  PageScroll& area = *desk_.ui.pScroll;
  const QRect room = area.viewport()->rect();
  const QPoint seen = desk_.page_control->mapTo(area.viewport(), place.center().toPoint());
  const int half = static_cast<int>(place.width() / 2);
  area.bring(place.center(), {seenAt(seen.x(), half, room.width() - half),
                              seenAt(seen.y(), room.height() / 3, room.height() * 2 / 3)});
}

void FindPanel::retranslate() {
  bar_->retranslate();
  list_->retranslate();
  tell();
}

}  // namespace qor
