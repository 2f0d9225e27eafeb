// Writes a plain report of any size to the standard output, always the same for the same arguments:
//   make_report PAGES [--cyrillic]
//   make_report --bytes N [--cyrillic]    ends with the first whole page that reaches N bytes
// A page has 59 lines of 78 columns ended by CR LF, and a form feed with CR LF behind it.
#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>
#include <string_view>
#include <system_error>

namespace {

using Text = std::string_view;

constexpr std::size_t kColumns = 78;
constexpr std::uint64_t kRowsPerPage = 52;
constexpr std::size_t kBufferBytes = std::size_t{1} << 20U;

struct Words {
  Text title, heads, page, total;
  std::array<Text, 8> goods;
  std::array<Text, 4> units;
};

constexpr Words kLatin{
    "INVOICE OF GOODS DELIVERED",
    "   No.  Article  Description                  Unit     Qty     Price    Amount",
    "Page",
    "Total of the page",
    {"Hex bolt, zinc plated", "Threaded rod, 1 m", "Masonry drill, long", "Sealant, clear",
     "Angle bracket, steel", "Work gloves, leather", "Cutting disc, thin", "Wood screw, brass"},
    {"box", "piece", "pair", "roll"}};

// The same words in Russian, in code page 866.
constexpr Words kCyrillic{
    "\x8D\x80\x8A\x8B\x80\x84\x8D\x80\x9F \x8D\x80 \x8E\x92\x8F\x93\x91\x8A",
    "     \xFC  \x80\xE0\xE2\xA8\xAA\xE3\xAB  \x8D\xA0\xA8\xAC\xA5\xAD\xAE\xA2\xA0\xAD\xA8\xA5     "
    "            \x85\xA4.     \x8A-\xA2\xAE      \x96\xA5\xAD\xA0     \x91\xE3\xAC\xAC\xA0",
    "\x8B\xA8\xE1\xE2",
    "\x88\xE2\xAE\xA3\xAE \xAF\xAE \xAB\xA8\xE1\xE2\xE3",
    {"\x81\xAE\xAB\xE2 \xAE\xE6\xA8\xAD\xAA\xAE\xA2\xA0\xAD\xAD\xEB\xA9",
     "\x98\xAF\xA8\xAB\xEC\xAA\xA0 \xE0\xA5\xA7\xEC\xA1\xAE\xA2\xA0\xEF",
     "\x91\xA2\xA5\xE0\xAB\xAE \xA4\xAB\xA8\xAD\xAD\xAE\xA5", "\x83\xA5\xE0\xAC\xA5\xE2\xA8\xAA",
     "\x93\xA3\xAE\xAB\xAE\xAA \xE1\xE2\xA0\xAB\xEC\xAD\xAE\xA9",
     "\x8F\xA5\xE0\xE7\xA0\xE2\xAA\xA8", "\x84\xA8\xE1\xAA \xAE\xE2\xE0\xA5\xA7\xAD\xAE\xA9",
     "\x98\xE3\xE0\xE3\xAF \xAB\xA0\xE2\xE3\xAD\xAD\xEB\xA9"},
    {"\xE8\xE2.", "\xAA\xAE\xE0.", "\xAF\xA0\xE0\xA0", "\xE0\xE3\xAB."}};

struct Options {
  std::uint64_t pages = UINT64_MAX;
  std::uint64_t bytes = UINT64_MAX;
  const Words* words = &kLatin;
};

// A line of blanks with its line end; fields are written into it at fixed columns.
class Line {
 public:
  explicit Line(char filler = ' ') {
    bytes_.fill(filler);
    bytes_[kColumns] = '\r';
    bytes_[kColumns + 1] = '\n';
  }
  void left(std::size_t column, Text field) {
    std::memcpy(&bytes_.at(column), field.data(), std::min(field.size(), kColumns - column));
  }
  // The last digit stands in the column before `end`.
  void right(std::size_t end, std::uint64_t value) {
    do {
      bytes_[--end] = static_cast<char>('0' + value % 10);
      value /= 10;
    } while (value != 0 && end != 0);
  }
  void money(std::size_t end, std::uint64_t cents) {
    right(end, cents % 10);
    right(end - 1, cents / 10 % 10);
    bytes_[end - 3] = '.';
    right(end - 3, cents / 100);
  }
  Text text() const { return {bytes_.data(), bytes_.size()}; }

