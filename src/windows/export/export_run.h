// An export under the eyes of the user: its progress over a window, its file in the status bar.
#pragma once

#include <QString>

#include "export/export_task.h"

class QWidget;

namespace qor {

struct ExportCall;
struct ExportFormat;

struct ExportRun {
  bool succeeded = false;  // neither stopped nor failed
  ExportFileList files;    // the target, where the exporter tells none
  QString failure;         // a line; null where there is nothing to tell
  QString told;            // a line of the exporter's own, as why it has stopped; null for none
};

ExportRun runWithProgress(QWidget& over, const ExportCall& call, const ExportFormat& format,
                          const std::string& target, const ExportOptions& options);

}  // namespace qor
