// A settings set: everything that decides how a report goes to paper. The document owns one.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/app_options.h"
#include "document/font_state.h"
#include "document/item_kinds.h"
#include "platform/print/device_mode.h"
#include "platform/print/sheet_measures.h"

namespace qor {

struct Extent {
  std::int32_t Width = 0;
  std::int32_t Height = 0;
};

// Print and page options.
struct VSetPage {
  std::int32_t NumOfCopies = 1;
  std::int32_t PrintPagesSet = kPrintAllPages;  // a PrintRange, the listed ones by PagesForPrint
  std::string PagesForPrint;                    // such as "1,3,5-12"
  bool SortByCopies = false;
  bool ReverseOrder = false;               // not in the file
  std::int32_t PaperSize = 9;              // Windows paper number
  std::int32_t PaperSource = kFormSource;  // Windows bin number
  double PaperWidth = 210.0;               // mm
  double PaperHeight = 297.0;              // mm
  std::int32_t PrintQuality = 3;           // 0 default, 1 draft, 2 low, 3 medium, 4 high
  std::int32_t PrintColor = 1;             // 0 default, 1 monochrome, 2 colour
  std::int32_t Orientation = 1;            // 1 portrait, 0 left to the driver, any other landscape
  std::int32_t MarginLeft = 0;             // mm; negative: cells of the text grid
  std::int32_t MarginTop = 0;
  std::int32_t MarginRight = 0;  // set by control sequences, read by nobody
  std::int32_t MarginBottom = 0;
  std::int32_t BaseCodePage = AppOptions.DocCodePage;
  Extent MaxExtent;  // of the printer's paper, tenths of a millimetre
  Extent MinExtent;

  bool landscape() const { return Orientation != 0 && Orientation != 1; }
};

// Measurements of a printer, or of a sheet that stands for one.
struct VSetPrn : SheetMeasures {
  std::int32_t ResolutionX = 0;
  std::int32_t ResolutionY = 0;
  std::string DeviceName;
  std::string PortName;
};

// The sheet as it stands on a screen or in a picture, in pixels.
struct VSetScr {
  std::int32_t dpi_x = 0;
  std::int32_t dpi_y = 0;
  std::int32_t ref_dpi_x = 0;
  std::int32_t ref_dpi_y = 0;
  std::int32_t view_height = 0;
  std::int32_t view_width = 0;
  std::int32_t origin_x = 0;
  std::int32_t origin_y = 0;
  std::int32_t paper_width = 0;
  std::int32_t paper_height = 0;
  std::int32_t print_left = 0;  // printable area, relative to the sheet
  std::int32_t print_top = 0;
  std::int32_t print_right = 0;
  std::int32_t print_bottom = 0;
  std::int32_t margin_left = 0;
  std::int32_t margin_top = 0;
  std::int32_t margin_right = 0;
  std::int32_t margin_bottom = 0;
};

// The set and its file. Its operations stand in settings. The file and the set's name in it are
// AppOptions.IniFileName and AppOptions.SetName; texts here are UTF-8, lines of the file bytes of
// the ANSI code page.
class VSet {
 public:
  using Lines = std::vector<std::string>;

  std::string DefaultPrinterName;
  std::string PrinterName;
  FontState Font;
  VSetPage Page;
  VSetPrn Prn;
  VSetScr Scr;

  // Reads the set; names the default file and set where none are named, and writes the file with
  // this set where there is none: a file that can't be written is told in one line on standard
  // error, but not to whoever only looks. 0 read, 1 no such file before, -1 no such set. Throws
  // ConversionError, ListIndexError and FileError; keys read before stay read.
  enum class Use { print, look };
  int LoadSet(Use use = Use::print);

  // Reads the set of a file that was named. 0 read or no such file, -1 no such set. Throws as
  // LoadSet.
  int ReloadSet();

  // Makes this set the first of the file, in place of one of its name. 0, or -1 where no file is
  // named. Throws ListIndexError and FileError.
  int SaveSet() const;

  void WriteSetLines(Lines& lines) const;

  static void ListSetNames(std::vector<std::string>& names);
  static void ExtractSetLines(std::string_view name, Lines& lines);
  static void RemoveSetLines(std::string_view name, Lines& lines);

 private:
  void readSections(const Lines& lines);
};

}  // namespace qor
