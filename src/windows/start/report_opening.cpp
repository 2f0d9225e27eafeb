// Asking for reports, and starting programs for them.
#include "windows/start/report_opening.h"

#include <QDropEvent>
#include <QFileDialog>
#include <QMimeData>
#include <QUrl>
#include <QWidget>
#include <algorithm>

#include "base/path.h"
#include "platform/qt/qt_text.h"
#include "platform/system/companion.h"
#include "platform/system/directory.h"
#include "platform/system/input_file.h"
#include "window_model/preview_texts.h"
#include "window_model/recent_texts.h"
#include "windows/failure_text.h"
#include "windows/start/report_name.h"

namespace qor {
namespace {

constexpr std::size_t kMostAtOnce = 10;

bool canBeRead(const std::string& file) {
  return failureOf([&file] { const InputFile opened(file); }).isNull();
}

// Addresses hold names as the system has them, which need not be text.
std::string pathOf(const QUrl& file) {
  const QByteArray path = file.path(QUrl::FullyEncoded).toLatin1();
  return QByteArray::fromPercentEncoding(path).toStdString();
}

}  // namespace

ReportOpening::ReportOpening(UserSettings& settings, QWidget* window)
    : QObject(window), settings_(settings), window_(window) {
}

std::vector<std::string> ReportOpening::recent() const {
  return recentTexts(settings_, kRecentReports);
}

void ReportOpening::mnuOpenClick() {
  const std::vector<std::string> known = recent();
  const QString place = known.empty() ? QString() : qtText(directoryOf(known.front()));
  QString title = qtText(previewTexts().openReport);
  title.remove("...");
  std::vector<std::string> chosen;
  for (const QString& path : QFileDialog::getOpenFileNames(window_, title, place))
    chosen.push_back(path.toStdString());
  if (!chosen.empty()) open(chosen);
}

QString ReportOpening::failureToOpen(const std::string& path) {
  const std::string file = fullPath(path);
  if (canBeRead(file) && startCompanion(programFile(), {"--open", file})) return {};
  const bool gone = isGone(file);
  if (gone) forgetRecent(settings_, kRecentReports, file);
  const PreviewTexts& texts = previewTexts();
  return shortPath(path, window_->fontMetrics()) +
         qtText(gone ? texts.reportGone : texts.reportNotOpened);
}

void ReportOpening::open(const std::vector<std::string>& paths) {
  QStringList failures;
  const std::size_t most = std::min(paths.size(), kMostAtOnce);
  for (std::size_t i = 0; i < most; ++i)
    if (const QString failure = failureToOpen(paths[i]); !failure.isEmpty())
      failures.append(failure);
  const auto count = static_cast<std::int64_t>(most) - failures.size();
  if (paths.size() > most)
    failures.append(qtText(withNumber(withNumber(previewTexts().openedOf, count),
                                      static_cast<std::int64_t>(paths.size()))));
  if (failures.isEmpty()) {
    emit opened();
  } else {
    emit failed(failures.join('\n'));
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
  std::vector<std::string> paths;
  for (const QUrl& url : dropped.urls())
    if (url.isLocalFile()) paths.push_back(pathOf(url));
  if (!paths.empty()) open(paths);
}

}  // namespace qor
