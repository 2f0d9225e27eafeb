#include "support/report_reader.h"

#include <sstream>

namespace qor::test {
namespace {

std::string describe(const VData_Text& text) {
  std::ostringstream out;
  out << "\"" << text.Text << "\"";
  if (text.HasPosition) out << " at " << text.Left << "," << text.Top;
  if (text.Right != 0 || text.Bottom != 0) out << " to " << text.Right << "," << text.Bottom;
  if (text.AlignH != 0 || text.AlignV != 0) out << " align " << text.AlignH << text.AlignV;
  return out.str() + differences(text.Font);
}

std::string describe(const VData_Shape& shape) {
  std::ostringstream out;
  out << shape.ShapeType << " " << shape.Left << "," << shape.Top << " " << shape.Right << ","
      << shape.Bottom << " pen " << shape.PenType << " " << shape.LineWidth << " " << std::hex
      << shape.PenColor << std::dec << " brush " << shape.BrushType << " " << std::hex
      << shape.BrushColor << std::dec << " round " << shape.RoundWidth << "," << shape.RoundHeight;
  return out.str();
}

std::string describe(const VData_BarCode& code) {
  std::ostringstream out;
  out << code.BarcodeType << " \"" << code.Value << "\" of " << code.AttributeCount
      << " keys, type " << code.ValueType << " show " << code.ShowValue << " pos "
      << code.ValuePosition << " font " << code.ValueFont << " fit " << code.SizeSet << " factor "
      << code.SizeFactor << " width " << code.ManualWidth << " " << code.LineWidth << " margins "
      << code.ManualHeight << " " << code.MarginTop << " " << code.MarginBottom << " orient "
      << code.Orientation << " color " << std::hex << code.BarColor << std::dec
      << differences(code.Font);
  return out.str();
}

std::string describe(const VData& item) {
  if (const auto* text = dynamic_cast<const VData_Text*>(&item)) return "text " + describe(*text);
  if (const auto* code = dynamic_cast<const VData_BarCode*>(&item)) {
    return "barcode " + describe(*code) + " shape " +
           describe(static_cast<const VData_Shape&>(*code));
  }
  if (const auto* image = dynamic_cast<const VData_Image*>(&item)) {
    return "image \"" + image->FileName + "\" number " + std::to_string(image->ImageNumber) +
           " stretch " + std::to_string(image->ImageStretch) + " shape " +
           describe(static_cast<const VData_Shape&>(*image));
  }
  return "shape " + describe(dynamic_cast<const VData_Shape&>(item));
}

}  // namespace

std::string differences(const FontState& font) {
  std::ostringstream out;
  if (font.LogFont.faceName() != "Courier New") out << " face=" << font.LogFont.faceName();
  if (font.Height != 10) out << " height=" << font.Height;
  if (font.Width != 0) out << " width=" << font.Width;
  if (font.WidthFactor != 1) out << " factor=" << font.WidthFactor;
  if (font.LogFont.Weight != 400) out << " weight=" << font.LogFont.Weight;
  if (font.LogFont.Italic != 0) out << " italic=" << int{font.LogFont.Italic};
  if (font.LogFont.Underline != 0) out << " underline=" << int{font.LogFont.Underline};
  if (font.LogFont.StrikeOut != 0) out << " strikeout=" << int{font.LogFont.StrikeOut};
  if (font.LogFont.Escapement != 0) out << " turned=" << font.LogFont.Escapement;
  if (font.Color != 0) out << " color=" << std::hex << font.Color << std::dec;
  if (font.CharSpacing != 0) out << " hs=" << font.CharSpacing;
  if (font.LineSpacing != 0) out << " vs=" << font.LineSpacing;
  return out.str();
}

std::string TestReport::prepare(std::string_view bytes, int codePage) {
  AppOptions.DocCodePage = codePage;
  AppOptions.FontCharset = 0;
  AppOptions.DynamicMode = false;
  AppOptions.IniFileName = AppOptions.SetName = "";
  return AppOptions.FileName = directory_.write("report.txt", bytes);
}

TestReport::TestReport(std::string_view bytes, int codePage) : name_(prepare(bytes, codePage)) {
  doc_.ScanPages(false);
}

std::string TestReport::dump(int number, PageMode mode) {
  std::string result;
  for (const VDocStr& line : page(number, mode).lines()) {
    result += "line";
    if (line.AfterFormFeed) result += " afterFormFeed";
    if (line.Overprint != 0) result += " overprint";
    if (line.LineFeeds != 1) result += " feeds" + std::to_string(line.LineFeeds);
    result += "\n";
    for (const VData& item : line.items()) result += "  " + describe(item) + "\n";
  }
  doc_.ReleasePage(number);
  return result;
}

}  // namespace qor::test
