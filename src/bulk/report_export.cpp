// Exporting a report.
#include "bulk/report_export.h"

#include <algorithm>
#include <new>

#include "app/command_line.h"
#include "app/run_wall.h"
#include "base/app_options.h"
#include "base/path.h"
#include "base/run_options.h"
#include "document/side_picture.h"
#include "document/vdoc.h"
#include "export/export_formats.h"
#include "export/image/picture_names.h"
#include "platform/system/directory.h"
#include "platform/system/failure.h"
#include "platform/system/file_stamp.h"
#include "platform/system/locale.h"
#include "platform/system/messages.h"
#include "platform/system/temporary_file.h"
#include "platform/walls/places.h"

namespace qor {
namespace {

// What the user of a window would be shown, as the reason of the answer.
class Reasons {
 public:
  void add(std::string_view text) {
    if (text.empty()) return;
    std::string line(text);
    std::ranges::replace_if(
        line, [](unsigned char c) { return c < ' '; }, ' ');
    text_ += (text_.empty() ? "" : "; ") + line;
  }
  const std::string& text() const { return text_; }

 private:
  std::string text_;
};

void setOptions(const PlannedExport& planned, const BulkOptions& options) {
  AppOptions.FileName = fullPath(planned.path);
  AppOptions.ExportTarget = fullPath(planned.target);
  AppOptions.IniFileName = options.setFile.empty() ? "" : fullPath(options.setFile);
  AppOptions.SetName = options.setName;
  AppOptions.CodePageGiven = options.codePage != 0;
  AppOptions.DocCodePage = options.codePage != 0 ? options.codePage : systemAnsiCodePage();
  AppOptions.Drawn = options.format.drawn;
}

std::vector<std::string> filesOf(const ExportTask& task, const BulkFormat& format) {
  return format.pictures ? pictureFiles(task) : std::vector{task.target};
}

// Whether all files of the export are there and newer than the report, or its coming under this
// name: one that is moved keeps the time of its contents.
bool isDone(const ExportTask& task, const BulkFormat& format) {
  const auto report = lastChange(AppOptions.FileName);
  return report && std::ranges::all_of(filesOf(task, format), [&report](const std::string& file) {
           const auto stamp = fileStamp(file);
           return stamp && stamp->modified > *report;
         });
}

void countFiles(const ExportTask& task, BulkAnswer& answer) {
  for (const std::string& file : task.files) {
    const auto stamp = fileStamp(file);
    if (!stamp) continue;
    ++answer.files;
    answer.bytes += stamp->size;
  }
}

ExportTask taskOf(VDoc& doc, const BulkOptions& options, const ExportPart& part) {
  ExportTask task = commandLineTask(doc, AppOptions.ExportTarget, runOptions());
  task.pages = options.pages;
  task.processors = part.processors;
  task.share = part.share;
  if (options.format.pictures && (namesPages(options) || options.target == "-"))
    task.pictureName = [target = task.target](std::int32_t page) { return withPage(target, page); };
  return task;
}

BulkAnswer runTask(ExportTask& task, const BulkOptions& options, Reasons& reasons) {
  BulkAnswer answer;
  answer.pages = task.pageCount();
  if (answer.pages == 0 && task.doc.PageCount > 0) {
    reasons.add("it has none of these pages");
  } else if (options.target == "-" && options.format.pictures && answer.pages != 1) {
    reasons.add("the standard output has room for the picture of one page, which --pages names");
  } else if (options.ifNewer && isDone(task, options.format)) {
    answer.result = BulkResult::skipped;
  } else {
    const ExportResult result = runExport(*formatOf(task.target), task);
    reasons.add(task.notice);
    countFiles(task, answer);
    if (result != ExportResult::stopped && (answer.files > 0 || task.share != nullptr))
      answer.result = BulkResult::done;
  }
  return answer;
}

BulkAnswer run(const BulkOptions& options, const ExportPart& part, Reasons& reasons) {
  if (!VDoc::OpenFile()) return {};
  VDoc doc;
  doc.MayGrow = false;
  doc.ScanPages(false);
  if (doc.Settings.ReloadSet() != 0) reasons.add("the set of settings isn't there");
  ExportTask task = taskOf(doc, options, part);
  return runTask(task, options, reasons);
}

// A large report leaves its memory with the process.
bool isSmall(const std::string& report) {
  constexpr std::uint64_t kLargest = 1 << 20;
  const auto stamp = fileStamp(report);
  return stamp && stamp->size <= kLargest;
}

}  // namespace

BulkAnswer exportReport(const PlannedExport& planned, const BulkOptions& options,
                        const ExportPart& part) {
  Reasons reasons;
  const MessageSink messages([&reasons](MessageKind, std::string_view text) { reasons.add(text); });
  BulkAnswer answer;
  try {
    setOptions(planned, options);
    tellRefusedPicturesAgain();
    makeDirectories(placeOf(AppOptions.ExportTarget));
    if (!part.isWalled) raiseRunWall(kRunExport);
    answer = run(options, part, reasons);
  } catch (const std::bad_alloc&) {
    reasons.add("not enough memory");
  } catch (...) {
    const Failure caught = caughtFailure();
    if (!caught.wasTold()) reasons.add(caught.text);
  }
  if (answer.result == BulkResult::failed && part.share != nullptr) part.share->giveUp();
  answer.reason = reasons.text();
  answer.leavesNothing = answer.result != BulkResult::failed && isSmall(AppOptions.FileName);
  return answer;
}

void rehearse(const BulkOptions& options) {
  const MessageSink silence([](MessageKind, std::string_view) {});
  try {
    const TemporaryFile report("report");
    const TemporaryFile target("report" + std::string(options.format.extension));
    report.fill("Report <b>1<b/> <i>2<i/>\r\n");
    BulkOptions all = options;
    all.pages = PageRanges();
    all.ifNewer = false;
    setOptions({{}, report.path(), target.path()}, all);
    Reasons reasons;
    run(all, {}, reasons);
  } catch (const std::exception&) {
    return;
  }
}

}  // namespace qor