 private:
  std::array<char, kColumns + 2> bytes_;
};

class Report {
 public:
  explicit Report(const Words& words) : words_(words) {
    buffer_.reserve(kBufferBytes + kBufferBytes / 8);
  }

  std::uint64_t bytes() const { return sent_ + buffer_.size(); }

  bool page(std::uint64_t number) {
    head(number);
    std::uint64_t total = 0;
    for (std::uint64_t row = 1; row <= kRowsPerPage; ++row)
      total += item((number - 1) * kRowsPerPage + row);
    foot(total);
    buffer_ += "\f\r\n";
    return buffer_.size() < kBufferBytes || flush();
  }

  bool flush() {
    const bool complete = std::fwrite(buffer_.data(), 1, buffer_.size(), stdout) == buffer_.size();
    sent_ += buffer_.size();
    buffer_.clear();
    return complete;
  }

 private:
  void add(const Line& line) { buffer_ += line.text(); }

  void head(std::uint64_t number) {
    Line title;
    title.left(2, words_.title);
    title.left(62, words_.page);
    title.right(kColumns, number);
    Line heads;
    heads.left(0, words_.heads);
    add(title);
    add(Line{});
    add(heads);
    add(Line{'-'});
  }

  // Adds one row and returns its amount.
  std::uint64_t item(std::uint64_t number) {
    const std::uint32_t choice = random();
    const std::uint64_t quantity = choice / 64 % 96 + 1;
    const std::uint64_t price = random() % 99000 + 95;
    Line line;
    line.right(6, number);
    line.left(8, "AR-");
    line.right(15, 1000 + choice / 8192 % 9000);
    line.left(17, words_.goods[choice % 8]);
    line.left(46, words_.units[choice / 8 % 4]);
    line.right(58, quantity);
    line.money(68, price);
    line.money(kColumns, quantity * price);
    add(line);
    return quantity * price;
  }

  void foot(std::uint64_t total) {
    Line line;
    line.left(17, words_.total);
    line.money(kColumns, total);
    add(Line{'-'});
    add(line);
    add(Line{'='});
  }

  // The next number of a fixed sequence.
  std::uint32_t random() {
    state_ = state_ * 6364136223846793005U + 1442695040888963407U;
    return static_cast<std::uint32_t>(state_ >> 33U);
  }

  const Words& words_;
  std::string buffer_;
  std::uint64_t sent_ = 0;
  std::uint64_t state_ = 857;
};

bool readNumber(Text text, std::uint64_t& value) {
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  return error == std::errc{} && stop == end;
}

bool readOptions(int count, char** values, Options& options) {
  bool sized = false;
  for (int i = 1; i < count; ++i) {
    if (Text(values[i]) == "--cyrillic") {
      options.words = &kCyrillic;
      continue;
    }
    const bool inBytes = Text(values[i]) == "--bytes" && ++i < count;
    if (i == count || !readNumber(values[i], inBytes ? options.bytes : options.pages)) return false;
    sized = true;
  }
  return sized;
}

bool writeReport(const Options& options) {
  Report report(*options.words);
  for (std::uint64_t page = 1; page <= options.pages && report.bytes() < options.bytes; ++page) {
    if (!report.page(page)) return false;
  }
  return report.flush() && std::fflush(stdout) == 0;
}

}  // namespace

int main(int count, char** values) {
  Options options;
  if (!readOptions(count, values, options)) {
    std::fputs("usage: make_report PAGES|--bytes N [--cyrillic] > file\n", stderr);
    return 2;
  }
  if (writeReport(options)) return 0;
  std::perror("make_report");
  return 1;
}
