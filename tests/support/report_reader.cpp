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
  return out.str() + differences(*text.Font);
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
      << differences(*code.Font);
  return out.str();
}

std::string describe(const VData& item) {
  if (const auto* text = dynamic_cast<const VData_Text*>(&item)) return "text " + describe(*text);
  const std::string shape = "shape " + describe(dynamic_cast<const VData_Shape&>(item));
  if (const auto* code = dynamic_cast<const VData_BarCode*>(&item))
    return "barcode " + describe(*code) + " " + shape;
  const auto* image = dynamic_cast<const VData_Image*>(&item);
  if (image == nullptr) return shape;
  return "image \"" + image->FileName + "\" number " + std::to_string(image->ImageNumber) +
         " stretch " + std::to_string(image->ImageStretch) + " " + shape;
}

}  // namespace

std::string differences(const FontState& font) {
  const LogFont& face = font.LogFont;
  std::ostringstream out;
  if (face.faceName() != "Courier New") out << " face=" << face.faceName();
  const std::tuple<const char*, double, double> values[] = {
      {"height", font.Height, 10},      {"width", font.Width, 0},
      {"factor", font.WidthFactor, 1},  {"weight", face.Weight, 400},
      {"italic", face.Italic, 0},       {"underline", face.Underline, 0},
      {"strikeout", face.StrikeOut, 0}, {"turned", face.Escapement, 0},
      {"hs", font.CharSpacing, 0},      {"vs", font.LineSpacing, 0}};
  for (const auto& [name, value, usual] : values)
    if (value != usual) out << " " << name << "=" << value;
  if (font.Color != 0) out << " color=" << std::hex << font.Color;
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
