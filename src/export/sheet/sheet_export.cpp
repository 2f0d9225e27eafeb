// Spreadsheets.
#include "export/sheet/sheet_export.h"

#include <memory>

#include "base/path.h"
#include "base/text.h"
#include "document/side_picture.h"
#include "document/vdoc.h"
#include "export/sheet/csv_export.h"
#include "export/sheet/excel_convert_libxl.h"
#include "platform/system/messages.h"
#include "platform/system/output_file.h"
#include "platform/workbook/workbook_writer.h"

namespace qor {
namespace {

using MakeWriter = std::unique_ptr<WorkbookWriter> (*)(OutputFile&);

void tellLoss(const std::string& target, std::int64_t count, const char* what) {
  if (count > 0) showWarning(target + ": " + std::to_string(count) + " " + what);
}

void tellLosses(const std::string& target, const SheetLosses& losses) {
  tellLoss(target, losses.outside, "cells or pictures are outside of the sheets and left out");
  tellLoss(target, losses.replaced, "cells below the last row are put at the top of their sheet");
  tellLoss(target, losses.covered, "cells below the last row are replaced by those of their page");
  tellLoss(target, losses.fonts, "fonts are left out: a workbook has room for 440");
  tellLoss(target, losses.cut, "texts are cut, which are longer than a cell can hold");
}

void exportWorkbook(ExportTask& task, MakeWriter makeWriter) {
  NewSidePictures pictures;
  OutputFile file(task.target);
  const auto writer = makeWriter(file);
  const VDoc& doc = task.doc;
  ExcelConvertLibXL convert(
      *writer, {task.options.PagePerSheet, task.pageCount(), doc.Settings.Page.BaseCodePage,
                sideFileStem(task.startedWith.report)});
  forEachPage(task, [&convert](const VDocPage& page) { convert.WritePage(page); });
  convert.SaveBook();
  file.commit();
  pictures.keep();
  tellLosses(task.target, convert.losses());
  tellLoss(task.target, writer->picturesLeftOut(), "pictures are left out: the file has no room");
}

}  // namespace

ExportResult ExportSheets(ExportTask& task) {
  const std::string extension = lowerAscii(extensionOf(task.target));
  if (extension == ".xls") {
    exportWorkbook(task, makeXlsWriter);
  } else if (extension == ".xlsx") {
    exportWorkbook(task, makeXlsxWriter);
  } else if (extension == ".csv") {
    exportCsv(task);
  } else {
    return ExportResult::done;
  }
  task.files.push_back(task.target);
  return ExportResult::done;
}

}  // namespace qor
