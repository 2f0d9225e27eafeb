// The three panels of the status bar.
#pragma once

#include <QString>
#include <functional>

class QLabel;
class QStatusBar;

namespace qor {

class ClickFilter;

class StatusPanels {
 public:
  // Makes them in the bar: the first takes what the others leave.
  explicit StatusPanels(QStatusBar& bar);

  // A message that isn't clickable, but for what setClickable then says; one of work that is being
  // done is blue.
  void setMessage(const QString& text);
  void setWork(const QString& text);
  QString message() const;
  void setClickable(bool clickable);

  // Runs when a clickable message is clicked, with the mouse or by the space bar.
  void onClick(std::function<void()> action);

  void setPages(const QString& text);
  void setDates(const QString& text);

 private:
  QLabel* message_;
  ClickFilter* clicks_;
  QLabel* pages_;
  QLabel* dates_;
};

}  // namespace qor
