// Panels of the status bar.
#include "preview/status_panels.h"

#include <QLabel>
#include <QStatusBar>

namespace qor {
namespace {

// Widths at least, in pixels.
constexpr int kMessageWidth = 200;
constexpr int kPagesWidth = 170;
constexpr int kDatesWidth = 130;

QLabel* panel(QStatusBar& bar, const char* name, int width, int stretch) {
  auto* label = new QLabel(&bar);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setMinimumWidth(width);
  label->setContentsMargins(6, 2, 6, 2);
  bar.addWidget(label, stretch);
  return label;
}

}  // namespace

StatusPanels::StatusPanels(QStatusBar& bar)
    : message_(panel(bar, "stBarMessage", kMessageWidth, 1)),
      pages_(panel(bar, "stBarPages", kPagesWidth, 0)),
      dates_(panel(bar, "stBarDates", kDatesWidth, 0)) {
  // A long message must not widen the window.
  message_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void StatusPanels::setMessage(const QString& text) {
  message_->setText(text);
  message_->setToolTip(text);
}

void StatusPanels::setPages(const QString& text) {
  pages_->setText(text);
}

void StatusPanels::setDates(const QString& text) {
  dates_->setText(text);
}

}  // namespace qor
