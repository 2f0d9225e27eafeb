// Strings in records: only their characters may go on in the next one ([MS-XLS] 2.5.293).
#include "platform/workbook/xls_strings.h"

#include <algorithm>
#include <functional>

namespace qor {
namespace {

constexpr std::size_t kCounts = 8;    // bytes at the start of the first record
constexpr std::size_t kTextHead = 3;  // length and flag
constexpr std::size_t kRecentTexts = 1024;

bool isAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

}  // namespace

XlsStrings::XlsStrings(const std::string& beside) : spool_(beside), recent_(kRecentTexts) {
  record_.zeros(kCounts);
}

std::uint32_t XlsStrings::numberOf(std::string_view utf8) {
  Recent& recent = recent_[std::hash<std::string_view>()(utf8) % kRecentTexts];
  ++uses_;
  if (!utf8.empty() && recent.text == utf8) return recent.number;
  recent.text = utf8;
  recent.number = count_++;
  isAscii(utf8) ? addAscii(utf8) : add(BiffText(utf8));
  return recent.number;
}

void XlsStrings::startText(std::size_t length, bool wide) {
  if (record_.size() + kTextHead > kMostRecordBytes) endRecord();
  record_.u16(static_cast<std::uint32_t>(length)).u8(wide ? 1 : 0);
}

// How many characters the record still takes; a new one where it takes none.
std::size_t XlsStrings::room(bool wide) {
  const std::size_t unit = wide ? 2 : 1;
  if (record_.size() + unit > kMostRecordBytes) {
    endRecord();
    record_.u8(wide ? 1 : 0);
  }
  return (kMostRecordBytes - record_.size()) / unit;
}

void XlsStrings::addAscii(std::string_view text) {
  startText(text.size(), false);
  while (!text.empty()) {
    const std::string_view part = text.substr(0, room(false));
    record_.text(part);
    text.remove_prefix(part.size());
  }
}

void XlsStrings::add(const BiffText& text) {
  startText(text.units.size(), text.wide);
  for (std::size_t done = 0; done < text.units.size();) {
    const std::size_t next = std::min(text.units.size(), done + room(text.wide));
    text.appendUnits(done, next, record_);
    done = next;
  }
}

void XlsStrings::endRecord() {
  std::string bytes;
  appendRecord(first_length_ == 0 ? kBiffStrings : kBiffContinue, record_, bytes);
  if (first_length_ == 0) first_length_ = record_.size();
  spool_.write(bytes);
  record_.clear();
}

std::uint64_t XlsStrings::size() {
  if (record_.size() > 0) endRecord();
  return spool_.size();
}

void XlsStrings::writeTo(ByteSink& sink) {
  size();
  LittleEndian head;
  head.u16(kBiffStrings).u16(static_cast<std::uint32_t>(first_length_)).u32(uses_).u32(count_);
  sink.write(head.bytes());
  spool_.copyTo(sink, head.size());
}

}  // namespace qor
