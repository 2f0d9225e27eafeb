// The drawing operators of a page. What they need set (font, colours, dashes) is written only where
// it has changed.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qor {

struct PdfColor {
  double red = 0;  // 0 to 1
  double green = 0;
  double blue = 0;

  bool operator==(const PdfColor&) const = default;
};

struct PdfTextStyle {
  std::size_t face = 0;
  double size = 0;       // points
  bool bold = false;     // made by a stroke along the outline
  bool slanted = false;  // made by a slant

  bool operator==(const PdfTextStyle&) const = default;
};

class PdfContent {
 public:
  // The operators of the page so far, complete.
  std::string_view bytes();

  // An empty page.
  void clear();

  void setFillColor(const PdfColor& color) { wanted_.fill = color; }
  void setStrokeColor(const PdfColor& color) { wanted_.stroke = color; }
  // On and off lengths in points; none makes lines solid.
  void setDash(std::span<const double> lengths) {
    wanted_.dash.assign(lengths.begin(), lengths.end());
  }

  // Places and lengths are points of the coordinates that hold, y upwards from the page's bottom.
  // What is set and the coordinates of the time of save come back with restore.
  void save();
  void restore();
  void transform(double a, double b, double c, double d, double e, double f);

  void moveTo(double x, double y);
  void lineTo(double x, double y);
  void rectangle(double x, double y, double width, double height);
  void stroke();

  // Paints an image, by the name of its resource, in the box with this lower left corner.
  void image(const std::string& name, double x, double y, double width, double height);

  // Shows codes of the style's face with the baseline starting here; they are `length` long.
  void show(double x, double y, const PdfTextStyle& style, std::string_view codes, double length);

 private:
  struct State {
    PdfColor fill;
    PdfColor stroke;
    std::vector<double> dash;
    double lineWidth = 1;
    std::optional<PdfTextStyle> text;  // none yet
    std::int64_t leading = 0;          // thousandths of a point
  };

  void operate(std::initializer_list<double> operands, std::string_view operation);
  void openText();
  void closeText();
  void preparePath();
  void useStroke(const PdfColor& color, double width, const std::vector<double>& dash);
  void useStyle(const PdfTextStyle& style);
  void appendString(std::string_view codes);
  // Moves to the start of the text; true where the operator that shows it has to go to a new line.
  bool startText(std::int64_t x, std::int64_t y, bool slanted);

  std::string bytes_;
  State wanted_;
  State written_;
  std::vector<std::pair<State, State>> saved_;
  bool in_text_ = false;
  bool slanted_ = false;     // the text matrix
  std::int64_t line_x_ = 0;  // of the text line, as written, thousandths
  std::int64_t line_y_ = 0;
  std::int64_t pen_x_ = 0;  // behind the last text
};

}  // namespace qor
