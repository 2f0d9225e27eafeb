// The formats that reports are exported in: one table for the command line, the help and the
// windows.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "export/export_task.h"

namespace qor {

struct ExportExtension {
  std::string_view text;                  // with its point, in lower case
  bool inHelp = false;                    // the help of the command line names it
  ImageFormat image = kImageFormatCount;  // that it stands for, if it is a picture's
};

// The ids of formats.
enum ExportFormatId {
  kExportText,
  kExportHtml,
  kExportRtf,
  kExportDoc,
  kExportPdf,
  kExportPictures,
  kExportSheets
};

// What sets formats apart for the machine that they run on.
enum ExportTrait : unsigned {
  kReadsBack = 1,    // it reads what it has put beside the target
  kDrawsNothing = 2  // not even the text of a barcode
};

struct ExportFormat {
  int id;                  // as the window's settings store it
  std::string_view title;  // as users call it
  std::span<const ExportExtension> extensions;
  PageMode mode;  // in which a window asks for pages
  ExportResult (*run)(ExportTask& task);
  unsigned traits = 0;  // of ExportTrait

  bool has(ExportTrait trait) const { return (traits & trait) != 0; }
};

std::span<const ExportFormat> exportFormats();

// The format of this id; text for a number that is no format's.
const ExportFormat& formatWithId(int id);

// Whether this version writes such a file in the format: of spreadsheets the extension tells which
// kind of file is meant.
bool canWrite(const ExportFormat& format, std::string_view target);

// The format whose extension the target has; null where none has it.
const ExportFormat* formatOf(std::string_view target);

// The extensions of the help: "rtf,doc,pdf".
std::string extensionsInHelp();

// Runs the exporter. Stopping is a result here and not thrown; else throws as the exporters.
ExportResult runExport(const ExportFormat& format, ExportTask& task);

// A task with the options of the command line, by the extension of the target, which must be that
// of a format.
ExportTask commandLineTask(VDoc& doc, const std::string& target, const RunOptions& run);

// True where several processes may each make their share of the export's pages of a report of this
// size: pictures are files of their own.
bool canBeShared(const ExportFormat& format, std::uint64_t reportBytes);

// The pictures that a task of the command line makes of a report with so many pages.
ExportFileList commandLinePictures(const std::string& target, std::int32_t pageCount);

}  // namespace qor
