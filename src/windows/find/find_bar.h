// The bar below the toolbar: what to look for, how, and what came of it.
#pragma once

#include <QFrame>

#include "search/text_matcher.h"

class QHBoxLayout;
class QLabel;
class QToolButton;

namespace qor {

class FindEdit;

class FindBar : public QFrame {
  Q_OBJECT

 public:
  explicit FindBar(QWidget* parent);

  // Shows it with all of its text selected.
  void open();

  FindQuery query() const;
  QString text() const;
  void setEarlier(const QStringList& texts);
  void tell(const QString& found);
  bool showsList() const;

  void retranslate();

 signals:
  void queryChanged();
  void moveWanted(int direction);  // 1 on, -1 back
  void listToggled();
  void closeWanted();

 private:
  void addControls(QHBoxLayout& row);
  QToolButton* addButton(const char* name);
  QToolButton* addChoice(const char* name, const QString& sign, bool on);

  FindEdit* edit_;
  QToolButton* previous_;
  QToolButton* next_;
  QToolButton* match_case_;
  QToolButton* whole_word_;
  QToolButton* any_blanks_;
  QToolButton* list_;
  QLabel* found_;
  QToolButton* close_;
};

}  // namespace qor
