// Writing and reading bracket markup.
#include "export/pdf/pdf_markup.h"

#include <algorithm>
#include <cstdint>
#include <type_traits>

#include "base/byte_scan.h"
#include "base/text.h"
#include "document/item_visitor.h"
#include "document/vdata.h"
#include "document/vdocstr.h"

namespace qor {
namespace {

constexpr std::size_t kLongestName = 3;

// What records call the fields.
constexpr std::array<std::string_view, static_cast<std::size_t>(PdfField::count)> kNames = {
    "fn", "fs", "fc", "fb", "fi", "tl",  "tt",  "tr",  "tc", "ta", "tb", "th", "tv", "st", "gl",
    "gt", "gr", "gb", "gc", "pt", "bcv", "ist", "ifn", "il", "it", "ir", "ib", "ic", "iss"};

std::string_view nameOf(PdfField field) {
  return kNames[static_cast<std::size_t>(field)];
}

// Bytes of the report that would be marks are written as the escape and a letter.
constexpr char kEscape = 1;
constexpr char kFirstLetter = 'A';
constexpr std::string_view kReserved = "[]\n\f\1";

bool isReserved(char c) {
  return (c == '[') | (c == ']') | (c == '\n') | (c == '\f') | (c == kEscape);
}

// All of those and few others.
bool looksReserved(char c) {
  return (c == '[') | (c == ']') | (static_cast<unsigned char>(c) < ' ');
}

// A record being written.
class MarkupWriter {
 public:
  // With room for so much of the report, and the usual fields.
  explicit MarkupWriter(std::size_t room = 0) { record_.reserve(room + kRoomOfFields); }

  // Of the report, whatever it holds.
  void text(std::string_view value) {
    if (!holdsByteOf(value, looksReserved)) {
      record_.append(value);
      return;
    }
    for (const char c : value) {
      if (!isReserved(c)) {
        record_ += c;
        continue;
      }
      record_ += kEscape;
      record_ += static_cast<char>(kFirstLetter + static_cast<char>(kReserved.find(c)));
    }
  }

  void textField(PdfField field, std::string_view value) {
    open(field);
    text(value);
    close(field);
  }

  void field(PdfField field, std::string_view value) {
    open(field);
    record_.append(value);
    close(field);
  }

  template <class Number>
  void number(PdfField name, Number value) {
    if constexpr (std::is_floating_point_v<Number>) {
      std::string digits;
      appendDecimal(digits, value);
      field(name, digits);
    } else {
      field(name, std::to_string(value));
    }
  }

  std::string take() { return std::move(record_); }

 private:
  static constexpr std::size_t kRoomOfFields = 64;

  void open(PdfField field) { record_.append("[").append(nameOf(field)) += ':'; }
  void close(PdfField field) { record_.append(":").append(nameOf(field)) += ']'; }

  std::string record_;
};

void writeFont(const FontState& font, MarkupWriter& out) {
  out.textField(PdfField::fontName, font.LogFont.faceName());
  out.number(PdfField::fontSize, font.Height);
  out.number(PdfField::fontColor, static_cast<std::uint32_t>(font.Color));
  if (font.LogFont.Weight >= kBoldWeight) out.field(PdfField::fontBold, "1");
  if (font.LogFont.Italic == 1) out.field(PdfField::fontItalic, "1");
}

std::string recordOf(const VData_Text& text, bool overprint) {
  MarkupWriter out(text.Text.size());
  const bool placed = text.offCorner();
  if (!placed) out.text(text.Text);
  writeFont(*text.Font, out);
  if (overprint) out.number(PdfField::textLeft, text.Left);
  if (!placed) return out.take();
  out.number(PdfField::textLeft, text.Left);
  out.number(PdfField::textTop, text.Top);
  out.number(PdfField::textAngle, text.Font->LogFont.Escapement);
  out.textField(PdfField::textContent, text.Text);
  if (text.Right == 0 || text.Bottom == 0) return out.take();
  out.number(PdfField::textRight, text.Right);
  out.number(PdfField::textBottom, text.Bottom);
  out.number(PdfField::textAcross, text.AlignH);
  out.number(PdfField::textAlong, text.AlignV);
  return out.take();
}

void writeBox(const VData_Shape& shape, MarkupWriter& out) {
  out.number(PdfField::boxLeft, shape.Left);
  out.number(PdfField::boxTop, shape.Top);
  out.number(PdfField::boxRight, shape.Right);
  out.number(PdfField::boxBottom, shape.Bottom);
  out.number(PdfField::boxColor, static_cast<std::uint32_t>(shape.PenColor));
}

std::string recordOf(const VData_Shape& shape) {
  MarkupWriter out;
  out.number(PdfField::shapeType, shape.ShapeType);
  writeBox(shape, out);
  out.number(PdfField::penType, shape.PenType);
  return out.take();
}

std::string recordOf(const VData_BarCode& code) {
  MarkupWriter out;
  out.textField(PdfField::barcodeValue, code.Value);
  writeBox(code, out);
  return out.take();
}

std::string recordOf(const VData_Image& image) {
  MarkupWriter out;
  out.number(PdfField::imageType, image.ShapeType);
  out.textField(PdfField::imageFile, image.FileName);
  out.number(PdfField::imageLeft, image.Left);
  out.number(PdfField::imageTop, image.Top);
  out.number(PdfField::imageRight, image.Right);
  out.number(PdfField::imageBottom, image.Bottom);
  out.number(PdfField::imageColor, static_cast<std::uint32_t>(image.PenColor));
  out.number(PdfField::imageStretch, image.ImageStretch);
  return out.take();
}

class RecordTeller : public ItemVisitor {
 public:
  RecordTeller(std::vector<std::string>& records, bool overprint)
      : records_(records), overprint_(overprint) {}

