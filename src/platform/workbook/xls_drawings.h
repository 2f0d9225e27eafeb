// The pictures of an XLS workbook ([MS-ODRAW], [MS-XLS] 2.1.7.20.3): their files once for all
// sheets, and their places sheet by sheet.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/pictures/embedded_picture.h"
#include "platform/system/spool_file.h"
#include "platform/workbook/workbook_writer.h"

namespace qor {

class XlsDrawings {
 public:
  // Throws as SpoolFile, as all of its operations.
  explicit XlsDrawings(const std::string& beside) : files_(beside) {}

  std::size_t addPicture(const EmbeddedPicture& picture);

  // The records of a sheet's pictures, if it has any. A workbook has room for so many drawings
  // and picture files only: what is beyond is left out.
  void appendSheet(const Sheet& sheet, std::string& records);

  // The records of the workbook, when there are no more sheets, and how many bytes they have;
  // none where there are no pictures.
  std::uint64_t size() const;
  void writeTo(ByteSink& sink);

  std::int64_t leftOut() const { return left_out_; }

 private:
  // Shapes have numbers; each sheet has numbers of its own, by the thousand.
  struct Cluster {
    std::uint32_t drawing = 0;
    std::uint32_t shapes = 0;
  };

  std::uint32_t takeNumbers(std::uint32_t shapes);
  std::uint64_t groupSize() const;
  std::string groupHead() const;

  SpoolFile files_;
  std::uint32_t pictures_ = 0;
  std::uint32_t drawings_ = 0;
  std::uint32_t shapes_ = 0;
  std::int64_t left_out_ = 0;
  std::vector<Cluster> clusters_;
};

}  // namespace qor
