// The box that tells errors of the document code. It leaves the window usable, waits until there is
// a window to stand over, and doesn't repeat what stands in the place of the page.
#pragma once

#include <QObject>
#include <QPoint>
#include <QString>

class QMessageBox;

namespace qor {

class VPage;

class ErrorBox : public QObject {
  Q_OBJECT

 public:
  ErrorBox(const VPage& page_control, QWidget* window);

  // Shows the error, once until allowAgain.
  void tell(const QString& error);
  void allowAgain() { shown_.clear(); }

  void windowIsOnScreen();

  // Puts the box into the middle of the window, where its user hasn't moved it.
  void centre();

  // The error that was told last since forgetLast.
  const QString& last() const { return last_; }
  void forgetLast() { last_.clear(); }

 private:
  void showSoon();
  void showNow();

  const VPage& page_control_;
  QWidget* window_;
  QMessageBox* box_ = nullptr;
  QString last_;
  QString shown_;
  QString waiting_;  // for its box
  QPoint put_;       // where the box was put over the window
  bool on_screen_ = false;
};

}  // namespace qor
