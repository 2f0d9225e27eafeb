// A button that shows a colour and opens the palette to pick another one.
#pragma once

#include <QAbstractButton>

#include "platform/canvas/color.h"

namespace qor {

class VDropDownPalette : public QAbstractButton {
  Q_OBJECT

 public:
  explicit VDropDownPalette(QWidget* parent = nullptr);

  Color color() const { return color_; }
  // Shows another colour. Nothing is fired.
  void setColor(Color color);

 signals:
  // Before the palette opens.
  void OnDropDown();
  // A colour was picked in the palette, be it the same one.
  void OnColorChanged(qor::Color color);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void openForm();
  void take(Color color);

  Color color_ = kBlack;
};

}  // namespace qor
