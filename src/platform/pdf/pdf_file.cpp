// Objects, streams and the table of objects (ISO 32000-1, 7.3 to 7.5).
#include "platform/pdf/pdf_file.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>

#include "platform/system/byte_sink.h"
#include "platform/system/text_encoding.h"

namespace qor {
namespace {

constexpr double kLargest = 1e9;

// Whoever looks for one object of a pack has to unpack all of them.
constexpr std::uint64_t kMostPacked = 512;
constexpr std::size_t kLargestPack = 32768;  // bytes, as far as the compressor looks back

// Fowler, Noll and Vo's hash, eight bytes at a time.
constexpr std::uint64_t kHashStart = 0xCBF29CE484222325;
constexpr std::uint64_t kHashPrime = 0x100000001B3;

std::string utf16(std::string_view utf8) {
  std::string bytes = "\xFE\xFF";
  for (const char16_t unit : utf16FromUtf8(utf8)) {
    bytes += static_cast<char>(unit >> 8);
    bytes += static_cast<char>(unit);
  }
  return bytes;
}

// A row of the table of objects (7.5.8): a kind, a place of six bytes and, of packed objects, which
// one it is.
constexpr std::size_t kTableRow = 9;
using TableRow = std::array<unsigned char, kTableRow>;
enum TableKind : unsigned char { kFree, kPlain, kPacked };

TableRow tableRow(TableKind kind, std::uint64_t at, std::uint64_t nth) {
  TableRow row{kind};
  for (std::size_t i = 6; i > 0; --i, at >>= 8) row[i] = static_cast<unsigned char>(at);
  row[7] = static_cast<unsigned char>(nth >> 8);
  row[8] = static_cast<unsigned char>(nth);
  return row;
}

constexpr std::size_t kRowsOfPart = 65536;

}  // namespace

std::string pdfReference(PdfId id) {
  return std::to_string(id) + " 0 R";
}

std::string pdfList(std::span<const PdfId> ids) {
  std::string text = "[";
  for (const PdfId id : ids) text += (text.size() == 1 ? "" : " ") + pdfReference(id);
  return text + "]";
}

std::string hexText(std::string_view bytes) {
  std::string text = "<";
  for (const char byte : bytes) {
    char digits[3];
    std::snprintf(digits, sizeof digits, "%02X", static_cast<unsigned char>(byte));
    text += digits;
  }
  return text + ">";
}

std::string pdfText(std::string_view utf8) {
  const auto isPlain = [](char c) {
    return c >= ' ' && c < 0x7F && c != '(' && c != ')' && c != '\\';
  };
  if (!std::all_of(utf8.begin(), utf8.end(), isPlain)) return hexText(utf16(utf8));
  return "(" + std::string(utf8) + ")";
}

void appendNumber(std::string& out, double value) {
  if (!(std::abs(value) <= kLargest)) value = std::copysign(kLargest, value);
  const long long thousandths = std::llround(value * 1000);
  std::array<char, 24> digits;
  const auto appendDigits = [&](long long number) {
    const auto end = std::to_chars(digits.begin(), digits.end(), number).ptr;
    out.append(digits.begin(), end);
  };
  if (thousandths < 0) out += '-';
  const long long magnitude = std::abs(thousandths);
  appendDigits(magnitude / 1000);
  if (const long long rest = magnitude % 1000; rest != 0) {
    out += '.';
    const char decimals[] = {static_cast<char>('0' + rest / 100),
                             static_cast<char>('0' + rest / 10 % 10),
                             static_cast<char>('0' + rest % 10)};
    out.append(decimals, rest % 10 != 0 ? 3 : rest % 100 != 0 ? 2 : 1);
  }
}

void appendNumber(std::string& out, double value, int decimals) {
  if (!(std::abs(value) <= kLargest)) value = std::copysign(kLargest, value);
  std::array<char, 40> digits;
  const auto end =
      std::to_chars(digits.begin(), digits.end(), value, std::chars_format::fixed, decimals).ptr;
  out.append(digits.begin(), end);
}

std::string pdfNumbers(std::initializer_list<double> values) {
  std::string text;
  for (const double value : values) {
    if (!text.empty()) text += ' ';
    appendNumber(text, value);
  }
  return text;
}

PdfFile::PdfFile(ByteSink& sink)
    : sink_(sink),
      packer_([this](PdfId id, std::string_view entries, std::string_view packed) {
        writePacked(id, entries, packed);
      }),
      hash_(kHashStart) {
  // The second line tells programs that move files that this one isn't text.
  write("%PDF-1.7\n%\xE2\xE3\xCF\xD3\n");
}

void PdfFile::write(std::string_view bytes) {
  sink_.write(bytes);
  position_ += bytes.size();
}

PdfId PdfFile::reserve() {
  places_.emplace_back();
  return static_cast<PdfId>(places_.size());
}

void PdfFile::writeObject(PdfId id, std::string_view body) {
  if (pack_ == 0) pack_ = reserve();
  place(id, Place::inPack(pack_, pack_size_));
  pack_index_.append(std::to_string(id)) += ' ';
  pack_index_.append(std::to_string(pack_objects_.size())) += ' ';
  pack_objects_.append(body) += '\n';
  if (++pack_size_ == kMostPacked || pack_objects_.size() >= kLargestPack) endPack();
}

void PdfFile::endPack() {
  if (pack_ == 0) return;
  const std::string first = std::to_string(pack_index_.size());
  writeStream(pack_, "/Type/ObjStm/N " + std::to_string(pack_size_) + "/First " + first,
              pack_index_ + pack_objects_);
  pack_ = 0;
  pack_size_ = 0;
  pack_index_.clear();
  pack_objects_.clear();
}

PdfId PdfFile::addObject(std::string_view body) {
  const PdfId id = reserve();
  writeObject(id, body);
  return id;
}

void PdfFile::writeRaw(PdfId id, std::string_view entries, std::string_view bytes) {
  for (std::size_t i = 0; i + 8 <= bytes.size(); i += 8) {
    std::uint64_t word = 0;
    std::copy_n(bytes.data() + i, 8, reinterpret_cast<char*>(&word));
    hash_ = (hash_ ^ word) * kHashPrime;
  }
  place(id, Place::inFile(position_));
  write(std::to_string(id) + " 0 obj\n<<" + std::string(entries) + "/Length " +
        std::to_string(bytes.size()) + ">>\nstream\n");
  write(bytes);
  write("\nendstream\nendobj\n");
}

void PdfFile::writePacked(PdfId id, std::string_view entries, std::string_view packed) {
  writeRaw(id, std::string(entries) + "/Filter/FlateDecode", packed);
}

void PdfFile::writePlainStream(PdfId id, std::string_view entries, std::string_view bytes) {
  packer_.flush();
  writeRaw(id, entries, bytes);
}

void PdfFile::writeStream(PdfId id, std::string_view entries, std::string_view bytes) {
  packer_.add(id, entries, bytes);
}

PdfId PdfFile::addStream(std::string_view entries, std::string_view bytes) {
  const PdfId id = reserve();
  writeStream(id, entries, bytes);
  return id;
}

// Each row is told by its difference from the one above, which leaves little of them (PNG's filter
// "up").
std::string PdfFile::tableRows(std::size_t first, std::size_t end) const {
  constexpr char kUp = 2;
  std::string rows;
  rows.reserve((end - first) * (kTableRow + 1));
  TableRow above{};
  for (std::size_t number = first; number < end; ++number) {
    const Place place = number == 0 ? Place() : places_[number - 1];
    const TableRow row = number == 0      ? tableRow(kFree, 0, 0xFFFF)
                         : place.packed() ? tableRow(kPacked, place.at(), place.nth())
                                          : tableRow(kPlain, place.at(), 0);
    rows += kUp;
    for (std::size_t i = 0; i < kTableRow; ++i) rows += static_cast<char>(row[i] - above[i]);
    above = row;
  }
  return rows;
}

std::string PdfFile::identifier() const {
  char text[33];
  std::snprintf(text, sizeof text, "%016llX%016llX", static_cast<unsigned long long>(hash_),
                static_cast<unsigned long long>(position_));
  return text;
}

// The table of long documents has parts, each of which leads to the one before it. They are objects
// too, and stand in the last one.
void PdfFile::finish(PdfId catalog, PdfId information) {
  endPack();
  packer_.flush();
  const std::size_t parts = places_.size() / kRowsOfPart + 1;
  const std::size_t size = places_.size() + parts + 1;
  const std::string common = "/Type/XRef/W[1 6 2]/DecodeParms<</Predictor 12/Columns 9>>/Size " +
                             std::to_string(size) + "/Root " + pdfReference(catalog) + "/Info " +
                             pdfReference(information) + "/ID[<" + identifier() + "><" +
                             identifier() + ">]";
  std::string start;
  for (std::size_t part = 0; part < parts; ++part) {
    const std::size_t first = part * kRowsOfPart;
    const std::size_t end = part + 1 < parts ? first + kRowsOfPart : size;
    const PdfId id = reserve();
    place(id, Place::inFile(position_));
    const std::string before = start.empty() ? "" : "/Prev " + start;
    start = std::to_string(position_);
    writeStream(id,
                common + before + "/Index[" + std::to_string(first) + " " +
                    std::to_string(end - first) + "]",
                tableRows(first, end));
    packer_.flush();
  }
  write("startxref\n" + start + "\n%%EOF\n");
}

}  // namespace qor
