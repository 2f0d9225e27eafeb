// A text in a font as reports draw it.
#pragma once

#include <QWidget>

#include "document/font_state.h"

namespace qor {

class FontExample : public QWidget {
  Q_OBJECT

 public:
  using QWidget::QWidget;

  // Shows the name of the font and some letters of its character set.
  void setFontState(const FontState& font);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  FontState font_;
};

}  // namespace qor
