// Opening other reports, each in a window of its own: a program is started for it, which looks at
// the file as it would at one of its command line. So nothing that was said of the report at hand
// (what becomes of it, who is told of its end, its code page) is said of another one.
#pragma once

#include <QObject>
#include <QStringList>

class QDropEvent;
class QMimeData;
class QWidget;

namespace qor {

class UserSettings;

class ReportOpening : public QObject {
  Q_OBJECT

 public:
  // `window` is under the dialog. The settings remember what was opened.
  ReportOpening(UserSettings& settings, QWidget* window);

  // Asks for reports and opens them.
  void mnuOpenClick();

  void open(const QString& path);

  // What was dropped, as far as it is files: the first ten.
  static bool holdsFiles(const QMimeData& dropped);
  void openDropped(const QMimeData& dropped);
  // Whoever drops a file keeps it, whatever else was proposed.
  static void acceptCopy(QDropEvent& event);

  // Full paths, the last one first.
  QStringList recent() const;

 signals:
  void opened();
  void failed(const QString& reason);

 private:
  UserSettings& settings_;
  QWidget* window_;
};

}  // namespace qor
