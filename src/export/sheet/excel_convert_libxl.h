// Lays pages into the cells of sheets. A line is a row, and each of its texts a cell, unless the
// text has a place of its own: a column stands for 16 mm of the page, and a row for 4.5 mm.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "document/document_text.h"
#include "document/font_state.h"
#include "export/sheet/open_sheets.h"
#include "export/sheet/sheet_pictures.h"
#include "platform/workbook/cell_formats.h"

namespace qor {

class VDocPage;
class VDocStr;
class WorkbookWriter;

// What a workbook can't take.
struct SheetLosses {
  std::int64_t outside = 0;   // cells and pictures beyond its rows and columns
  std::int64_t replaced = 0;  // cells that wrapped onto their own sheet
  std::int64_t covered = 0;   // cells of a further sheet, where its own page has others
  std::int64_t fonts = 0;     // fonts beyond what a workbook holds
  std::int64_t cut = 0;       // texts that are too long for a cell
};

class ExcelConvertLibXL {
 public:
  struct Options {
    bool pagePerSheet = false;
    std::int32_t pageCount = 0;
    int codePage = 0;
    std::string pictureStem;  // of barcodes
  };

  // The writer must outlive it. Throws as DocumentText.
  ExcelConvertLibXL(WorkbookWriter& writer, Options options);

  // A page, in their order, and what follows it. Throws as the writer.
  void WritePage(const VDocPage& page);

  // Writes the rest of the workbook.
  void SaveBook();

  SheetLosses losses() const;

 private:
  friend class CellTeller;

  // What a cell shows, for which the work font has a format each: text, a whole number, one to six
  // decimals, a date.
  static constexpr std::size_t kText = 0;
  static constexpr std::size_t kWhole = 1;
  static constexpr std::size_t kDate = 8;
  static constexpr std::size_t kLooks = 9;

  static std::int64_t MaxRows();
  void WriteLine(const VDocStr& line, std::size_t sheet);
  void FitColumns(std::size_t sheet);
  bool isWanted(std::size_t sheet) const;
  void addSheet();
  void writeLines(const VDocPage& page, std::size_t sheet);

  void takeFont(const FontState& font);
  void chooseFormat(std::size_t look);
  std::uint32_t makeFormat(std::size_t look);

  void writeText(std::string_view text);
  void WriteString(std::string_view text);
  void WriteInteger(double number);
  void WriteDouble(double number, int decimals);
  void WriteDate(double day);
  void writeNumber(double number);
  void AddPicture(const std::optional<KnownPicture>& picture);
  void AddPictureSized(const std::optional<KnownPicture>& picture, int width, int height);

  // Calls it with the sheet and the row for the cell of now, or with several of them.
  template <class Write>
  void atPlace(Write write);
  template <class Write>
  void pastTheLastRow(Write write);
  bool isInside() const;

  WorkbookWriter& writer_;
  OpenSheets sheets_;
  SheetPictures pictures_;
  Options options_;
  DocumentText text_;
  CellFormats formats_;
  CellFont font_;                              // the work font
  std::optional<FontState> taken_;             // as the report has it
  std::array<std::uint32_t, kLooks> looks_{};  // its formats, 0 for one that isn't made
  std::uint32_t current_format_ = 0;           // of the next cell
  std::int32_t page_ = 1;                      // the first one that cells may still come from
  std::int64_t next_row_ = 0;
  // Where the next cell goes.
  std::size_t sheet_ = 0;
  std::int64_t row_ = 0;
  std::int64_t column_ = 0;
  std::string buffer_;
  SheetLosses losses_;
};

}  // namespace qor
