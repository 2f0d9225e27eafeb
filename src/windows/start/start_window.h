// The window of a start without a report: a button that opens one, those that were opened last, and
// a field to drop one on. It closes once a report is opened.
#pragma once

#include <QWidget>

#include "windows/start/report_opening.h"

class QLabel;
class QListWidget;

namespace qor {

class StartWindow : public QWidget {
  Q_OBJECT

 public:
  explicit StartWindow(UserSettings& settings);

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void fillRecent();
  void tell(const QString& reason);

  ReportOpening opening_;
  QListWidget* recent_list_;
  QLabel* message_;
};

}  // namespace qor
