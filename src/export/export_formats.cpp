// The table of formats, and running one of them.
#include "export/export_formats.h"

#include <algorithm>
#include <iterator>

#include "base/path.h"
#include "base/text.h"
#include "export/html/html_export.h"
#include "export/image/image_export.h"
#include "export/image/picture_names.h"
#include "export/pdf/pdf_export.h"
#include "export/rtf/word_export.h"
#include "export/sheet/sheet_export.h"
#include "export/text/text_export.h"

namespace qor {
namespace {

constexpr ExportExtension kText[] = {{".txt"}};
constexpr ExportExtension kHtml[] = {{".html"}};
constexpr ExportExtension kRtf[] = {{".rtf", true}};
constexpr ExportExtension kDoc[] = {{".doc", true}};
constexpr ExportExtension kPdf[] = {{".pdf", true}};
constexpr ExportExtension kSheets[] = {{".xls"}, {".xlsx"}, {".csv"}};
constexpr ExportExtension kPictures[] = {{".bmp", true, kImageBmp},
                                         {".jpeg", true, kImageJpeg},
                                         {".gif", true, kImageGif},
                                         {".ico", true, kImageIco},
                                         {".png", false, kImagePng}};

constexpr ExportFormat kFormats[] = {
    {kExportText, "Text", kText, PageMode::text, ExportText, kDrawsNothing},
    {kExportHtml, "HTML", kHtml, PageMode::html, ExportHtml},
    {kExportRtf, "RTF", kRtf, PageMode::rtf, ExportWord, kReadsBack},
    {kExportDoc, "DOC", kDoc, PageMode::doc, ExportWord, kReadsBack},
    {kExportPdf, "PDF", kPdf, PageMode::pictures, ExportPdf, kReadsBack},
    {kExportPictures, "Pictures", kPictures, PageMode::pictures, ExportImages},
    {kExportSheets, "Spreadsheet", kSheets, PageMode::sheets, ExportSheets, kReadsBack},
};

// Bytes of some plain pages: pictures of fewer are made before other processes have begun.
constexpr std::uint64_t kShared = 16 << 10;

// Null where it is none of the format's.
const ExportExtension* find(const ExportFormat& format, std::string_view extension) {
  const auto found = std::find_if(
      format.extensions.begin(), format.extensions.end(),
      [extension](const ExportExtension& candidate) { return candidate.text == extension; });
  return found == format.extensions.end() ? nullptr : &*found;
}

// What the command line has no words for.
ExportOptions commandLineOptions(const ExportExtension& extension, const RunOptions& run) {
  ExportOptions options;
  options.DrawnPages = run.drawn;
  options.UseNewPageChar = true;
  options.UseEofChar = true;
  options.SaveHtmlPictures = true;
  options.SaveDocPictures = true;
  options.PagePerSheet = true;
  if (extension.image != kImageFormatCount) options.ImageFormats.set(extension.image);
  return options;
}

}  // namespace

std::span<const ExportFormat> exportFormats() {
  return kFormats;
}

const ExportFormat& formatWithId(int id) {
  const auto* const found =
      std::find_if(std::begin(kFormats), std::end(kFormats),
                   [id](const ExportFormat& format) { return format.id == id; });
  return found == std::end(kFormats) ? kFormats[kExportText] : *found;
}

bool canWrite(const ExportFormat& format, std::string_view target) {
  return format.id != kExportSheets || find(format, lowerAscii(extensionOf(target))) != nullptr;
}

const ExportFormat* formatOf(std::string_view target) {
  const std::string_view extension = extensionOf(target);
  const auto* const found = std::find_if(
      std::begin(kFormats), std::end(kFormats),
      [extension](const ExportFormat& format) { return find(format, extension) != nullptr; });
  return found == std::end(kFormats) ? nullptr : found;
}

std::string extensionsInHelp() {
  std::string list;
  for (const ExportFormat& format : kFormats) {
    for (const ExportExtension& extension : format.extensions) {
      if (!extension.inHelp) continue;
      if (!list.empty()) list += ',';
      list += extension.text.substr(1);
    }
  }
  return list;
}

ExportResult runExport(const ExportFormat& format, ExportTask& task) {
  try {
    return format.run(task);
  } catch (const StoppedError&) {
    return ExportResult::stopped;
  }
}

bool canBeShared(const ExportFormat& format, std::uint64_t reportBytes) {
  return format.id == kExportPictures && reportBytes >= kShared;
}

ExportTask commandLineTask(VDoc& doc, const std::string& target, const RunOptions& run) {
  const ExportFormat& format = *formatOf(target);
  ExportTask task = {doc, target, run, commandLineOptions(*find(format, extensionOf(target)), run)};
  // Only sheets are read otherwise where nobody looks.
  if (format.mode == PageMode::sheets) task.mode = PageMode::sheets;
  return task;
}

ExportFileList commandLinePictures(const std::string& target, std::int32_t pageCount) {
  const ExportOptions options =
      commandLineOptions(*find(*formatOf(target), extensionOf(target)), RunOptions());
  return pictureFiles(target, options.ImageFormats, pageCount);
}

}  // namespace qor
