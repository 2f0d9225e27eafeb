// The number of the current page in the toolbar, and how many there are. A click makes the number
// an edit that takes another one.
#pragma once

#include <QObject>

namespace qor {

struct ViewDesk;

class PageNumberEdit : public QObject {
  Q_OBJECT

 public:
  explicit PageNumberEdit(ViewDesk& desk);

  // Shows the cursor's current page, and how many pages there are.
  void showCurrent();
  void showTotal();

  // The total is red while more pages are to come.
  void setBlinking(bool blinks);

  bool isVisible() const;

  // Opens the edit.
  void lblPageCurrentClick();
  // Closes it and goes to the page that was typed.
  void leave();
  // Closes it as if nothing had been typed.
  void cancel();

 signals:
  void pageChosen(int number);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool isOpen() const;
  void txtPageCurrentEditExit();

  ViewDesk& desk_;
};

}  // namespace qor
