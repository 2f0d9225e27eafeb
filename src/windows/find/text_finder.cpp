// Finding texts.
#include "windows/find/text_finder.h"

#include <QTimer>
#include <algorithm>
#include <utility>

#include "base/app_options.h"
#include "document/vdoc.h"
#include "windows/failure_text.h"
#include "windows/idle_slice.h"
#include "windows/qt_letters.h"
#include "windows/view/page_show.h"
#include "windows/view/view_desk.h"

namespace qor {
namespace {

constexpr int kSlice = 8;  // ms

}  // namespace

TextFinder::TextFinder(ViewDesk& desk, PageShow& pages)
    : desk_(desk), pages_(pages), idle_(new QTimer(this)) {
  connect(idle_, &QTimer::timeout, this, &TextFinder::searchSlice);
}

TextFinder::~TextFinder() = default;

bool TextFinder::isSearching() const {
  return isActive() && failure_.isNull() && !search_->isEmpty() && !search_->isDone();
}

void TextFinder::start(const FindQuery& query) {
  stop();
  query_ = query;
  VDoc* doc = pages_.document();
  if (doc == nullptr) return;
  code_page_ = doc->Settings.Page.BaseCodePage;
  known_pages_ = doc->PageCount;
  failure_ = failureOf([&] {
    look_ = std::make_unique<PageSearch>(*doc, query, kQtLetters);
    search_ = std::make_unique<ReportSearch>(*doc, query, kQtLetters,
                                             std::max(1, desk_.cursor.firstOnView()));
  });
  if (isActive()) idle_->start(0);
  searchSlice();
}

void TextFinder::stop() {
  idle_->stop();
  search_.reset();
  look_.reset();
  present_.reset();
  went_round_ = false;
  failure_.clear();
  hits_.clear();
  page_of_hits_ = 0;
}

void TextFinder::restart() {
  if (!isActive()) return;
  start(query_);
}

void TextFinder::restartIfReadAnew() {
  const VDoc* doc = pages_.document();
  if (isActive() && doc != nullptr && doc->Settings.Page.BaseCodePage != code_page_) restart();
}

// The page that was the last one may go on.
void TextFinder::follow() {
  const VDoc* doc = pages_.document();
  if (!isActive() || doc == nullptr) return;
  if (doc->PageCount < known_pages_) return restart();
  if (known_pages_ > 0) search_->searchFrom(known_pages_);
  if (page_of_hits_ == known_pages_) page_of_hits_ = 0;
  known_pages_ = doc->PageCount;
  idle_->start(0);
}

void TextFinder::searchSlice() {
  if (!isActive() || desk_.busy) return;
  const Slice slice =
      doSlice(kSlice, [this](const MayGoOn& mayGoOn) { return search_->goOn(mayGoOn); });
  failure_ = slice.failure;
  if (!slice.more) idle_->stop();
  choosePresent();
  emit changed();
}

// The first hit from the page on view on, and where there is none the first of all.
void TextFinder::choosePresent() {
  if (present_) return;
  const SearchHits& hits = search_->hits();
  const std::uint64_t first = hits.firstFrom(desk_.cursor.firstOnView());
  if (first < hits.total()) {
    setPresent(hits.at(first));
  } else if (!isSearching() && hits.total() > 0) {
    setPresent(hits.at(0));
    went_round_ = true;
  }
}

void TextFinder::setPresent(const HitPlace& place) {
  present_ = place;
  went_round_ = false;
  emit presentChanged();
}

void TextFinder::move(int direction) {
  const auto place = target(direction);
  if (!place) return;
  const SearchHits& hits = search_->hits();
  const bool round =
      present_ && (hits.indexOf(*place) > hits.indexOf(*present_)) != (direction > 0);
  setPresent(*place);
  went_round_ = round;
  emit changed();
}

std::optional<HitPlace> TextFinder::target(int direction) {
  if (!isActive()) return std::nullopt;
  const SearchHits& hits = search_->hits();
  const std::uint64_t total = hits.total();
  if (total == 0) return std::nullopt;
  const std::int32_t first = desk_.cursor.firstOnView();
  const bool onView =
      present_ && present_->page >= first && present_->page <= desk_.cursor.lastOnView();
  const std::uint64_t behind = onView ? hits.indexOf(*present_) + 1 : hits.firstFrom(first);
  if (direction > 0) return hits.at(behind % total);
  return hits.at((behind + total - (onView ? 2 : 1)) % total);
}

const std::vector<TextHit>& TextFinder::hitsOn(std::int32_t page) {
  if (!isActive() || std::exchange(page_of_hits_, page) == page) return hits_;
  hits_.clear();
  failureOf([&] {
    look_->run(page, InputFile(AppOptions.FileName),
               [this](const TextHit& hit, std::u32string_view) { hits_.push_back(hit); });
  });
  return hits_;
}

std::optional<TextHit> TextFinder::presentHit() {
  if (!present_) return std::nullopt;
  const std::vector<TextHit>& hits = hitsOn(present_->page);
  if (present_->number >= hits.size()) return std::nullopt;
  return hits[present_->number];
}

std::optional<TextHit> TextFinder::presentHitOn(std::int32_t page) {
  return present_ && present_->page == page ? presentHit() : std::nullopt;
}

std::optional<FoundText> TextFinder::textOf(const HitPlace& place) {
  std::optional<FoundText> text;
  if (!isActive()) return text;
  failureOf([&] {
    std::uint64_t number = 0;
    look_->start(place.page, InputFile(AppOptions.FileName));
    const auto take = [&](const TextHit& hit, std::u32string_view line) {
      if (number++ == place.number) text = foundText(line, hit.span);
    };
    while (!text && look_->step(take)) continue;
  });
  return text;
}

}  // namespace qor
