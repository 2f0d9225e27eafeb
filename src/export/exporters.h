// The exporters. Each walks the document page by page and keeps one page at a time. Throws what
// reading pages throws, and FileError where the target can't be written; the target is then as it
// was.
#pragma once

#include <string>
#include <string_view>

#include "export/export_options.h"

namespace qor {

class Canvas;
class VDoc;
class VDocPage;
class VDocStr;

// One line for each line of the report, ended by CR LF, in the document's bytes.
void ExportText(VDoc& doc, const ExportOptions& options);
void LineToText(const VDocStr& line, std::string& text);

// The same inside a page of HTML, with colours, bold and pictures.
void ExportHtml(VDoc& doc, const ExportOptions& options);
void LineToHtml(const VDocStr& line, bool savePictures, std::string& html);

// The document as PDF. Page by page: of those that are written only their places in the file are
// kept. The printer that makes PDF files takes it where the options say so. 0, or kExportStop where
// the resource file beside the program is missing, which has been told.
int ExportPdf(VDoc& doc, const ExportOptions& options);

// One picture of each page in each chosen format, 96 dots per inch. Appends the names to `files`
// and returns kExportFiles.
int ExportImages(VDoc& doc, const ExportOptions& options, ExportFileList& files);

// Draws the page at 100 percent; the document's VSetScr must hold its sheet.
void RenderPageToImage(VDocPage& page, Canvas& canvas);

// Runs the exporter that the extension of AppOptions.ExportTarget names and gives the files that it
// wrote; any other extension exports nothing. Throws what the exporter throws, and kExportStop
// where it returns that.
ExportFileList ExportByExtension(VDoc& doc);

}  // namespace qor
