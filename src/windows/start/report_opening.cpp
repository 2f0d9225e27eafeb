// Asking for reports, and starting programs for them.
#include "windows/start/report_opening.h"

#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

#include "platform/qt/qt_text.h"
#include "platform/system/companion.h"
#include "platform/system/directory.h"
#include "platform/system/input_file.h"
#include "window_model/preview_texts.h"
#include "window_model/recent_reports.h"

namespace qor {
namespace {

constexpr qsizetype kMostAtOnce = 10;

}  // namespace

ReportOpening::ReportOpening(UserSettings& settings, QWidget* window)
    : QObject(window), settings_(settings), window_(window) {
}

QStringList ReportOpening::recent() const {
  QStringList paths;
  for (const std::string& path : recentReports(settings_)) paths.append(qtText(path));
  return paths;
}

void ReportOpening::mnuOpenClick() {
  const QStringList known = recent();
  const QString place = known.isEmpty() ? QString() : QFileInfo(known.front()).path();
  QString title = qtText(previewTexts().openReport);
  title.remove("...");
  const QStringList chosen = QFileDialog::getOpenFileNames(window_, title, place);
  for (const QString& path : chosen.first(std::min(chosen.size(), kMostAtOnce))) open(path);
}

void ReportOpening::open(const QString& path) {
  const std::string file = fullPath(path.toStdString());
  if (!fileExists(file)) {
    forgetReport(settings_, file);
    emit failed(path + qtText(previewTexts().reportGone));
  } else if (!startCompanion(programFile(), {"--open", file})) {
    emit failed(path + qtText(previewTexts().reportNotOpened));
  } else {
    emit opened();
  }
}

bool ReportOpening::holdsFiles(const QMimeData& dropped) {
  const QList<QUrl> places = dropped.urls();
  return std::any_of(places.begin(), places.end(),
                     [](const QUrl& url) { return url.isLocalFile(); });
}

void ReportOpening::acceptCopy(QDropEvent& event) {
  event.setDropAction(Qt::CopyAction);
  event.accept();
}

void ReportOpening::openDropped(const QMimeData& dropped) {
  const QList<QUrl> places = dropped.urls();
  for (const QUrl& url : places.first(std::min(places.size(), kMostAtOnce)))
    if (url.isLocalFile()) open(url.toLocalFile());
}

}  // namespace qor
