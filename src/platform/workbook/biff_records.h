// Records of BIFF8 workbooks ([MS-XLS] 2.3 and 2.4): a type, a length, and at most 8,224 bytes.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/system/byte_sink.h"
#include "platform/workbook/little_endian.h"

namespace qor {

inline constexpr std::size_t kMostRecordBytes = 8224;
inline constexpr std::size_t kRecordHeader = 4;

enum BiffRecord : std::uint16_t {
  kBiffEof = 0x000A,
  kBiffDateMode = 0x0022,
  kBiffFont = 0x0031,
  kBiffContinue = 0x003C,
  kBiffWindow1 = 0x003D,
  kBiffCodePage = 0x0042,
  kBiffDefaultColumnWidth = 0x0055,
  kBiffObject = 0x005D,
  kBiffColumn = 0x007D,
  kBiffBoundSheet = 0x0085,
  kBiffCellFormat = 0x00E0,
  kBiffDrawingGroup = 0x00EB,
  kBiffDrawing = 0x00EC,
  kBiffStrings = 0x00FC,
  kBiffTextCell = 0x00FD,
  kBiffDimensions = 0x0200,
  kBiffNumberCell = 0x0203,
  kBiffRow = 0x0208,
  kBiffDefaultRowHeight = 0x0225,
  kBiffWindow2 = 0x023E,
  kBiffStyle = 0x0293,
  kBiffNumberFormat = 0x041E,
  kBiffBof = 0x0809
};

void appendRecord(BiffRecord type, const LittleEndian& body, std::string& bytes);

// UTF-16 of a text; `wide` tells whether a character needs its second byte.
struct BiffText {
  explicit BiffText(std::string_view utf8);

  std::u16string units;
  bool wide;

  // A flag, and the characters in one or two bytes each.
  void appendTo(LittleEndian& body) const;
  // The units from one place up to another.
  void appendUnits(std::size_t from, std::size_t to, LittleEndian& body) const;
};

// Splits bytes, whose number is known, over a record of a type and what continues it.
class SplitRecord : public ByteSink {
 public:
  SplitRecord(ByteSink& sink, BiffRecord type, std::uint64_t size);

  void write(std::string_view bytes) override;

  // Of the records that hold so many bytes, with their headers.
  static std::uint64_t wholeSize(std::uint64_t size);

 private:
  void startRecord();

  ByteSink& sink_;
  BiffRecord type_;
  std::uint64_t left_;       // of all bytes
  std::size_t room_ = 0;     // in the record
  std::size_t records_ = 0;  // that were started
};

}  // namespace qor
