// Running exports.
#include "windows/export/export_run.h"

#include "document/vdoc.h"
#include "export/export_formats.h"
#include "language/language.h"
#include "platform/qt/qt_text.h"
#include "platform/system/messages.h"
#include "window_model/export_words.h"
#include "window_model/preview_texts.h"
#include "windows/failure_text.h"
#include "windows/job_progress.h"
#include "windows/view/view_commands.h"

namespace qor {
namespace {

// The file that is being made, in the status bar. Pictures have files of their own, and sheets tell
// nothing.
class WaitText {
 public:
  explicit WaitText(const ExportCall& call) : call_(call) {}
  ~WaitText() { call_.tellWork({}); }
  WaitText(const WaitText&) = delete;
  WaitText& operator=(const WaitText&) = delete;

  void tell(const std::string& file) const { call_.tellWork(qtText(exportWaitText(file))); }

 private:
  const ExportCall& call_;
};

// What an exporter tells by itself: its first line, and how many more there were.
class Told {
 public:
  QString text() const {
    if (count_ == 0) return {};
    const std::string more = " " + withNumber(exportTexts().andMore, count_ - 1);
    return qtText(count_ == 1 ? first_ : first_ + more);
  }

 private:
  void take(std::string_view text) {
    if (count_++ == 0) first_ = text;
  }

  std::string first_;
  std::int64_t count_ = 0;
  MessageSink sink_{[this](MessageKind, std::string_view text) { take(text); }};
};

// Pictures are laid out on a sheet of their own: that of the page on view stays as it was.
class SheetOnView {
 public:
  explicit SheetOnView(VSet& settings)
      : settings_(settings), printer_(settings.Prn), screen_(settings.Scr) {}
  ~SheetOnView() {
    settings_.Prn = printer_;
    settings_.Scr = screen_;
  }
  SheetOnView(const SheetOnView&) = delete;
  SheetOnView& operator=(const SheetOnView&) = delete;

 private:
  VSet& settings_;
  VSetPrn printer_;
  VSetScr screen_;
};

}  // namespace

ExportRun runWithProgress(QWidget& over, const ExportCall& call, const ExportFormat& format,
                          const std::string& target, const ExportOptions& options) {
  const SheetOnView sheet(call.doc.Settings);
  const WaitText wait(call);
  const Told told;
  JobProgress job(&over, qtText(target), qtText(settingsTexts().cancel));
  ExportTask task = {call.doc, target, runOptions(), options, format.mode, job.callback()};
  task.starts = [&wait](const std::string& file) { wait.tell(file); };
  if (format.id != kExportPictures && format.id != kExportSheets) wait.tell(target);
  ExportRun run;
  run.failure =
      failureOf([&] { run.succeeded = runExport(format, task) != ExportResult::stopped; });
  run.told = told.text();
  run.files = task.files.empty() ? ExportFileList{target} : std::move(task.files);
  return run;
}

}  // namespace qor
