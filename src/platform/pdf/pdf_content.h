// The drawing operators of a page. What they need set (font, colours, dashes) is written only where
// it has changed. Places and lengths are units of the coordinates that hold (points, until they are
// transformed), y upwards from the page's bottom.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qor {

struct PdfPoint {
  double x = 0;
  double y = 0;
};

// A box with this lower left corner.
struct PdfBox {
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;
};

struct PdfColor {
  double red = 0;  // 0 to 1
  double green = 0;
  double blue = 0;

  bool operator==(const PdfColor&) const = default;
};

enum class PdfCap { butt, round };

// The ways across and up, of what is turned or stretched.
struct PdfTurn {
  double a = 1, b = 0;
  double c = 0, d = 1;

  bool operator==(const PdfTurn&) const = default;
};

// What makes letters slanted and bold where a face has none: the tangent of 12 degrees, and a
// stroke along the outline, of the size.
inline constexpr double kPdfSlant = 0.2126;
inline constexpr double kPdfBoldStroke = 1.0 / 24;

// Bold is made by a stroke along the outline; hidden text is only found and copied.
enum class PdfTextMode { plain = 0, bold = 2, hidden = 3 };

struct PdfTextStyle {
  std::size_t face = 0;
  double size = 0;
  PdfTextMode mode = PdfTextMode::plain;
  bool slanted = false;  // made by a slant
  double stretch = 100;  // percent of the natural width
  double spacing = 0;    // behind each character, before it is stretched
  PdfTurn turn{};
};

// A step back within a text, in thousandths of its size, before the code with this number.
struct PdfStep {
  std::size_t code = 0;
  double back = 0;
};

enum class PdfPainting { stroke, fill, fillAndStroke };

class PdfContent {
 public:
  // The operators of the page so far, complete.
  std::string_view bytes();

  // An empty page. On marked ones, texts can be told by their lines and all else is decoration.
  void clear(bool marked = false);

  void setFillColor(const PdfColor& color) { wanted_.fill = {color, {}}; }
  // Fills with a pattern that has no colours of its own, by the name of its resource.
  void setFillPattern(const std::string& name, const PdfColor& color) {
    wanted_.fill = {color, name};
  }
  void setStrokeColor(const PdfColor& color) { wanted_.stroke.color = color; }
  void setLineWidth(double width) { wanted_.stroke.width = width; }
  void setLineCap(PdfCap cap) { wanted_.stroke.cap = cap; }
  // On and off lengths; none makes lines solid.
  void setDash(std::span<const double> lengths) {
    wanted_.stroke.dash.assign(lengths.begin(), lengths.end());
  }

  // What is set and the coordinates of the time of save come back with restore.
  void save();
  void restore();
  void transform(double a, double b, double c, double d, double e, double f);
  // Cuts all that follows, until restore.
  void clip(const PdfBox& box);

  // Whoever fills a path tells so before it is begun.
  void prepareFill();
  void moveTo(PdfPoint to);
  void lineTo(PdfPoint to);
  void curveTo(PdfPoint control1, PdfPoint control2, PdfPoint to);
  void closePath();
  // Its stroke starts at the box's corner; negative lengths make that another one.
  void rectangle(const PdfBox& box);
  void paint(PdfPainting painting);

  // Fills a rectangle. Neighbours of one colour are filled together.
  void fillRectangle(const PdfBox& box);

  // Paints an image, by the name of its resource, so that it fills the box.
  void image(const std::string& name, const PdfBox& box);

  // Shows codes of the style's face with the baseline starting here; they are `length` long, with
  // the steps, which come in the order of the codes.
  void show(PdfPoint place, const PdfTextStyle& style, std::string_view codes, double length,
            std::span<const PdfStep> steps = {});

  // The texts that follow are the next line. The marks of a page count from 0 over all its lines.
  void beginLine() { line_ended_ = true; }
  // How many marks each line has that has any.
  std::span<const int> marksOfLines() const { return marks_; }

 private:
  // What is being written, and has to be ended before something else begins.
  enum class Open { nothing, text, rectangles };

  struct Fill {
    PdfColor color;
    std::string pattern;  // empty: a plain colour

    bool operator==(const Fill&) const = default;
  };

  struct Stroke {
    PdfColor color;
    double width = 1;
    PdfCap cap = PdfCap::butt;
    std::vector<double> dash;
  };

  struct State {
    Fill fill;
    Stroke stroke;
    std::optional<PdfTextStyle> text;  // none yet
    std::int64_t leading = 0;          // thousandths
  };

  void operate(std::initializer_list<double> operands, std::string_view operation);
  void appendDirections(const PdfTurn& turn);
  void operateColor(const PdfColor& color, std::string_view operation);
  void close();
  void openText();
  void openDecoration();
  void endDecoration();
  void endMark();
  void markText();
  void useStroke(const Stroke& stroke);
  void useFill();
  void useStyle(const PdfTextStyle& style);
  void appendString(std::string_view codes);
  void appendSteps(std::string_view codes, std::span<const PdfStep> steps);
  void setTextMatrix(std::int64_t x, std::int64_t y, const PdfTurn& turn);
  void moveDown(std::int64_t leading);
  // Moves to the start of the text; true where the operator that shows it has to go to a new line.
  bool startText(std::int64_t x, std::int64_t y, const PdfTurn& turn);

  std::string bytes_;
  State wanted_;
  State written_;
  std::vector<std::pair<State, State>> saved_;
  Open open_ = Open::nothing;
  PdfTurn turn_;             // of the text matrix
  std::int64_t line_x_ = 0;  // of the text line, as written, thousandths
  std::int64_t line_y_ = 0;
  std::int64_t pen_x_ = 0;  // behind the last text that is seen

  enum class Mark { none, text, decoration };
  bool marked_ = false;
  Mark mark_ = Mark::none;
  bool line_ended_ = true;
  int mark_count_ = 0;
  std::vector<int> marks_;
};

}  // namespace qor
