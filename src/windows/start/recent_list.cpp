// The list of recent reports.
#include "windows/start/recent_list.h"

#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>

#include "platform/qt/qt_text.h"
#include "window_model/preview_texts.h"
#include "windows/start/report_name.h"

namespace qor {
namespace {

constexpr int kPathRole = Qt::UserRole;  // bytes, as the system has them
constexpr int kNameRole = Qt::UserRole + 1;
constexpr int kDirectoryRole = Qt::UserRole + 2;
constexpr int kGap = 12;  // pixels

// Writes text into the room of a line and takes what it needs from it.
void write(QPainter& painter, const QStyleOptionViewItem& line, QPalette::ColorRole color,
           const QString& text, QRect& room) {
  if (room.width() <= 0) return;
  const bool selected = line.state.testFlag(QStyle::State_Selected);
  painter.setPen(line.palette.color(selected ? QPalette::HighlightedText : color));
  const QString seen = line.fontMetrics.elidedText(text, Qt::ElideMiddle, room.width());
  painter.drawText(room, Qt::AlignVCenter, seen);
  room.setLeft(room.left() + line.fontMetrics.horizontalAdvance(seen) + kGap);
}

class RecentDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  // As wide as the list: what is longer is elided.
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return {0, QStyledItemDelegate::sizeHint(option, index).height()};
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    const QString name = index.data(kNameRole).toString();
    if (name.isEmpty()) return QStyledItemDelegate::paint(painter, option, index);
    QStyleOptionViewItem line = option;
    initStyleOption(&line, index);
    line.text.clear();
    const QStyle* style = line.widget->style();
    style->drawControl(QStyle::CE_ItemViewItem, &line, painter, line.widget);
    const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, line.widget) + 1;
    QRect room = line.rect.adjusted(margin, 0, -margin, 0);
    painter->save();
    write(*painter, line, QPalette::Text, name, room);
    write(*painter, line, QPalette::PlaceholderText, index.data(kDirectoryRole).toString(), room);
    painter->restore();
  }
};

}  // namespace

RecentList::RecentList(QWidget* parent) : QListWidget(parent) {
  setItemDelegate(new RecentDelegate(this));
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  // What is done with a report may change the list.
  connect(this, &QListWidget::itemActivated, this, [this](const QListWidgetItem* entry) {
    const std::string path = entry->data(kPathRole).toByteArray().toStdString();
    QMetaObject::invokeMethod(
        this, [this, path] { emit chosen(path); }, Qt::QueuedConnection);
  });
}

void RecentList::fill(const std::vector<std::string>& paths) {
  const int row = currentRow();
  clear();
  for (const std::string& path : paths) {
    const ReportName name(path);
    auto* entry = new QListWidgetItem(name.file + "    " + name.directory, this);
    entry->setData(kPathRole, QByteArray::fromStdString(path));
    entry->setData(kNameRole, name.file);
    entry->setData(kDirectoryRole, name.directory);
    entry->setToolTip("<p>" + shownPath(path).toHtmlEscaped() + "</p>");
  }
  setCurrentRow(std::min(row, count() - 1));
  if (paths.empty()) sayThatThereAreNone();
}

void RecentList::sayThatThereAreNone() {
  auto* entry = new QListWidgetItem(qtText(previewTexts().noRecentReports), this);
  entry->setFlags(Qt::NoItemFlags);
  entry->setForeground(palette().placeholderText());
}

}  // namespace qor
