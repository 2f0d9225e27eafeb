// Finds a text in the report while nothing else is to do, a slice at a time, so that the window
// answers meanwhile. It knows which hit is the present one and where moves from it lead.
#pragma once

#include <QObject>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "search/found_text.h"
#include "search/report_search.h"

class QTimer;

namespace qor {

class PageShow;
struct ViewDesk;

class TextFinder : public QObject {
  Q_OBJECT

 public:
  TextFinder(ViewDesk& desk, PageShow& pages);
  ~TextFinder() override;

  // Looks for a text from the current page on, and makes the first hit the present one.
  void start(const FindQuery& query);
  // Ends it and forgets all hits.
  void stop();

  // The report may read otherwise than it did, where the present hit stays if it is still there; or
  // it has grown.
  void restart();
  void restartIfReadAnew();
  void follow();

  bool isActive() const { return search_ != nullptr; }
  bool isSearching() const;
  const ReportSearch& search() const { return *search_; }
  std::uint64_t hitCount() const { return isActive() ? search_->hits().total() : 0; }
  // Why the search ended early; null where it didn't.
  const QString& failure() const { return failure_; }

  std::optional<HitPlace> present() const { return present_; }
  bool wentRound() const { return went_round_; }
  void setPresent(const HitPlace& place);

  // The hit behind the present one (1) or before it (-1); from the page on view where that is
  // another one.
  void move(int direction);

  // Finds the hits of a line.
  TextMatcher& matcher() { return look_->matcher(); }
  // Where the present hit stands, on its page or only on this one, and what a hit looks like in its
  // line. Nothing where the report can't be read.
  std::optional<TextHit> presentHit();
  std::optional<TextHit> presentHitOn(std::int32_t page);
  std::optional<FoundText> textOf(const HitPlace& place);

 signals:
  void changed();  // what is known of the hits
  void presentChanged();

 private:
  // Hits of a page in their lines, from one of them on.
  struct KeptTexts {
    std::int32_t page = 0;
    std::uint64_t first = 0;
    std::vector<FoundText> texts;

    const FoundText* find(const HitPlace& place) const;
  };

  void begin(const FindQuery& query, const std::optional<HitPlace>& present);
  void forget();
  bool canLookAt(std::int32_t page) const;
  void keepTextsAround(const HitPlace& place);
  void searchSlice();
  void choosePresent();
  std::optional<HitPlace> target(int direction);
  const std::vector<TextHit>& hitsOn(std::int32_t page);

  ViewDesk& desk_;
  PageShow& pages_;
  QTimer* idle_;
  FindQuery query_;
  int code_page_ = 0;
  std::int32_t origin_ = 1;  // the page that hits are looked for from
  std::int32_t led_to_ = 0;  // the page that the search itself went to, typing goes on from there
  std::int32_t known_pages_ = 0;
  std::unique_ptr<ReportSearch> search_;
  std::unique_ptr<PageSearch> look_;  // pages that somebody asks for
  std::optional<HitPlace> present_;
  bool went_round_ = false;
  QString failure_;
  std::int32_t page_of_hits_ = 0;
  std::vector<TextHit> hits_;
  KeptTexts kept_;
};

}  // namespace qor
