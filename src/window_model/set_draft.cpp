// The draft of a settings set.
#include "window_model/set_draft.h"

#include <utility>

#include "base/units.h"
#include "document/vdoc.h"
#include "settings/printers.h"

namespace qor {
namespace {

constexpr std::int32_t kNaturalScale = 100;

}  // namespace

SetDraft draftOf(const VDoc& doc) {
  return {doc.Settings, doc.PrintScale, doc.PrintScaleFlag};
}

void choosePrinterOfRun(VSet& set) {
  set.DefaultPrinterName = GetDefaultPrinterName();
  set.PrinterName =
      AppOptions.PrinterName.empty() ? set.DefaultPrinterName : AppOptions.PrinterName;
}

void applyDraft(const SetDraft& draft, const std::string& printer, VDoc& doc) {
  const bool usual = printer == draft.set.DefaultPrinterName;
  AppOptions.PrinterName = usual ? std::string() : printer;
  MeasureNamedPrinter(AppOptions.PrinterName, nullptr);
  doc.PrintScale = usual ? kNaturalScale : draft.ScalePercent;
  doc.PrintScaleFlag = !usual && draft.ScaleFlag;
  doc.Settings.Font = draft.set.Font;
  doc.Settings.Page = draft.set.Page;
}

void resetPrinter(VSet& set) {
  set.PrinterName = set.DefaultPrinterName;
}

void resetPrintOptions(VSetPage& page) {
  const VSetPage usual;
  page.PrintPagesSet = usual.PrintPagesSet;
  page.PagesForPrint = usual.PagesForPrint;
  page.NumOfCopies = usual.NumOfCopies;
  page.SortByCopies = usual.SortByCopies;
  page.PrintQuality = usual.PrintQuality;
  page.PrintColor = usual.PrintColor;
}

void resetPageOptions(VSetPage& page) {
  page = {};
}

void turnSheet(VSetPage& page) {
  const bool lies = page.PaperWidth > page.PaperHeight;
  const bool stands = page.PaperWidth < page.PaperHeight;
  if (!(page.Orientation == 1 && lies) && !(page.Orientation == 2 && stands)) return;
  const double height = truncated(page.PaperWidth);
  page.PaperWidth = std::exchange(page.PaperHeight, height);
}

}  // namespace qor
