// The three panels of the status bar.
#pragma once

#include <QString>

class QLabel;
class QStatusBar;

namespace qor {

class StatusPanels {
 public:
  // Makes them in the bar: the first takes what the others leave.
  explicit StatusPanels(QStatusBar& bar);

  void setMessage(const QString& text);
  void setPages(const QString& text);
  void setDates(const QString& text);

 private:
  QLabel* message_;
  QLabel* pages_;
  QLabel* dates_;
};

}  // namespace qor
