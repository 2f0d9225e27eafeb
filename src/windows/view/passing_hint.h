// A line of text that stands at the bottom of an area for a moment.
#pragma once

#include <QLabel>

class QTimer;

namespace qor {

class PassingHint : public QLabel {
  Q_OBJECT

 public:
  explicit PassingHint(QWidget* area);

  // Shows the text for two seconds.
  void tell(const QString& text);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void moveToBottom();

  QTimer* passing_;
};

}  // namespace qor
