// The list of hits.
#include "windows/find/hit_list_pane.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QVBoxLayout>

#include "language/language.h"
#include "platform/qt/qt_text.h"
#include "window_model/preview_texts.h"
#include "windows/find/hit_list_model.h"
#include "windows/find/hit_row.h"
#include "windows/find/text_finder.h"
#include "windows/view/size_line.h"
#include "windows/view/view_desk.h"

namespace qor {
namespace {

constexpr int kWidth = 320;  // pixels
constexpr int kSmallest = 120;
constexpr int kLargest = 900;
constexpr int kLineWidth = 5;
constexpr int kMargin = 4;

}  // namespace

HitListPane::HitListPane(ViewDesk& desk, TextFinder& finder)
    : QWidget(desk.ui.form),
      desk_(desk),
      finder_(finder),
      rows_(new HitListModel(finder)),
      count_(new QLabel(this)),
      list_(new QListView(this)),
      line_(new SizeLine(desk.ui.form)) {
  rows_->setParent(this);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  count_->setObjectName("lblHits");
  count_->setMargin(kMargin);
  count_->setWordWrap(true);
  column->addWidget(count_);
  column->addWidget(list_);
  list_->setObjectName("lstHits");
  list_->setFrameShape(QFrame::NoFrame);
  list_->setUniformItemSizes(true);
  list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list_->setModel(rows_);
  list_->setItemDelegate(new HitRow(*rows_, list_));
  list_->installEventFilter(this);
  setFixedWidth(kWidth);
  line_->setFixedWidth(kLineWidth);
  line_->setSized(this, kSmallest, kLargest);
  const int place = desk.ui.body->indexOf(desk.ui.pSizeLine) + 1;
  desk.ui.body->insertWidget(place, this);
  desk.ui.body->insertWidget(place + 1, line_);
  // Pages are changed once the list has done with its event.
  connect(list_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          &HitListPane::choose, Qt::QueuedConnection);
  connect(list_, &QListView::clicked, this, &HitListPane::choose, Qt::QueuedConnection);
  setShown(false);
}

void HitListPane::setShown(bool shown) {
  setVisible(shown);
  line_->setVisible(shown);
  if (shown) update();
}

void HitListPane::restart() {
  rows_->clear();
}

void HitListPane::update() {
  if (isHidden()) return;
  rows_->update();
  selectPresent();
  const FindTexts& texts = findTexts();
  const auto total = static_cast<std::int64_t>(finder_.hitCount());
  QString text =
      qtText(withNumber(total > HitListModel::kMostRows ? texts.firstHitsOf : texts.hits, total));
  if (finder_.isSearching()) text += qtText(texts.searching);
  count_->setText(text);
}

void HitListPane::selectPresent() {
  const auto present = finder_.present();
  if (!present) return;
  const std::uint64_t index = finder_.search().hits().indexOf(*present);
  if (index >= static_cast<std::uint64_t>(rows_->rowCount())) return;
  const QModelIndex row = rows_->index(static_cast<int>(index));
  if (list_->currentIndex() == row) return;
  const QSignalBlocker silent(list_->selectionModel());
  list_->setCurrentIndex(row);
  list_->scrollTo(row);
  list_->viewport()->update();
}

void HitListPane::choose() {
  const QModelIndex row = list_->currentIndex();
  if (!row.isValid() || static_cast<std::uint64_t>(row.row()) >= finder_.hitCount()) return;
  emit hitChosen(finder_.search().hits().at(static_cast<std::uint64_t>(row.row())));
}

bool HitListPane::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const auto& key = *static_cast<QKeyEvent*>(event);
    if (key.matches(QKeySequence::Copy)) return copy(), true;
    if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) return choose(), true;
  }
  return QWidget::eventFilter(watched, event);
}

// All of it, a line a hit: the page, a tabulator, the text.
void HitListPane::copy() const {
  QString all;
  for (int i = 0; i < rows_->rowCount(); ++i) all += rows_->row(i).text() + '\n';
  QGuiApplication::clipboard()->setText(all);
}

void HitListPane::retranslate() {
  list_->setAccessibleName(qtText(findTexts().hitList));
  update();
}

}  // namespace qor
