// Telling of hits.
#include "windows/accessible/hit_announcer.h"

#include <QAccessible>
#include <QTimer>

#include "search/found_text.h"
#include "windows/accessible/spoken_notice.h"
#include "windows/accessible/spoken_page.h"
#include "windows/find/find_panel.h"

namespace qor {
namespace {

constexpr int kPause = 200;  // ms

}  // namespace

HitAnnouncer::HitAnnouncer(FindPanel& find, SpokenPage& page, SpokenNotice& notice)
    : find_(find), page_(page), notice_(notice), soon_(new QTimer(this)) {
  soon_->setSingleShot(true);
  soon_->setInterval(kPause);
  connect(soon_, &QTimer::timeout, this, &HitAnnouncer::tell);
  connect(&find, &FindPanel::told, this, &HitAnnouncer::tellSoon);
}

void HitAnnouncer::tellSoon() {
  if (QAccessible::isActive() && !soon_->isActive()) soon_->start();
}

// While a search goes on its counter grows: that is told at the end.
void HitAnnouncer::tell() {
  TextFinder& finder = find_.finder();
  if (finder.isSearching() && finder.present() == told_) return;
  told_ = finder.present();
  QString found = find_.foundText();
  const QString line = hitLine();
  if (!line.isEmpty()) found += ": " + line;
  if (!found.isEmpty()) notice_.tell(found);
}

QString HitAnnouncer::hitLine() {
  const auto hit = find_.finder().presentHit();
  if (!hit) return {};
  const std::u32string line = page_.lineOf(find_.finder().present()->page, hit->line);
  if (hit->span.end() > line.size()) return {};
  const FoundText found = foundText(line, hit->span);
  return QString::fromStdU32String(found.before + found.hit + found.behind).simplified();
}

}  // namespace qor