  void text(VData_Text& text) override { records_.push_back(recordOf(text, overprint_)); }
  void shape(VData_Shape& shape) override { records_.push_back(recordOf(shape)); }
  void image(VData_Image& image) override { records_.push_back(recordOf(image)); }
  void barcode(VData_BarCode& code) override { records_.push_back(recordOf(code)); }

 private:
  std::vector<std::string>& records_;
  bool overprint_;
};

// A name as a number.
constexpr std::uint32_t numberOf(std::string_view name) {
  std::uint32_t number = 0;
  for (const char c : name) number = number << 8U | static_cast<unsigned char>(c);
  return number;
}

constexpr auto kNameNumbers = [] {
  std::array<std::uint32_t, kNames.size()> numbers{};
  std::transform(kNames.begin(), kNames.end(), numbers.begin(), numberOf);
  return numbers;
}();

// The field that starts with the bracket here, or count.
PdfField fieldAt(std::string_view text) {
  const auto colon = text.substr(0, kLongestName + 2).find(':');
  if (colon == std::string_view::npos) return PdfField::count;
  const std::uint32_t number = numberOf(text.substr(1, colon - 1));
  const auto found = std::find(kNameNumbers.begin(), kNameNumbers.end(), number);
  return static_cast<PdfField>(found - kNameNumbers.begin());
}

// The value of a field whose marks frame it; empty where the second one is missing.
std::string_view valueOf(std::string_view text, std::string_view name) {
  std::array<char, kLongestName + 2> end{':'};
  name.copy(end.data() + 1, name.size());
  end[name.size() + 1] = ']';
  text.remove_prefix(name.size() + 2);
  const auto last = text.find(std::string_view(end.data(), name.size() + 2));
  return last == std::string_view::npos ? std::string_view() : text.substr(0, last);
}

}  // namespace

void LineToMarkup(const VDocStr& line, PdfLines& lines, std::size_t index) {
  std::vector<std::string>& records = lines[index];
  const std::size_t first = records.size();
  const bool overprint = line.Overprint == 1 && line.LineFeeds == 0;
  RecordTeller teller(records, overprint);
  line.tell(teller);
  if (records.size() > first) records[first].append(records.size() - first, '\n');
}

std::string_view asReported(std::string_view value, std::string& buffer) {
  if (!holdsByteOf(value, [](char c) { return c == kEscape; })) return value;
  buffer.clear();
  for (std::size_t i = 0; i < value.size(); ++i)
    buffer += value[i] == kEscape ? kReserved[static_cast<std::size_t>(value[++i] - kFirstLetter)]
                                  : value[i];
  return buffer;
}

MarkupRecord::MarkupRecord(std::string_view record) : whole_(record) {
  for (auto place = record.find('['); place != std::string_view::npos;
       place = record.find('[', place + 1)) {
    const PdfField field = fieldAt(record.substr(place));
    const auto number = static_cast<std::size_t>(field);
    if (field == PdfField::count || has_[number]) continue;
    has_[number] = true;
    values_[number] = valueOf(record.substr(place), nameOf(field));
    if (field == PdfField::fontName) plain_text_ = record.substr(0, place);
  }
}

}  // namespace qor
