// The hand-off of exported files to the program of the suite that sends mail.
#pragma once

#include "export/export_task.h"

namespace qor {

struct ExportCall;

// Writes the list of the files for it and starts it. What goes wrong is told in the status bar, and
// the files stay.
void handToMail(const ExportFileList& files, const ExportCall& call);

// cmdView_MailClick: exports by the remembered choices, without asking, and hands over what came of
// it. The files of the report's last mail go first.
void exportAndMail(const ExportCall& call);

}  // namespace qor
