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
  begin(query, std::nullopt);
}

void TextFinder::begin(const FindQuery& query, const std::optional<HitPlace>& present) {
  forget();
  query_ = query;
  VDoc* doc = pages_.document();
  if (doc == nullptr) return;
  code_page_ = doc->Settings.Page.BaseCodePage;
  known_pages_ = doc->PageCount;
  failure_ = failureOf([&] {
    look_ = std::make_unique<PageSearch>(*doc, query, kQtLetters);
    const std::int32_t seen = std::max(1, desk_.cursor.firstOnView());
    if (led_to_ != seen) origin_ = seen;
    search_ = std::make_unique<ReportSearch>(*doc, query, kQtLetters, origin_);
  });
  present_ = present;
  if (isActive()) idle_->start(0);
  searchSlice();
}

void TextFinder::stop() {
  forget();
  led_to_ = 0;
  emit changed();
}

void TextFinder::forget() {
  idle_->stop();
  kept_ = {};
  search_.reset();
  look_.reset();
  present_.reset();
  went_round_ = false;
  failure_.clear();
  hits_.clear();
  page_of_hits_ = 0;
}

void TextFinder::restart() {
  if (isActive()) begin(query_, present_);
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
  kept_ = {};
  known_pages_ = doc->PageCount;
  idle_->start(0);
  emit changed();
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
  const SearchHits& hits = search_->hits();
  if (present_ && !isSearching() && present_->number >= hits.countOn(present_->page))
    present_.reset();
  if (present_ || hits.total() == 0) return;
  const std::uint64_t first = hits.firstFrom(origin_);
  const bool round = first == hits.total();
  if (round && isSearching()) return;
  led_to_ = hits.at(round ? 0 : first).page;
  setPresent(hits.at(round ? 0 : first));
  went_round_ = round;
}

void TextFinder::setPresent(const HitPlace& place) {
  present_ = place;
  went_round_ = false;
  emit presentChanged();
}

void TextFinder::move(int direction) {
  const auto place = target(direction);
  if (!place) return;
  led_to_ = 0;
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
  const std::uint64_t before = behind + total - (onView ? 2 : 1);
  // What is at the other end isn't known before all is searched.
  const bool round = direction > 0 ? behind >= total : before < total;
  if (round && isSearching()) return std::nullopt;
  return hits.at((direction > 0 ? behind : before) % total);
}

// A job may be at work, or the report have become shorter.
bool TextFinder::canLookAt(std::int32_t page) const {
  VDoc* doc = pages_.document();
  return isActive() && !desk_.busy && doc != nullptr && doc->findPage(page) != nullptr;
}

const std::vector<TextHit>& TextFinder::hitsOn(std::int32_t page) {
  if (page_of_hits_ == page) return hits_;
  hits_.clear();
  page_of_hits_ = canLookAt(page) ? page : 0;
  if (page_of_hits_ == 0) return hits_;
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

const FoundText* TextFinder::KeptTexts::find(const HitPlace& place) const {
  if (place.page != page || place.number < first) return nullptr;
  const std::uint64_t index = place.number - first;
  return index < texts.size() ? &texts[index] : nullptr;
}

// A list asks for one after the other, and each would mean to read the page again.
void TextFinder::keepTextsAround(const HitPlace& place) {
  constexpr std::uint64_t kBefore = 100;
  constexpr std::size_t kMost = 2000;
  kept_ = {place.page, place.number - std::min(place.number, kBefore), {}};
  std::uint64_t number = 0;
  const auto take = [&](const TextHit& hit, std::u32string_view line) {
    if (number++ >= kept_.first && kept_.texts.size() < kMost)
      kept_.texts.push_back(foundText(line, hit.span));
  };
  look_->start(place.page, InputFile(AppOptions.FileName));
  while (kept_.texts.size() < kMost && look_->step(take)) continue;
}

std::optional<FoundText> TextFinder::textOf(const HitPlace& place) {
  if (!canLookAt(place.page)) return std::nullopt;
  if (kept_.find(place) == nullptr) failureOf([&] { keepTextsAround(place); });
  const FoundText* text = kept_.find(place);
  return text == nullptr ? std::nullopt : std::optional(*text);
}

}  // namespace qor
