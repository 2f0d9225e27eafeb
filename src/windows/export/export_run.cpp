// Running exports.
#include "windows/export/export_run.h"

#include "document/vdoc.h"
#include "export/export_formats.h"
#include "export/image/picture_names.h"
#include "language/language.h"
#include "platform/qt/qt_text.h"
#include "window_model/export_words.h"
#include "windows/failure_text.h"
#include "windows/job_progress.h"
#include "windows/view/view_commands.h"

namespace qor {
namespace {

// What is told while a page is made; pictures have files of their own, and sheets tell nothing.
class WaitTexts {
 public:
  WaitTexts(const ExportCall& call, const ExportFormat& format, const ExportTask& task)
      : call_(call), format_(format), task_(task) {}
  ~WaitTexts() { call_.tell({}); }
  WaitTexts(const WaitTexts&) = delete;
  WaitTexts& operator=(const WaitTexts&) = delete;

  void tellPage(std::int32_t page) const {
    if (format_.id == kExportSheets || page > task_.doc.PageCount) return;
    if (page > 1 && format_.id != kExportPictures) return;
    call_.tell(qtText(exportWaitText(fileOf(page))));
  }

 private:
  // Of a page with several pictures the first one.
  std::string fileOf(std::int32_t page) const {
    if (format_.id != kExportPictures) return task_.target;
    const ImageFormatSet formats = writtenFormats(task_.target, task_.options.ImageFormats);
    std::size_t first = 0;
    while (first + 1 < formats.size() && !formats.test(first)) ++first;
    return PictureNames(task_.target, task_.doc.PageCount).name(page, first);
  }

  const ExportCall& call_;
  const ExportFormat& format_;
  const ExportTask& task_;
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
  ExportTask task = {call.doc, target, runOptions(), options, format.mode};
  const WaitTexts texts(call, format, task);
  texts.tellPage(1);
  JobProgress job(&over, qtText(target), qtText(settingsTexts().cancel));
  task.progress = [&texts, goesOn = job.callback()](std::int32_t page, std::int32_t pages) {
    texts.tellPage(page + 1);
    return goesOn(page, pages);
  };
  ExportRun run;
  run.failure =
      failureOf([&] { run.succeeded = runExport(format, task) != ExportResult::stopped; });
  run.files = task.files.empty() ? ExportFileList{target} : std::move(task.files);
  return run;
}

}  // namespace qor
