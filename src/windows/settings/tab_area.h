// Room for a tab: as large as the tab wants, and with scroll bars where the screen is too small.
#pragma once

#include <QLayout>
#include <QScrollArea>
#include <algorithm>

namespace qor {

class TabArea : public QScrollArea {
 public:
  explicit TabArea(QWidget* tab) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    setWidget(tab);
  }

  // What has changed on a tab out of sight is measured by nobody else; inner layouts go first.
  void measureAnew() {
    const QList<QLayout*> layouts = widget()->findChildren<QLayout*>();
    std::for_each(layouts.rbegin(), layouts.rend(), [](QLayout* layout) {
      layout->invalidate();
      layout->activate();
    });
    updateGeometry();
  }

  QSize sizeHint() const override { return widget()->sizeHint(); }
};

}  // namespace qor
