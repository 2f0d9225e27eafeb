// What the controls of the export dialog hold, how the window remembers it, and what exporters are
// told of it.
#pragma once

#include <string>
#include <string_view>

#include "export/export_task.h"

namespace qor {

struct ViewState;

// As the controls start. The window remembers the first of them, up to `scaleToPaper`.
struct ExportChoices {
  int format = 0;  // id of the active tab
  bool saveHtmlPictures = false;
  bool saveDocPictures = false;  // of RTF as well
  ImageFormatSet pictures;
  bool printToPdf = false;
  bool scaleToPaper = false;

  bool useNewPageChar = false;
  bool useEofChar = false;
  bool pagePerSheet = false;
  int sheetType = 0;          // from 0: XLS, XLSX, CSV
  bool tabSeparates = false;  // cbSekme
  std::string separator;      // txtSep, UTF-8
  bool preview = false;
  bool mail = false;

  // Which of the controls can be used.
  bool scaleEnabled = true;       // chkScaleFlag
  bool separatorsEnabled = true;  // GroupBox3, cbSekme, lblDiger
  bool separatorEnabled = true;   // txtSep

  bool operator==(const ExportChoices&) const = default;
};

// What the dialog shows when it opens. A box whose flag is not set stays as it was, so JPEG is
// always ticked, and a scale that was once chosen is, too, where it can't be changed.
void showStored(const ViewState& state, ExportChoices& choices);

// Remembers the tab and the nine flags.
void storeChoices(const ExportChoices& choices, ViewState& state);

// What the choice of a type of spreadsheets, or of the tab character, does to the other controls.
void chooseSheetType(int sheetType, ExportChoices& choices);
void chooseTab(bool tabSeparates, ExportChoices& choices);

// The separator of CSV, a byte of the report's code page: the tab character, the first one of the
// text, or ";" where the text is blank or the code page has no single byte for it.
char csvSeparator(const ExportChoices& choices, int codePage);

// What exports take from the window.
struct ExportView {
  int paperScale = 100;      // percent, of the page on view
  int previewPageWidth = 0;  // as ExportOptions::PreviewPageWidth
};

// The options of the dialog, and those of the mail button, which asks nothing. The mail button
// writes JPEG where no picture format is remembered.
ExportOptions dialogOptions(const ExportChoices& choices, const ExportView& view, int codePage);
ExportOptions mailOptions(const ViewState& state, const ExportView& view);

}  // namespace qor
