// Pages in the window.
#include "preview/vpage.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QMouseEvent>
#include <QTimer>

#include "document/vdoc.h"
#include "document/vdocpage.h"
#include "platform/qt/qt_text.h"
#include "preview/model/page_view.h"
#include "preview/model/preview_texts.h"
#include "preview/model/view_state.h"
#include "preview/page_image.h"

namespace qor {
namespace {

// Small pages are drawn for so long before the window answers again.
constexpr qint64 kDrawingSlice = 40;  // ms

Color canvasColor(const QColor& color) {
  return static_cast<Color>(color.red() | color.green() << 8 | color.blue() << 16);
}

}  // namespace

VPage::VPage(QWidget* parent)
    : QFrame(parent),
      single_(new PageImage(this)),
      message_(new QLabel(this)),
      drawing_(new QTimer(this)) {
  setFrameShape(QFrame::NoFrame);
  setCursor(Qt::OpenHandCursor);
  message_->setAlignment(Qt::AlignCenter);
  message_->setWordWrap(true);
  message_->setTextInteractionFlags(Qt::NoTextInteraction);
  message_->hide();
  drawing_->setSingleShot(true);
  connect(drawing_, &QTimer::timeout, this, &VPage::drawWaiting);
  connect(single_, &PageImage::drawingFailed, this, &VPage::drawingFailed);
}

VPage::~VPage() = default;

void VPage::setSurroundings(const ScreenArea& area, int barThickness) {
  area_ = area;
  barThickness_ = barThickness;
}

VSetScr VPage::laidOut(VDocPage& page, std::int32_t& zoom, int preview_type) const {
  const VSet& settings = *page.Settings;
  const bool wide = preview_type == kWideView;
  const Extent content = wide ? contentOf(page, {area_.dpi_x, area_.dpi_y}) : Extent();
  const auto layOut = [&](const ScreenArea& area, std::int32_t& percent) {
    return wide ? wideSheet(settings.Page, settings.Prn, area, content, percent)
                : normalSheet(settings.Page, settings.Prn, area, percent);
  };
  std::int32_t firstZoom = zoom;
  const VSetScr first = layOut(area_, firstZoom);
  return layOut(areaBesideBars(area_, first, barThickness_), zoom);
}

PageView VPage::viewOf(const VSetScr& screen, std::int32_t zoom, bool show_unprintable,
                       bool wide) const {
  return {screen, zoom, show_unprintable, wide,
          canvasColor(palette().color(QPalette::Active, QPalette::Mid))};
}

void VPage::ShowNormal(VDocPage* page, std::int32_t& zoom, bool show_unprintable,
                       int preview_type) {
  const bool wide = preview_type == kWideView;
  page->Settings->Scr = laidOut(*page, zoom, preview_type);
  showSingle(page, viewOf(page->Settings->Scr, zoom, show_unprintable && !wide, wide));
}

void VPage::ShowMeasured(VDocPage* page, std::int32_t& zoom, bool show_unprintable) {
  show_unprintable_ = show_unprintable;
  page->Settings->Scr = laidOut(*page, zoom, kWideView);
}

void VPage::ShowScaled(VDocPage* page, int percent, bool show_unprintable) {
  const VSet& settings = *page->Settings;
  const VSetScr first = scaledSheet(settings.Page, settings.Prn, area_, percent);
  const ScreenArea area = areaBesideBars(area_, first, barThickness_);
  page->Settings->Scr = scaledSheet(settings.Page, settings.Prn, area, percent);
  showSingle(page, viewOf(page->Settings->Scr, percent, show_unprintable, false));
}

void VPage::showSingle(VDocPage* page, const PageView& view) {
  removeThumbnails();
  message_->hide();
  page_ = page;
  zoom_ = view.zoom;
  show_unprintable_ = view.show_unprintable;
  const QSize size(view.screen.view_width, view.screen.view_height);
  resize(size);
  single_->setGeometry(QRect(QPoint(0, 0), size));
  single_->show([this, view](Canvas& canvas, const ViewPart& part) {
    if (page_ != nullptr) {
      paintPage(*page_, canvas, view, part);
    } else {
      DrawSheet(canvas, view, part);
    }
  });
  emit placed({view.screen.origin_x, view.screen.origin_y}, size);
}

int VPage::ShowMulti(VDoc* doc, VDocPage* page, std::int32_t& zoom, bool show_unprintable,
                     int first) {
  if (doc == nullptr || page == nullptr) return -1;
  const VSet& settings = *page->Settings;
  std::int32_t percent = zoom;
  const VSetScr screen = normalSheet(settings.Page, settings.Prn, area_, percent);
  const auto places =
      layOutPages({screen.view_width, screen.view_height}, area_.client, first, doc->PageCount);
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

void VPage::showThumbnails(VDoc* doc, const PageView& view, const std::vector<PagePlace>& places) {
  removeThumbnails();
  single_->hide();
  message_->hide();
  const QSize size(area_.client.Width, area_.client.Height);
  resize(size);
  for (const PagePlace& place : places) thumbnails_.emplace_back(addThumbnail(doc, view, place));
  emit placed({0, 0}, size);
  drawWaiting();
}

PageImage* VPage::addThumbnail(VDoc* doc, const PageView& view, const PagePlace& place) {
  auto* image = new PageImage(this);
  const std::int32_t number = place.number;
  image->setProperty("number", number);
  image->setToolTip(qtText(previewTexts().page) + QString(" %1").arg(number));
  image->setGeometry(place.corner.x, place.corner.y, view.screen.view_width,
                     view.screen.view_height);
  image->installEventFilter(this);
  image->setCursor(Qt::PointingHandCursor);
  connect(image, &PageImage::drawingFailed, this, &VPage::drawingFailed);
  image->setWaiting(true);
  image->show([doc, view, number](Canvas& canvas, const ViewPart& part) {
    if (VDocPage* page = doc->GetPage(number, 0)) paintPage(*page, canvas, view, part);
    doc->ReleasePage(number);
  });
  return image;
}

void VPage::removeThumbnails() {
  thumbnails_.clear();
  drawnThumbnails_ = 0;
}

// Draws small pages one by one and lets the window answer in between.
void VPage::drawWaiting() {
  QElapsedTimer slice;
  slice.start();
  while (drawnThumbnails_ < thumbnails_.size() && slice.elapsed() < kDrawingSlice)
    thumbnails_[drawnThumbnails_++]->draw();
  if (drawnThumbnails_ < thumbnails_.size()) drawing_->start(0);
}

void VPage::ShowMessage(const QString& text) {
  removeThumbnails();
  single_->hide();
  page_ = nullptr;
  const QSize size(area_.client.Width, area_.client.Height);
  resize(size);
  message_->setText(text);
  message_->setGeometry(rect().adjusted(24, 24, -24, -24));
  message_->show();
  emit placed({0, 0}, size);
}

void VPage::releasePage() {
  page_ = nullptr;
}

bool VPage::eventFilter(QObject* watched, QEvent* event) {
  const auto isLeftClick = [](QEvent* what) {
    return what->type() == QEvent::MouseButtonPress &&
           static_cast<QMouseEvent*>(what)->button() == Qt::LeftButton;
  };
  if (!isLeftClick(event)) return QFrame::eventFilter(watched, event);
  emit pageClicked(watched->property("number").toInt());
  return true;
}

}  // namespace qor
