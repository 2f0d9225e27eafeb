// Handing over to mail.
#include "windows/export/mail_hand_over.h"

#include "base/app_options.h"
#include "document/vdoc.h"
#include "export/export_formats.h"
#include "language/language.h"
#include "platform/qt/qt_text.h"
#include "platform/system/companion.h"
#include "window_model/export_choices.h"
#include "window_model/export_names.h"
#include "window_model/export_targets.h"
#include "window_model/export_words.h"
#include "window_model/mail_list.h"
#include "windows/export/export_run.h"
#include "windows/failure_text.h"
#include "windows/view/view_commands.h"

namespace qor {
namespace {

// Why nothing can be exported there; null where it can.
QString obstacleTo(const ExportFormat& format, const std::string& target,
                   const ExportOptions& options, const VDoc& doc) {
  if (!canWrite(format, target)) return qtText(exportTexts().noExporter) + qtText(target);
  const auto files = filesOfExport(format.id, target, options.ImageFormats, doc.PageCount);
  const std::string fault = faultText(lookAtTarget(target, files, AppOptions.FileName));
  return fault.empty() ? QString() : qtText(fault);
}

}  // namespace

void handToMail(const ExportFileList& files, const ExportCall& call) {
  const QString failure = failureOf([&] {
    const std::string list = writeMailList(files);
    if (!startCompanion(kMailCompanion, mailArguments(AppOptions.MailProgram, list)))
      call.tell(qtText(kMailCompanion) + qtText(previewTexts().companionMissing));
  });
  if (!failure.isNull()) call.tell(failure);
}

// Files of the last mail go once new ones are there: an export that fails leaves all as it was.
void exportAndMail(const ExportCall& call) {
  const std::string& report = AppOptions.FileName;
  const ExportFormat& format = formatWithId(call.state.ID_of_Convert);
  const std::string target = BuildExportFileName(report, format.id, 0).fileName;
  const ExportOptions options = mailOptions(call.state, call.view);
  if (const QString obstacle = obstacleTo(format, target, options, call.doc); !obstacle.isNull())
    return call.tell(obstacle);
  const ExportRun run = runWithProgress(call.window, call, format, target, options);
  call.tell(run.failure.isNull() ? run.told : run.failure);
  if (!run.succeeded) return;
  deleteLastMail(report, run.files);
  const QString failure = failureOf([&] { rememberMail(report, run.files); });
  if (!failure.isNull()) call.tell(failure);
  handToMail(run.files, call);
}

}  // namespace qor
