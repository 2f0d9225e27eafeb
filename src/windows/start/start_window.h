// The window of a start without a report: a button that opens one, those that were opened last, and
// a field to drop one on. It closes once all that was asked for is opened.
#pragma once

#include <QWidget>

#include "windows/start/report_opening.h"

class QLabel;
class QPushButton;

namespace qor {

class RecentList;

class StartWindow : public QWidget {
  Q_OBJECT

 public:
  explicit StartWindow(UserSettings& settings);

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void makeControls();
  void layControlsOut();
  void tell(const QString& reasons);

  ReportOpening opening_;
  QPushButton* open_;
  RecentList* recent_list_;
  QLabel* message_;
};

}  // namespace qor
