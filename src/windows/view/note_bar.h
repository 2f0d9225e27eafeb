// A bar above the pages for what there is to tell of the whole report. The user closes it; the same
// note doesn't come again.
#pragma once

#include <QFrame>

class QLabel;

namespace qor {

class NoteBar : public QFrame {
  Q_OBJECT

 public:
  explicit NoteBar(QWidget* parent);

  // Shows the note; an empty one takes the bar away.
  void tell(const QString& note);

  void setCloseText(const QString& text);

 private:
  void dismiss();

  QLabel* text_;
  QWidget* close_;
  QString dismissed_;
};

}  // namespace qor
