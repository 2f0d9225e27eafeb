// From the extension of a target to its exporter.
#include <algorithm>
#include <array>
#include <string>

#include "base/app_options.h"
#include "base/errors.h"
#include "base/path.h"
#include "document/vdoc.h"
#include "export/exporters.h"
#include "platform/system/messages.h"

namespace qor {
namespace {

using Exporter = void (*)(VDoc&, ExportOptions&, ExportFileList&);

[[noreturn]] void exportNothing(VDoc&, ExportOptions& options, ExportFileList&) {
  throw FileError(options.TargetName + ": this version can't write such files");
}

template <auto Export>
void exportToTarget(VDoc& doc, ExportOptions& options, ExportFileList& files) {
  Export(doc, options);
  files.push_back(options.TargetName);
}

void exportPdf(VDoc& doc, ExportOptions& options, ExportFileList& files) {
  // The user has been told why.
  if (ExportPdf(doc, options) == kExportStop) throw kExportStop;
  files.push_back(options.TargetName);
}

template <ImageFormat Format>
void exportImage(VDoc& doc, ExportOptions& options, ExportFileList& files) {
  if (doc.PageCount == 0) showWarning(options.TargetName + ": the report has no pages");
  options.ImageFormats.set(Format);
  ExportImages(doc, options, files);
}

struct ExtensionRow {
  std::string_view extension;
  Exporter run;
};

constexpr std::array<ExtensionRow, 13> kExporters = {{
    {".txt", exportToTarget<ExportText>},
    {".html", exportToTarget<ExportHtml>},
    {".rtf", exportNothing},
    {".doc", exportNothing},
    {".pdf", exportPdf},
    {".bmp", exportImage<kImageBmp>},
    {".jpeg", exportImage<kImageJpeg>},
    {".gif", exportImage<kImageGif>},
    {".ico", exportImage<kImageIco>},
    {".png", exportImage<kImagePng>},
    {".xls", exportNothing},
    {".xlsx", exportNothing},
    {".csv", exportNothing},
}};

// What the command line has no words for.
ExportOptions commandLineOptions() {
  ExportOptions options;
  options.TargetName = AppOptions.ExportTarget;
  options.UseNewPageChar = true;
  options.UseEofChar = true;
  options.SaveHtmlPictures = true;
  options.SaveDocPictures = true;
  options.PagePerSheet = true;
  return options;
}

}  // namespace

ExportFileList ExportByExtension(VDoc& doc) {
  const std::string_view extension = extensionOf(AppOptions.ExportTarget);
  const auto found =
      std::find_if(kExporters.begin(), kExporters.end(),
                   [extension](const ExtensionRow& row) { return row.extension == extension; });
  ExportFileList files;
  if (found == kExporters.end()) return files;
  ExportOptions options = commandLineOptions();
  found->run(doc, options, files);
  return files;
}

}  // namespace qor
