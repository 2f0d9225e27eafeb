// The texts of all cells of an XLS workbook: cells name them by number. They stand before the cells
// in the file and are known only behind them, so they wait in a spool.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/system/spool_file.h"
#include "platform/workbook/biff_records.h"

namespace qor {

class XlsStrings {
 public:
  // Throws as SpoolFile, as all of its operations.
  explicit XlsStrings(const std::string& beside);

  // A text that was met lately has its number again.
  std::uint32_t numberOf(std::string_view utf8);

  // The records, when there are no more texts; and how many bytes they have.
  std::uint64_t size();
  void writeTo(ByteSink& sink);

 private:
  // A text met before; as likely as not it comes again.
  struct Recent {
    std::string text;
    std::uint32_t number = 0;
  };

  void addAscii(std::string_view text);
  void add(const BiffText& text);
  void startText(std::size_t length, bool wide);
  std::size_t room(bool wide);
  void endRecord();

  SpoolFile spool_;
  LittleEndian record_;
  std::size_t first_length_ = 0;  // of the first record, 0 until it ends
  std::uint32_t uses_ = 0;
  std::uint32_t count_ = 0;
  std::vector<Recent> recent_;
};

}  // namespace qor
