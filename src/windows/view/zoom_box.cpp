// Zooms in a list.
#include "windows/view/zoom_box.h"

#include <QComboBox>

#include "platform/qt/qt_text.h"
#include "window_model/zoom_list.h"

namespace qor {
namespace {

constexpr int kLetters = 12;  // as in "AutoW (100%)"

}  // namespace

ZoomBox::ZoomBox(QComboBox& box, const QWidget& toolbar) : box_(box), toolbar_(toolbar) {
  for (const ZoomEntry& entry : kZoomList) box.addItem(qtText(entry.text));
  box.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  box.setMinimumContentsLength(kLetters);
  box.setMaxVisibleItems(static_cast<int>(kZoomList.size()));
}

int ZoomBox::entry() const {
  return box_.currentIndex();
}

void ZoomBox::select(int entry) {
  box_.setCurrentIndex(entry);
}

void ZoomBox::tell(std::int32_t percent) {
  const QString seen = QString("%1%").arg(percent > 0 ? percent : kNaturalZoom);
  for (int entry = 0; entry < box_.count(); ++entry) {
    QString text = qtText(kZoomList[static_cast<std::size_t>(entry)].text);
    const bool differs = percent > 0 && zoomPercent(entry) != percent;
    if (entry == box_.currentIndex() && differs) text += QString(" (%1)").arg(seen);
    if (box_.itemText(entry) != text) box_.setItemText(entry, text);
  }
  box_.setPlaceholderText(seen);
  // It stands for what is on view, and not for something that is missing.
  QPalette colors = toolbar_.palette();
  colors.setColor(QPalette::PlaceholderText, colors.color(QPalette::ButtonText));
  box_.setPalette(colors);
}

}  // namespace qor
