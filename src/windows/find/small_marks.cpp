// Marks on several pages.
#include "windows/find/small_marks.h"

#include <QPainter>
#include <QTimer>
#include <algorithm>

#include "document/loaded_page.h"
#include "window_model/page_mapping.h"
#include "windows/failure_text.h"
#include "windows/find/hit_outlines.h"
#include "windows/find/text_finder.h"
#include "windows/idle_slice.h"
#include "windows/view/page_image.h"
#include "windows/view/page_show.h"
#include "windows/view/page_text.h"
#include "windows/view/small_pages.h"
#include "windows/view/view_desk.h"

namespace qor {
namespace {

constexpr int kPause = 100;  // ms, before a job is asked again whether it has ended

}  // namespace

// What the marks of a page depend on.
struct PageHits {
  std::uint64_t count = 0;
  std::optional<std::uint64_t> present;  // its number on the page

  bool operator==(const PageHits&) const = default;
};

// Lies on a page and paints its marks.
class MarksSheet : public QWidget {
 public:
  MarksSheet(QWidget* page, std::int32_t number) : QWidget(page), number_(number) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    resize(page->size());
    show();
  }

  std::int32_t number() const { return number_; }
  bool isWaiting() const { return is_waiting_; }

  // They may differ from what is painted.
  void want(const PageHits& hits) {
    if (wanted_ != hits) is_waiting_ = true;
    wanted_ = hits;
  }

  void setOutlines(HitOutlines outlines) {
    outlines_ = std::move(outlines);
    is_waiting_ = false;
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    paintHits(painter, outlines_);
  }

 private:
  std::int32_t number_;
  PageHits wanted_;
  bool is_waiting_ = false;
  HitOutlines outlines_;
};

SmallMarks::SmallMarks(ViewDesk& desk, PageShow& pages, TextFinder& finder)
    : desk_(desk), pages_(pages), finder_(finder), idle_(new QTimer(this)) {
  connect(idle_, &QTimer::timeout, this, &SmallMarks::markSlice);
  connect(&pages, &PageShow::shown, this, &SmallMarks::update);
}

void SmallMarks::update() {
  std::erase_if(sheets_, [](const auto& sheet) { return sheet.isNull(); });
  if (!finder_.isActive()) return;
  for (const SmallPages::SmallPage& page : desk_.page_control->smallPages().pages()) {
    PageHits hits = {finder_.search().hits().countOn(page.number), std::nullopt};
    if (const auto present = finder_.present(); present && present->page == page.number)
      hits.present = present->number;
    auto sheet = std::find_if(sheets_.begin(), sheets_.end(), [&page](const auto& known) {
      return known->parentWidget() == page.image;
    });
    if (sheet == sheets_.end() && hits.count == 0) continue;
    if (sheet == sheets_.end())
      sheet = sheets_.insert(sheet, new MarksSheet(page.image, page.number));
    (*sheet)->want(hits);
  }
  if (!sheets_.empty()) idle_->start(0);
}

void SmallMarks::clear() {
  for (const auto& sheet : sheets_) delete sheet;
  sheets_.clear();
}

// A page that can't be read is told where it is drawn.
void SmallMarks::markSlice() {
  idle_->setInterval(desk_.busy ? kPause : 0);
  if (desk_.busy) return;
  if (!finder_.isActive() || !doSteps([this] { return markNext(); }).more) idle_->stop();
}

// Each page once, also where it fails.
bool SmallMarks::markNext() {
  const auto next = std::find_if(sheets_.begin(), sheets_.end(), [](const auto& sheet) {
    return !sheet.isNull() && sheet->isWaiting();
  });
  if (next == sheets_.end()) return false;
  (*next)->setOutlines({});
  failureOf([this, &next] { mark(**next); });
  return true;
}

void SmallMarks::mark(MarksSheet& sheet) {
  const PageMapping mapping(desk_.page_control->smallPages().view(), sheet.devicePixelRatioF());
  const LoadedPage page(*pages_.document(), sheet.number());
  sheet.setOutlines(outlinesOf(PageText::mapOf(*page), finder_.matcher(), sheet.rect(), mapping,
                               finder_.presentHitOn(sheet.number())));
}

}  // namespace qor
