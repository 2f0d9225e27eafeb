// Exporting with no window.
#include "app/batch_export.h"

#include <algorithm>
#include <chrono>
#include <iterator>
#include <new>
#include <set>
#include <string>
#include <utility>

#include "base/app_options.h"
#include "base/errors.h"
#include "base/run_options.h"
#include "base/text.h"
#include "document/vdoc.h"
#include "export/export_formats.h"
#include "language/language.h"
#include "platform/system/child_runs.h"
#include "platform/system/failure.h"
#include "platform/system/file_stamp.h"
#include "platform/system/messages.h"
#include "platform/system/process.h"
#include "platform/system/shared_counter.h"

namespace qor {
namespace {

// A server's log tells that somebody may miss something.
void tellNotice(const ExportTask& task) {
  if (task.notice.empty()) return;
  const std::string_view wayRound = exportTexts().pdfByCommand;
  writeErrorLine(task.files.front() + ": " + task.notice + std::string(wayRound));
}

// This process's share, or all of it. The report stays closed where it can't be read, which must
// not replace an earlier export by an empty one.
BatchExport exportPages(PageShare* share, std::size_t processors) {
  BatchExport done;
  if (!VDoc::OpenFile()) return done;
  // Nobody looks again at what a writer adds later: what is there is exported, to its last byte.
  AppOptions.DynamicMode = false;
  VDoc doc;
  doc.ScanPages(false);
  doc.Settings.ReloadSet();
  done.pages = doc.PageCount;
  const ExportFormat* format = formatOf(AppOptions.ExportTarget);
  // Any other extension exports nothing.
  done.succeeded = format == nullptr;
  if (format == nullptr) return done;
  ExportTask task = commandLineTask(doc, AppOptions.ExportTarget, runOptions());
  task.share = share;
  task.processors = processors;
  done.succeeded = runExport(*format, task) != ExportResult::stopped;
  if (done.succeeded) tellNotice(task);
  done.files = std::move(task.files);
  return done;
}

// Failures of the report, which have been told, are none of the program's.
BatchExport exportReport(PageShare* share, std::size_t processors) {
  try {
    return exportPages(share, processors);
  } catch (const NumberedError&) {
    return {};
  } catch (const std::bad_alloc&) {
    throw SystemError("not enough memory to export it to " + AppOptions.ExportTarget);
  }
}

constexpr std::int32_t kFailed = -1;

// What a process says of its share: how many pages the report has, or that it failed; a line why,
// where that is to be told; and lines of what else there is to tell.
ChildAnswer exportShare(SharedCounter& counter, const std::function<void()>& raiseWall) {
  std::string told;
  const MessageSink messages([&told](MessageKind, std::string_view text) {
    told += '\n';
    std::ranges::replace_copy(text, std::back_inserter(told), '\n', ' ');
  });
  PageShare share(counter);
  BatchExport done;
  std::string failure;
  try {
    raiseWall();
    done = exportReport(&share, 1);
  } catch (...) {
    const Failure caught = caughtFailure();
    if (!caught.wasTold()) failure = caught.text;
  }
  if (!done.succeeded) share.giveUp();
  return {std::to_string(done.succeeded ? done.pages : kFailed) + '\n' + failure + told};
}

// Takes the first line off.
std::string_view takeLine(std::string_view& text) {
  const std::string_view line = upTo(text, '\n');
  text.remove_prefix(std::min(text.size(), line.size() + 1));
  return line;
}

// The ends of all shares: what there is to tell, each text once, and whether the report is done.
class Shares {
 public:
  void add(const ChildEnd& end) {
    std::string_view rest = end.answer;
    pages_.insert(parseInteger(takeLine(rest)).value_or(kFailed));
    addFailure(end.trouble.empty() ? std::string(takeLine(rest))
                                   : AppOptions.FileName + ": its process " + end.trouble);
    while (!rest.empty()) told_.emplace(takeLine(rest));
  }

  void tell() const {
    for (const std::string& text : told_) showWarning(text);
    if (!failure_.empty()) showWarning(failure_);
  }

  // Of the report; kFailed where one of the shares is.
  std::int32_t pages() const { return *pages_.begin(); }

 private:
  // One of them is enough: that of the first page, by its number in the text.
  void addFailure(const std::string& text) {
    const auto rank = [](const std::string& each) { return std::pair(each.size(), each); };
    if (!text.empty() && (failure_.empty() || rank(text) < rank(failure_))) failure_ = text;
  }

  std::set<std::string> told_;
  std::string failure_;
  std::set<std::int32_t> pages_;
};

std::uint64_t reportBytes() {
  const auto stamp = fileStamp(AppOptions.FileName);
  return stamp ? stamp->size : 0;
}

}  // namespace

BatchExport exportHere(const std::function<void()>& raiseWall) {
  raiseWall();
  return exportReport(nullptr, processorCount());
}

bool isSharedExport() {
  const ExportFormat* format = formatOf(AppOptions.ExportTarget);
  return processorCount() > 1 && format != nullptr && canBeShared(*format, reportBytes());
}

BatchExport exportInShares(const std::function<void()>& raiseWall) {
  constexpr std::chrono::minutes kLongestWait{1};
  SharedCounter counter;
  Shares shares;
  ChildRuns children([&](std::size_t) { return exportShare(counter, raiseWall); }, {});
  try {
    for (std::size_t i = 0; i < processorCount() && children.start(i, {}); ++i) continue;
  } catch (const SystemError&) {
    // No room for a single process: this one does it.
    return exportHere(raiseWall);
  }
  while (children.running() > 0)
    for (const ChildEnd& end : children.wait(kLongestWait)) shares.add(end);
  shares.tell();
  BatchExport done = {shares.pages() != kFailed, shares.pages(), {}};
  // No report has more pages than bytes, whatever is said of it.
  if (done.succeeded && static_cast<std::uint64_t>(done.pages) <= reportBytes())
    done.files = commandLinePictures(AppOptions.ExportTarget, done.pages);
  return done;
}

}  // namespace qor
