// The list of pages beside them. It always shows the current page.
#pragma once

#include <QObject>

class QModelIndex;

namespace qor {

class PageListModel;
struct ViewDesk;

class PageListPane : public QObject {
  Q_OBJECT

 public:
  explicit PageListPane(ViewDesk& desk);

  // Shows or hides it, as the state says.
  void applyState();

  // Its lines, and the one of the current page, as the cursor has them.
  void fill();
  void select();

  void retranslate();

 signals:
  void pageChosen(int number);

 private:
  void lstPagesClick();
  void lstPagesClickAgain(const QModelIndex& line);

  ViewDesk& desk_;
  PageListModel* lines_;
};

}  // namespace qor
