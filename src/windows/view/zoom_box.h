// The list of zooms in the toolbar. It tells what is seen where its entry alone doesn't.
#pragma once

#include <cstdint>

class QComboBox;
class QWidget;

namespace qor {

class ZoomBox {
 public:
  // Fills the box, which stands on the toolbar.
  ZoomBox(QComboBox& box, const QWidget& toolbar);

  int entry() const;
  void select(int entry);

  // Tells the percentage that is seen; 0 where no page is.
  void tell(std::int32_t percent);

 private:
  QComboBox& box_;
  const QWidget& toolbar_;
};

}  // namespace qor
