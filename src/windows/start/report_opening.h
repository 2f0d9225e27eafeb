// Opening other reports, each in a window of its own: a program is started for it, which looks at
// the file as it would at one of its command line. So nothing that was said of the report at hand
// (what becomes of it, who is told of its end, its code page) is said of another one.
#pragma once

#include <QObject>
#include <string>
#include <vector>

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

  // The first ten of them.
  void open(const std::vector<std::string>& paths);

  // What was dropped, as far as it is files.
  static bool holdsFiles(const QMimeData& dropped);
  void openDropped(const QMimeData& dropped);
  // Whoever drops a file keeps it, whatever else was proposed.
  static void acceptCopy(QDropEvent& event);

  // Full paths, the last one first.
  std::vector<std::string> recent() const;

 signals:
  // All that was asked for.
  void opened();
  // Some of it at least wasn't: a line for each report.
  void failed(const QString& reasons);

 private:
  // Opens it, or tells why not.
  QString failureToOpen(const std::string& path);

  UserSettings& settings_;
  QWidget* window_;
};

}  // namespace qor
