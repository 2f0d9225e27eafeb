// Small pages.
#include "windows/view/small_pages.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QMouseEvent>
#include <QTimer>
#include <algorithm>

#include "document/loaded_page.h"
#include "platform/qt/qt_text.h"
#include "window_model/preview_texts.h"
#include "windows/view/page_image.h"

namespace qor {
namespace {

// They are drawn for so long before the window answers again.
constexpr qint64 kDrawingSlice = 40;  // ms

// The property of a page's picture that holds its number.
constexpr const char* kNumber = "tag";

// The frame around the page that is marked, pixels: half of it stands on the sheet.
constexpr int kFrameWidth = 4;

// Colours that stay while another window has the focus.
void colour(QLabel* label, QPalette::ColorRole ground, QPalette::ColorRole text) {
  const QPalette standard = label->parentWidget()->palette();
  QPalette colours = standard;
  colours.setColor(QPalette::Window, standard.color(QPalette::Active, ground));
  colours.setColor(QPalette::WindowText, standard.color(QPalette::Active, text));
  label->setPalette(colours);
}

}  // namespace

SmallPages::SmallPages(QWidget* board)
    : QObject(board), board_(board), frame_(new QFrame(board)), drawing_(new QTimer(this)) {
  frame_->setObjectName("pageMark");
  frame_->setFrameStyle(QFrame::Box | QFrame::Plain);
  frame_->setLineWidth(kFrameWidth);
  frame_->setAttribute(Qt::WA_TransparentForMouseEvents);
  frame_->hide();
  drawing_->setSingleShot(true);
  connect(drawing_, &QTimer::timeout, this, &SmallPages::drawWaiting);
}

void SmallPages::show(VDoc* doc, const PageView& view, const std::vector<PagePlace>& places) {
  clear();
  view_ = view;
  for (const PagePlace& place : places)
    pages_.push_back({place.number, makeImage(doc, place), makeLabel(place.number)});
  const Extent sheet = {view.screen.paper_width, view.screen.paper_height};
  const Extent board = {board_->width(), board_->height()};
  for (std::size_t i = 0; i < pages_.size(); ++i) {
    QLabel& label = *pages_[i].label;
    const Point corner = numberCorner(places, i, sheet, board, {label.width(), label.height()});
    label.move(corner.x, corner.y);
    label.raise();
    label.show();
  }
  drawWaiting();
}

// They may be handling an event that led here.
void SmallPages::clear() {
  for (const SmallPage& page : pages_) {
    for (QWidget* part : {static_cast<QWidget*>(page.label), static_cast<QWidget*>(page.image)}) {
      part->hide();
      part->deleteLater();
    }
  }
  pages_.clear();
  drawn_ = 0;
  frame_->hide();
}

void SmallPages::pause() {
  drawing_->stop();
}

void SmallPages::goOn() {
  if (drawn_ < pages_.size()) drawing_->start(0);
}

PageImage* SmallPages::makeImage(VDoc* doc, const PagePlace& place) {
  auto* image = new PageImage(board_);
  const std::int32_t number = place.number;
  const QString name = qtText(previewTexts().page) + QString(" %1").arg(number);
  image->setProperty(kNumber, number);
  image->setToolTip(name);
  image->setAccessibleName(name);
  image->setGeometry(place.corner.x, place.corner.y, view_.screen.view_width,
                     view_.screen.view_height);
  image->installEventFilter(this);
  image->setCursor(Qt::PointingHandCursor);
  connect(image, &PageImage::drawn, this, &SmallPages::drawn);
  connect(image, &PageImage::drawingFailed, this, &SmallPages::drawingFailed);
  image->setWaiting(true);
  image->show([doc, view = view_, number](Canvas& canvas, const ViewPart& part) {
    paintPage(*LoadedPage(*doc, number), canvas, view, part);
  });
  return image;
}

QLabel* SmallPages::makeLabel(int number) {
  auto* label = new QLabel(QString::number(number), board_);
  label->setObjectName("pageNumber");
  label->setContentsMargins(4, 0, 4, 0);
  label->setAutoFillBackground(true);
  label->setBackgroundRole(QPalette::Window);
  label->setForegroundRole(QPalette::WindowText);
  label->setAttribute(Qt::WA_TransparentForMouseEvents);
  colour(label, QPalette::Window, QPalette::WindowText);
  label->resize(label->sizeHint());
  return label;
}

bool SmallPages::mark(int number) {
  frame_->hide();
  for (const SmallPage& page : pages_) {
    const bool marked = page.number == number;
    colour(page.label, marked ? QPalette::Highlight : QPalette::Window,
           marked ? QPalette::HighlightedText : QPalette::WindowText);
    if (marked) putFrame(page);
  }
  return !frame_->isHidden();
}

void SmallPages::putFrame(const SmallPage& page) {
  constexpr int outside = kFrameWidth / 2;
  const QSize sheet(view_.screen.paper_width, view_.screen.paper_height);
  frame_->setGeometry(
      QRect(page.image->pos(), sheet).adjusted(-outside, -outside, outside, outside));
  QPalette colours = board_->palette();
  colours.setColor(QPalette::WindowText, colours.color(QPalette::Active, QPalette::Highlight));
  frame_->setPalette(colours);
  frame_->show();
  frame_->raise();
  page.label->raise();
}

// Draws pages one by one and lets the window answer in between.
void SmallPages::drawWaiting() {
  QElapsedTimer slice;
  slice.start();
  while (drawn_ < pages_.size() && slice.elapsed() < kDrawingSlice) pages_[drawn_++].image->draw();
  goOn();
}

bool SmallPages::eventFilter(QObject* watched, QEvent* event) {
  const auto* mouse = dynamic_cast<QMouseEvent*>(event);
  if (mouse == nullptr || mouse->button() != Qt::LeftButton)
    return QObject::eventFilter(watched, event);
  const int number = watched->property(kNumber).toInt();
  switch (mouse->type()) {
    case QEvent::MouseButtonPress: emit clicked(number); return true;
    case QEvent::MouseButtonDblClick: emit doubleClicked(number); return true;
    default: return QObject::eventFilter(watched, event);
  }
}

}  // namespace qor
