// The objects of a PDF file, written as they come: only their places are kept. Those that are no
// streams are packed together and compressed.
#pragma once

#include <cstdint>
#include <deque>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

#include "platform/pdf/stream_packer.h"

namespace qor {

class ByteSink;

// An object's number in the file.
using PdfId = std::int32_t;

// "12 0 R".
std::string pdfReference(PdfId id);

// "[12 0 R 13 0 R]".
std::string pdfList(std::span<const PdfId> ids);

// "<0C0D>".
std::string hexText(std::string_view bytes);

// A text string: PDFDocEncoding where ASCII will do, else UTF-16, in parentheses.
std::string pdfText(std::string_view utf8);

// A number with up to three decimals, the shortest way; values beyond 10^9 count as 10^9.
void appendNumber(std::string& out, double value);

// The same with all of so many decimals, for what needs more of them.
void appendNumber(std::string& out, double value, int decimals);

// "1 2.5 3".
std::string pdfNumbers(std::initializer_list<double> values);

class PdfFile {
 public:
  // Writes the header. The sink must live as long; what it throws comes through everywhere.
  explicit PdfFile(ByteSink& sink);
  PdfFile(const PdfFile&) = delete;
  PdfFile& operator=(const PdfFile&) = delete;

  // Long files may take a second processor.
  void allowBackground() { packer_.allowBackground(); }

  // The number of an object that is written later, or referred to before.
  PdfId reserve();

  // Objects wait for others to be packed with them.
  void writeObject(PdfId id, std::string_view body);
  PdfId addObject(std::string_view body);

  // `entries` are those of the dictionary beside length and filter. Compressed, or as it stands.
  void writeStream(PdfId id, std::string_view entries, std::string_view bytes);
  PdfId addStream(std::string_view entries, std::string_view bytes);
  void writePlainStream(PdfId id, std::string_view entries, std::string_view bytes);

  // The objects that still wait, and the table of all.
  void finish(PdfId catalog, PdfId information);

 private:
  // Where an object is: at a byte of the file, or as the nth of a pack. Long documents have a
  // million of them.
  class Place {
   public:
    Place() = default;
    static Place inFile(std::uint64_t byte) { return {byte, kUnpacked}; }
    static Place inPack(PdfId pack, std::uint64_t nth) {
      return {static_cast<std::uint64_t>(pack), nth};
    }

    bool packed() const { return nth() != kUnpacked; }
    std::uint64_t at() const { return value_ >> 16; }  // the byte, or the number of the pack
    std::uint64_t nth() const { return value_ & 0xFFFF; }

   private:
    static constexpr std::uint64_t kUnpacked = 0xFFFF;
    Place(std::uint64_t at, std::uint64_t nth) : value_(at << 16 | nth) {}

    std::uint64_t value_ = kUnpacked;
  };

  void place(PdfId id, Place place) { places_[static_cast<std::size_t>(id - 1)] = place; }
  void endPack();
  std::string identifier() const;  // of the file, as it is so far
  std::string tableRows(std::size_t first, std::size_t end) const;
  void write(std::string_view bytes);
  void writeRaw(PdfId id, std::string_view entries, std::string_view bytes);
  void writePacked(PdfId id, std::string_view entries, std::string_view packed);

  ByteSink& sink_;
  StreamPacker packer_;
  std::uint64_t position_ = 0;
  std::uint64_t hash_;        // of the streams, for the file's identifier
  std::deque<Place> places_;  // by number, from 1
  PdfId pack_ = 0;            // where objects are packed now, if they are
  std::uint64_t pack_size_ = 0;
  std::string pack_index_;
  std::string pack_objects_;
};

}  // namespace qor
