// Pages in the window.
#include "windows/view/vpage.h"

#include <QLabel>
#include <algorithm>

#include "document/vdoc.h"
#include "document/vdocpage.h"
#include "window_model/page_view.h"
#include "window_model/zoom_fit.h"
#include "windows/qt_color.h"
#include "windows/view/page_image.h"
#include "windows/view/page_overlay.h"
#include "windows/view/small_pages.h"

namespace qor {
namespace {

constexpr int kMessageMargin = 24;  // pixels

// The longest side of a view that a window can scroll over with what is around it (QWidget ends at
// 2^24 - 1), pixels.
constexpr std::int32_t kLongestSide = 16'000'000;

// The sheet alone where there is no page.
void paintPageOrSheet(VDocPage* page, Canvas& canvas, const PageView& view, const ViewPart& part) {
  if (page != nullptr) {
    paintPage(*page, canvas, view, part);
  } else {
    DrawSheet(canvas, view, part);
  }
}

}  // namespace

VPage::VPage(QWidget* parent)
    : QFrame(parent),
      single_(new PageImage(this)),
      small_(new SmallPages(this)),
      message_(new QLabel(this)),
      overlay_(new PageOverlay(this)) {
  setFrameShape(QFrame::NoFrame);
  setCursor(Qt::OpenHandCursor);
  message_->setObjectName("message");
  message_->setAlignment(Qt::AlignCenter);
  message_->setTextFormat(Qt::PlainText);
  message_->setWordWrap(true);
  message_->hide();
  // Painting goes on when a failure is reported: the text comes after it.
  connect(
      single_, &PageImage::drawingFailed, this,
      [this](const QString& reason) {
        if (single_->failure() == reason) ShowMessage(reason);
      },
      Qt::QueuedConnection);
  connect(single_, &PageImage::drawn, this, &VPage::drawn);
  connect(small_, &SmallPages::drawn, this, &VPage::drawn);
  connect(single_, &PageImage::drawingFailed, this, &VPage::drawingFailed);
  connect(small_, &SmallPages::drawingFailed, this, &VPage::drawingFailed);
  connect(small_, &SmallPages::clicked, this, &VPage::pageClicked);
  connect(small_, &SmallPages::doubleClicked, this, &VPage::pageDoubleClicked);
}

void VPage::setSurroundings(const ScreenArea& area, int barThickness) {
  area_ = area;
  bar_thickness_ = barThickness;
}

// The area that is left for a sheet once the bars that it needs are there.
ScreenArea VPage::areaFor(const VSetScr& sheet) const {
  return areaBesideBars(area_, {sheet.view_width, sheet.view_height}, bar_thickness_);
}

PageView VPage::viewOf(const VSetScr& screen, std::int32_t zoom, bool show_unprintable,
                       bool wide) const {
  return {screen, zoom, show_unprintable, wide,
          canvasColor(palette().color(QPalette::Active, QPalette::Mid))};
}

void VPage::ShowNormal(VDocPage* page, std::int32_t& zoom, bool show_unprintable,
                       PreviewKind kind) {
  VSet& settings = *page->Settings;
  const bool wide = kind == kWideView;
  if (wide) {
    ShowMeasured(page, zoom);
  } else {
    settings.Scr = fitSheet(settings, zoom);
  }
  showSingle(page, viewOf(settings.Scr, zoom, show_unprintable && !wide, wide));
}

// The sheet beside the bars that it needs.
VSetScr VPage::fitSheet(const VSet& settings, std::int32_t& zoom) const {
  const bool fitted = isFit(zoom);
  zoom = fittedToSheet(zoom, settings.Page, settings.Prn, area_, bar_thickness_);
  std::int32_t firstZoom = zoom;
  const ScreenArea area = areaFor(normalSheet(settings.Page, settings.Prn, area_, firstZoom));
  VSetScr sheet = normalSheet(settings.Page, settings.Prn, area, zoom);
  if (fitted) centreSheet(sheet, area);
  return sheet;
}

void VPage::ShowMeasured(VDocPage* page, std::int32_t& zoom) {
  VSet& settings = *page->Settings;
  const Extent content = contentOf(*page, {area_.dpi_x, area_.dpi_y});
  zoom = fittedToContent(zoom, settings.Page, settings.Prn, area_, content, bar_thickness_);
  settings.Scr = wideSheet(settings.Page, settings.Prn, area_, content, zoom);
  const std::int64_t side = std::max(settings.Scr.view_width, settings.Scr.view_height);
  if (side <= kLongestSide) return;
  zoom = std::max(1, static_cast<std::int32_t>(zoom * std::int64_t{kLongestSide} / side));
  settings.Scr = wideSheet(settings.Page, settings.Prn, area_, content, zoom);
}

void VPage::ShowScaled(VDocPage* page, int percent, bool show_unprintable) {
  VSet& settings = *page->Settings;
  const VSetScr first = scaledSheet(settings.Page, settings.Prn, area_, percent);
  settings.Scr = scaledSheet(settings.Page, settings.Prn, areaFor(first), percent);
  showSingle(page, viewOf(settings.Scr, percent, show_unprintable, false));
}

int VPage::ShowMulti(VDoc* doc, VDocPage* page, std::int32_t& zoom, bool show_unprintable,
                     int first) {
  if (doc == nullptr || page == nullptr) return -1;
  const VSet& settings = *page->Settings;
  std::int32_t percent = fittedToSheet(zoom, settings.Page, settings.Prn, area_, bar_thickness_);
  const VSetScr screen = normalSheet(settings.Page, settings.Prn, area_, percent);
  const Extent view = {screen.view_width, screen.view_height};
  const auto places = layOutPages(view, areaFor(screen).client, first, doc->PageCount);
  if (!places) return -1;
  if (places->empty()) {
    ShowNormal(page, zoom, show_unprintable, kNormalView);
    return 1;
  }
  zoom = percent;
  page->Settings->Scr = screen;
  page_ = nullptr;
  showThumbnails(doc, viewOf(screen, percent, show_unprintable, false), *places);
  return static_cast<int>(places->size());
}

void VPage::ShowMessage(const QString& text) {
  makeRoomForPages();
  single_->hide();
  shows_pages_ = false;
  page_ = nullptr;
  resize(area_.client.Width, area_.client.Height);
  message_->setText(text);
  message_->setGeometry(
      rect().adjusted(kMessageMargin, kMessageMargin, -kMessageMargin, -kMessageMargin));
  message_->show();
  emit laidOut({0, 0}, size());
}

QString VPage::message() const {
  return shows_pages_ ? QString() : message_->text();
}

void VPage::showSingle(VDocPage* page, const PageView& view) {
  makeRoomForPages();
  page_ = page;
  resize(view.screen.view_width, view.screen.view_height);
  single_->setGeometry(rect());
  single_->show([this, view](Canvas& canvas, const ViewPart& part) {
    paintPageOrSheet(page_, canvas, view, part);
  });
  overlay_->cover(view);
  emit laidOut({view.screen.origin_x, view.screen.origin_y}, size());
}

void VPage::showThumbnails(VDoc* doc, const PageView& view, const std::vector<PagePlace>& places) {
  makeRoomForPages();
  single_->hide();
  // Where a page is larger than the area in one direction, the control is, too.
  const Extent client = areaFor(view.screen).client;
  resize(std::max(client.Width, view.screen.view_width),
         std::max(client.Height, view.screen.view_height));
  small_->show(doc, view, places);
  emit laidOut({0, 0}, size());
}

// Takes away what stands in the place of pages; they are what is shown then.
void VPage::makeRoomForPages() {
  small_->clear();
  message_->hide();
  overlay_->leave();
  shows_pages_ = true;
}

bool VPage::MarkPage(int number) {
  return small_->mark(number);
}

void VPage::usePage(VDocPage* page) {
  page_ = page;
  page == nullptr ? small_->pause() : small_->goOn();
}

bool VPage::showsOnePage() const {
  return shows_pages_ && small_->isEmpty();
}

}  // namespace qor
