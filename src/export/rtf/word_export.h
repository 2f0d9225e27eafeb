// Documents for word processors: RTF, under the names .rtf and .doc.
#pragma once

#include "export/export_task.h"

namespace qor {

ExportResult ExportWord(ExportTask& task);

}  // namespace qor
