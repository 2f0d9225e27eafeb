// Objects, streams and the table at the end (ISO 32000-1, 7.3 to 7.5).
#include "platform/pdf/pdf_file.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>

#include "base/errors.h"
#include "platform/system/byte_sink.h"
#include "platform/system/text_encoding.h"

namespace qor {
namespace {

constexpr int kCompressionLevel = 6;
constexpr double kLargest = 1e9;
constexpr std::uint64_t kFarthest = 9'999'999'999;  // the table has ten digits for a place

// Fowler, Noll and Vo's hash, eight bytes at a time.
constexpr std::uint64_t kHashStart = 0xCBF29CE484222325;
constexpr std::uint64_t kHashPrime = 0x100000001B3;

std::string hexText(std::string_view bytes) {
  std::string text = "<";
  for (const char byte : bytes) {
    char digits[3];
    std::snprintf(digits, sizeof digits, "%02X", static_cast<unsigned char>(byte));
    text += digits;
  }
  return text + ">";
}

std::string utf16(std::string_view utf8) {
  std::string bytes = "\xFE\xFF";
  for (const char16_t unit : utf16FromUtf8(utf8)) {
    bytes += static_cast<char>(unit >> 8);
    bytes += static_cast<char>(unit);
  }
  return bytes;
}

}  // namespace

std::string pdfReference(PdfId id) {
  return std::to_string(id) + " 0 R";
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

PdfFile::PdfFile(ByteSink& sink) : sink_(sink), compressor_(kCompressionLevel), hash_(kHashStart) {
  // The second line tells programs that move files that this one isn't text.
  write("%PDF-1.7\n%\xE2\xE3\xCF\xD3\n");
}

void PdfFile::write(std::string_view bytes) {
  sink_.write(bytes);
  position_ += bytes.size();
}

PdfId PdfFile::reserve() {
  places_.push_back(0);
  return static_cast<PdfId>(places_.size());
}

void PdfFile::beginObject(PdfId id) {
  places_[static_cast<std::size_t>(id - 1)] = position_;
  write(std::to_string(id) + " 0 obj\n");
}

void PdfFile::writeObject(PdfId id, std::string_view body) {
  beginObject(id);
  write(std::string(body) + "\nendobj\n");
}

PdfId PdfFile::addObject(std::string_view body) {
  const PdfId id = reserve();
  writeObject(id, body);
  return id;
}

void PdfFile::writePlainStream(PdfId id, std::string_view entries, std::string_view bytes) {
  for (std::size_t i = 0; i + 8 <= bytes.size(); i += 8) {
    std::uint64_t word = 0;
    std::copy_n(bytes.data() + i, 8, reinterpret_cast<char*>(&word));
    hash_ = (hash_ ^ word) * kHashPrime;
  }
  beginObject(id);
  write("<<" + std::string(entries) + "/Length " + std::to_string(bytes.size()) + ">>\nstream\n");
  write(bytes);
  write("\nendstream\nendobj\n");
}

void PdfFile::writeStream(PdfId id, std::string_view entries, std::string_view bytes) {
  writePlainStream(id, std::string(entries) + "/Filter/FlateDecode", compressor_.zlib(bytes));
}

PdfId PdfFile::addStream(std::string_view entries, std::string_view bytes) {
  const PdfId id = reserve();
  writeStream(id, entries, bytes);
  return id;
}

void PdfFile::finish(PdfId catalog, PdfId information) {
  const std::uint64_t table = position_;
  if (table > kFarthest) throw SystemError("the report is too long for a PDF file");
  const std::string size = std::to_string(places_.size() + 1);
  write("xref\n0 " + size + "\n0000000000 65535 f \n");
  for (const std::uint64_t place : places_) {
    char row[32];
    std::snprintf(row, sizeof row, "%010llu 00000 n \n", static_cast<unsigned long long>(place));
    write(row);
  }
  char identifier[33];
  std::snprintf(identifier, sizeof identifier, "%016llX%016llX",
                static_cast<unsigned long long>(hash_), static_cast<unsigned long long>(table));
  const std::string id = std::string("<") + identifier + ">";
  write("trailer\n<</Size " + size + "/Root " + pdfReference(catalog) + "/Info " +
        pdfReference(information) + "/ID[" + id + id + "]>>\nstartxref\n" + std::to_string(table) +
        "\n%%EOF\n");
}

}  // namespace qor
