// The report: a data file, indexed into pages. Only offsets and lengths are kept; a page is read
// when somebody asks for it. The file is opened for each operation and never held open, because
// its writer may still be at work.
#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <string>

#include "document/page_progress.h"
#include "document/print_outcome.h"
#include "document/running_fonts.h"
#include "document/vdocpage.h"
#include "document/vset.h"
#include "platform/system/input_file.h"

namespace qor {

class PrintContext;
struct PrintTask;
struct RunOptions;

class VDoc {
 public:
  // The report is the file of AppOptions.FileName.

  // Opens it. Throws NumberedError where no file is named; where it can't be opened tells the
  // user, sets LastError and gives nothing.
  static std::optional<InputFile> OpenFile();

  // Runs the control sequences at the head of the file. Those for the page set its options once:
  // what a set says later goes before them. Those for the font belong to the report: the first page
  // starts with the font of the settings and these, whenever the settings change. Returns 1 if
  // there were any, else 0. Throws NumberedError.
  int ReadHeader(const InputFile& file);

  // Indexes only the first page, to show something while the report is being written.
  void ScanFirstPage();

  // Indexes all pages; with `rescan` only those that have come since. True only if an end-of-file
  // byte ended the scan: the report is complete.
  bool ScanPages(bool rescan);

  // True if the file's size is not the one seen last.
  bool FileChanged();

  // The page with its lines loaded, or null. Where the file can't be opened it has no lines. It
  // begins where the page before it ended or, where not all pages before it have been read, as the
  // last of these that is known.
  VDocPage* GetPage(std::int32_t number, PageMode mode = PageMode::plain);
  // The same of a page that there is, from the file that whoever reads many pages has opened.
  VDocPage& LoadPage(std::int32_t number, const InputFile& file, PageMode mode);
  void ReleasePage(std::int32_t number);

  // The bytes of a page that there is, for whoever needs no items, in a buffer that is made larger
  // where it must be. Throws as GetPage.
  std::string_view PageBytes(std::int32_t number, const InputFile& file, std::string& buffer);

  // Throws ReportError where the file is no longer the one whose pages were found, or was cut or
  // written anew since: what was read of it may not belong together. One that has only grown, as
  // far as a look here and there tells, is.
  void RequireSameFile() const;
  // False where a report that has grown is another one, too: what was added is not to be missed.
  bool MayGrow = true;

  // Reads the pages before this one that have not been read yet. Does nothing where the file can't
  // be opened; throws as GetPage.
  void ReadUpTo(std::int32_t number);
  // From a file that is open already.
  void ReadUpTo(std::int32_t number, const InputFile& file);

  // What ends the lines of the report. A file of more than 4 KB whose first page holds no CR at all
  // is a text of another system, which would be one endless line. Known once a page was read.
  LineEnds lineEnds() const { return line_ends_.value_or(LineEnds::carriageReturns); }

  // How many pages from the first on have a start that is known: those before them were read. The
  // first page has as soon as it was asked for.
  std::int32_t KnownStarts() const { return fonts_.known(); }

  // The font at the start of a page, as far as it is known. One behind the last page is its end.
  const FontState& FontAt(std::int32_t number);

  // Forgets what the pages have left to each other: for settings or texts that read differently.
  // Another font of the settings does so by itself.
  void ForgetFonts() { fonts_ = {}; }

  // Back to an empty document.
  void Clear();

  // Applies the page list of the settings to the pages' Selected flags; an empty one changes
  // nothing. Throws ConversionError, and changes nothing, where the list can't be read.
  void SelectPages();

  // This and the print jobs below stand in settings.

  // Measures the printer, or the default one for an empty name, for the settings. False where there
  // is no such printer.
  bool SelectPrinter(const std::string& printer);

  // Print jobs on the printer of the options: every page, one, those of the page list, and every
  // page with the output in a file; from the last page to the first where the settings say so.
  // A job that fails or is stopped by `progress` is taken back, and leaves a file that it was to
  // replace as it is. They throw NumberedError where the report can't be opened and ReportError
  // where none is named or a page can't be read; PrintSelected throws as SelectPages does.
  PrintOutcome PrintAll(const RunOptions& options, const PageProgress& progress = {});
  PrintOutcome PrintPage(const RunOptions& options, std::int32_t number,
                         const PageProgress& progress = {});
  PrintOutcome PrintSelected(const RunOptions& options, const PageProgress& progress = {});
  PrintOutcome PrintToFile(const RunOptions& options, const std::string& path,
                           const PageProgress& progress = {});

  VDocPage* findPage(std::int32_t number);
  VDocPage* LastPage() { return Pages.empty() ? nullptr : &Pages.back(); }

  std::deque<VDocPage> Pages;
  std::uint64_t KnownSize = 0;
  std::int32_t PageCount = 0;
  std::int32_t BaseFontPercent = 100;  // scale of the base font, told by the first bytes
  std::uint32_t HeaderLength = 0;      // bytes of control sequences at the head
  VSet Settings;
  std::int32_t PrintScale = 100;  // percent, for the printer
  bool PrintScaleFlag = false;

 private:
  friend class PageScan;

  void noteFile(const InputFile& file);
  void beforeReading(VDocPage& page, const InputFile& file);
  void readPage(VDocPage& page, const InputFile& file, PageMode mode = PageMode::plain);
  PrintOutcome print(const RunOptions& options, const PrintTask& task,
                     const PageProgress& progress);
  void sendPages(PrintContext& context, const InputFile& file, const PrintTask& task,
                 const PageProgress& progress);
  VDocPage& appendPage(std::uint64_t offset, std::uint64_t length);
  void dropControlPage(const InputFile& file);
  void findLineEnds(const InputFile& file);
  LineEnds lineEndsOf(const InputFile& file) const;

  std::string head_;     // control sequences at the start of the file
  FontState base_font_;  // of the settings that fonts_ started with
  RunningFonts fonts_;
  std::optional<LineEnds> line_ends_;
  FileStamp scanned_;  // the file when its pages were found
  std::string sample_;
  bool head_applied_ = false;
};

}  // namespace qor
