// Building records.
#include "platform/workbook/biff_records.h"

#include <algorithm>

#include "platform/system/text_encoding.h"

namespace qor {
namespace {

constexpr std::size_t kRepeatedHeads = 2;  // of drawings; what is behind them continues

}  // namespace

void appendRecord(BiffRecord type, const LittleEndian& body, std::string& bytes) {
  LittleEndian header;
  header.u16(type).u16(static_cast<std::uint32_t>(body.size()));
  bytes.append(header.bytes()).append(body.bytes());
}

BiffText::BiffText(std::string_view utf8)
    : units(utf16FromUtf8(utf8)),
      wide(std::any_of(units.begin(), units.end(), [](char16_t unit) { return unit > 0xFF; })) {
}

void BiffText::appendTo(LittleEndian& body) const {
  body.u8(wide ? 1 : 0);
  appendUnits(0, units.size(), body);
}

void BiffText::appendUnits(std::size_t from, std::size_t to, LittleEndian& body) const {
  for (std::size_t i = from; i < to; ++i) wide ? body.u16(units[i]) : body.u8(units[i]);
}

SplitRecord::SplitRecord(ByteSink& sink, BiffRecord type, std::uint64_t size)
    : sink_(sink), type_(type), left_(size) {
}

std::uint64_t SplitRecord::wholeSize(std::uint64_t size) {
  return size + (size + kMostRecordBytes - 1) / kMostRecordBytes * kRecordHeader;
}

void SplitRecord::startRecord() {
  room_ = static_cast<std::size_t>(std::min<std::uint64_t>(left_, kMostRecordBytes));
  left_ -= room_;
  LittleEndian header;
  header.u16(records_++ < kRepeatedHeads ? type_ : kBiffContinue);
  header.u16(static_cast<std::uint32_t>(room_));
  sink_.write(header.bytes());
}

void SplitRecord::write(std::string_view bytes) {
  while (!bytes.empty()) {
    if (room_ == 0) startRecord();
    const std::size_t part = std::min(room_, bytes.size());
    sink_.write(bytes.substr(0, part));
    bytes.remove_prefix(part);
    room_ -= part;
  }
}

}  // namespace qor
