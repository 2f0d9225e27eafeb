// Files of sheets. A sheet is written when it is finished and is then no longer needed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace qor {

class CellFormats;
class OutputFile;
class Sheet;
struct EmbeddedPicture;

inline constexpr std::uint32_t kMostRows = 65536;
// Letters of a cell's text; what is longer must be cut.
inline constexpr std::size_t kMostCellText = 32767;

// All of its operations throw FileError where the file can't take what they write.
class WorkbookWriter {
 public:
  virtual ~WorkbookWriter() = default;

  // How many columns a sheet of the format has.
  virtual std::uint32_t mostColumns() const = 0;

  // Takes a picture for sheets to come; gives its number.
  virtual std::size_t addPicture(const EmbeddedPicture& picture) = 0;

  // Pictures of sheets that the format has no room for.
  virtual std::int64_t picturesLeftOut() const { return 0; }

  // Writes the sheet of this number, from 0. Each comes once, in any order.
  virtual void addSheet(std::size_t number, const Sheet& sheet) = 0;

  // Writes the rest, when there are so many sheets. The file is not committed.
  virtual void finish(std::size_t sheetCount, const CellFormats& formats) = 0;
};

// Office Open XML (ECMA-376), and BIFF8 in a compound file. The file must outlive the writer, and
// nobody else may write to it.
std::unique_ptr<WorkbookWriter> makeXlsxWriter(OutputFile& file);
std::unique_ptr<WorkbookWriter> makeXlsWriter(OutputFile& file);

// "Sheet1" for number 0.
std::string sheetName(std::size_t number);

}  // namespace qor
