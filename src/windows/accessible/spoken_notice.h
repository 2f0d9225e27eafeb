// Tells a text to those who hear the window, wherever the focus is. Nothing of it is seen: screen
// readers tell a notification when it says that it is showing.
#pragma once

#include <QWidget>

namespace qor {

class SpokenNotice : public QWidget {
  Q_OBJECT

 public:
  explicit SpokenNotice(QWidget* form);

  void tell(const QString& text);
};

}  // namespace qor
