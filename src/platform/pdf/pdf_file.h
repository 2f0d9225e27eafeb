// The objects of a PDF file, written as they come: only their places are kept.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/system/compressor.h"

namespace qor {

class ByteSink;

// An object's number in the file.
using PdfId = std::int32_t;

// "12 0 R".
std::string pdfReference(PdfId id);

// A text string: PDFDocEncoding where ASCII will do, else UTF-16, in parentheses.
std::string pdfText(std::string_view utf8);

// A number with up to three decimals, the shortest way; values beyond 10^9 count as 10^9.
void appendNumber(std::string& out, double value);

class PdfFile {
 public:
  // Writes the header. The sink must live as long; what it throws comes through everywhere.
  explicit PdfFile(ByteSink& sink);

  // The number of an object that is written later, or referred to before.
  PdfId reserve();

  void writeObject(PdfId id, std::string_view body);
  PdfId addObject(std::string_view body);

  // `entries` are those of the dictionary beside length and filter. Compressed, or as it stands.
  void writeStream(PdfId id, std::string_view entries, std::string_view bytes);
  PdfId addStream(std::string_view entries, std::string_view bytes);
  void writePlainStream(PdfId id, std::string_view entries, std::string_view bytes);

  // The table of objects and the trailer. Throws FileError beyond ten billion bytes.
  void finish(PdfId catalog, PdfId information);

 private:
  void beginObject(PdfId id);
  void write(std::string_view bytes);

  ByteSink& sink_;
  Compressor compressor_;
  std::uint64_t position_ = 0;
  std::uint64_t hash_;  // of the streams, for the file's identifier
  std::vector<std::uint64_t> places_;
};

}  // namespace qor
