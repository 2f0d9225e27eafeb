// The edit of what is looked for. Enter asks for the next hit, with Shift for the one before; up
// and down bring back earlier searches.
#pragma once

#include <QLineEdit>
#include <QStringList>

namespace qor {

class FindEdit : public QLineEdit {
  Q_OBJECT

 public:
  using QLineEdit::QLineEdit;

  // The last one first.
  void setEarlier(const QStringList& texts);

 signals:
  void moveWanted(int direction);  // 1 on, -1 back

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void showEarlier(int step);

  QStringList earlier_;
  int shown_ = -1;  // of the earlier ones; -1: what was typed
  QString typed_;
};

}  // namespace qor
