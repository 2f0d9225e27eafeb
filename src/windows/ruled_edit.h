// Makes a line edit obey a rule: what is typed, composed or pasted goes in as the rule says, the
// arrow keys step the value, and the text is corrected once it has changed.
#pragma once

#include <QClipboard>
#include <QObject>

#include "window_model/edit_rules.h"

class QInputMethodEvent;
class QKeyEvent;
class QLineEdit;

namespace qor {

class RuledEdit : public QObject {
  Q_OBJECT

 public:
  // Called behind each change by the user, with the corrected text and its value.
  using Changed = std::function<void(const CheckedText&)>;
  // Gives the text that stands for the value as its owner holds it.
  using Shown = std::function<QString()>;

  // A child of the edit. Whenever the focus leaves the edit it shows the text of `shown`, if there
  // is one.
  RuledEdit(QLineEdit& edit, EditRule rule, Changed changed, Shown shown = {});

  // As so many presses of the arrow key up, or down where they are negative.
  void stepBy(int steps);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool takesKey(const QKeyEvent& event);
  bool stepsOrPastes(const QKeyEvent& event);
  bool takesComposed(const QInputMethodEvent& event);
  QString typed(QChar character) const;  // what goes in for it, empty for nothing
  void paste(const QString& text);
  void paste(QClipboard::Mode mode);
  void correct();
  void showValue();

  QLineEdit& edit_;
  EditRule rule_;
  Changed changed_;
  Shown shown_;
};

}  // namespace qor
