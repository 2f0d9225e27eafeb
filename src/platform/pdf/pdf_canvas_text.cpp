// Texts on paper: each piece in one face is one string, at the place that layout gave it. The
// widths of the document's fonts carry it from letter to letter.
#include <algorithm>
#include <cmath>

#include "platform/fonts/font_face.h"
#include "platform/pdf/glyph_outline.h"
#include "platform/pdf/pdf_canvas.h"

namespace qor {
namespace {

// Bytes below 32 are drawn as blanks. Code points that no text may hold, as code pages from files
// may name them, are told as the mark for what isn't known.
char32_t plainCharacter(char32_t c) {
  if (c >= U' ' && c < 0xD800) return c;
  const bool isText = c > 0xDFFF && c <= 0x10FFFF && (c < 0xFDD0 || c > 0xFDEF) &&
                      (c & 0xFFFE) != 0xFFFE && c != 0xFEFF;
  return c < U' ' ? U' ' : isText ? c : U'\xFFFD';
}

// Bitmaps make letters bold to the right and upwards.
constexpr double kBoldShift = kPdfBoldStroke / 2;

// How far a letter may stand from its place in the layout, in twips.
constexpr double kMostDrift = 0.75;

// Stretches are told with few decimals: narrower letters are a matter of directions.
constexpr double kLeastStretch = 0.1;

// A place along the text and below the top of its cells, in logical units.
struct TextPlace {
  double along = 0;
  double below = 0;
};

}  // namespace

class PdfCanvas::TextPainter {
 public:
  TextPainter(PdfCanvas& canvas, const TextRun& run)
      : canvas_(canvas),
        run_(run),
        piece_(canvas.piece_),
        steps_(canvas.steps_),
        boxes_(canvas.boxes_),
        unit_(canvas.twips(canvas.space_.dotsPerUnit())),
        cos_(std::cos(run.angle)),
        sin_(std::sin(run.angle)) {
    most_drift_ = kMostDrift * 1000 / (run.font.emSize() * run.font.widthScale() * unit_.x);
    style_.size = run.font.emSize() * unit_.y;
    stretchOrTurn();
  }

  void paint() {
    for (std::size_t i = 0; i < run_.glyphs.size(); ++i) addGlyph(i);
    endPiece(run_.length);
    fillBoxes();
  }

  // A line along the text, at least a dot thick.
  void paintStroke(const TextStroke& stroke) {
    const double thickness = std::max(stroke.thickness, 1 / canvas_.space_.dotsPerUnit().y);
    const double top = run_.font.metrics().ascent + stroke.offset - thickness / 2;
    const PdfPoint start = placeAt({0, top});
    const PdfPoint opposite = placeAt({run_.length, top + thickness});
    PdfContent& content = canvas_.content();
    if (run_.level()) {
      content.fillRectangle({std::min(start.x, opposite.x), opposite.y,
                             std::abs(opposite.x - start.x), start.y - opposite.y});
      return;
    }
    content.prepareFill();
    content.moveTo(start);
    content.lineTo(placeAt({run_.length, top}));
    content.lineTo(opposite);
    content.lineTo(placeAt({0, top + thickness}));
    content.closePath();
    content.paint(PdfPainting::fill);
  }

 private:
  void stretchOrTurn() {
    const double across = unit_.x / unit_.y;
    const double wide = run_.font.widthScale() * across;
    turned_ = !run_.level() || wide < kLeastStretch;
    if (turned_) {
      style_.turn = {cos_ * wide, sin_ * run_.font.widthScale(), -sin_ * across, cos_};
    } else {
      style_.stretch = 100 * wide;
    }
  }

  PdfPoint placeAt(TextPlace place) const {
    const auto [along, below] = place;
    return canvas_.onPage(canvas_.space_.dots(run_.x + cos_ * along + sin_ * below,
                                              run_.y - sin_ * along + cos_ * below));
  }

  void addGlyph(std::size_t place) {
    const PlacedGlyph& glyph = run_.glyphs[place];
    const char32_t character = plainCharacter(run_.text[place]);
    const auto code = canvas_.codes_.codeOf(*glyph.face, glyph.index, character);
    const bool boxed = isBox(run_.text[place]);
    if (code.face != style_.face || boxed != isHidden()) endPiece(glyph.distance);
    if (boxed) addBox(place);
    if (code.face != PdfGlyphCode::kNone) {
      addCode(code, glyph, boxed);
    } else {
      if (!boxed) showOutline(glyph);
      showHidden(character, glyph);
    }
  }

  void addCode(const PdfGlyphCode& code, const PlacedGlyph& glyph, bool boxed) {
    if (piece_.empty()) beginPiece(*glyph.face, code.face, glyph.distance);
    if (boxed) style_.mode = PdfTextMode::hidden;
    if (std::abs(drift_) > most_drift_) stepOn();
    piece_ += static_cast<char>(code.code);
    drift_ += code.drift;
  }

  void beginPiece(const FontFace& face, std::size_t number, double distance) {
    style_.face = number;
    style_.mode = face.style().syntheticBold ? PdfTextMode::bold : PdfTextMode::plain;
    slant(face.style().syntheticSlant);
    style_.spacing = run_.characterExtra * unit_.y / run_.font.widthScale() +
                     canvas_.codes_.spacingOf(face) * style_.size / 1000;
    steps_.clear();
    drift_ = 0;
    start_ = distance;
  }

  // A slant is that of the natural width, however wide the letters are.
  void slant(bool slanted) {
    style_.slanted = slanted && !turned_;
    if (!turned_) return;
    const double along = slanted ? kPdfSlant : 0;
    const double across = unit_.x / unit_.y;
    style_.turn.c = (along * cos_ - sin_) * across;
    style_.turn.d = along * sin_ + cos_;
  }

  // Where a glyph of the face stands that is so far along the text.
  TextPlace penAt(double distance, const FontFace& face) const {
    const double shift = face.style().syntheticBold ? run_.font.emSize() * kBoldShift : 0;
    return {distance + shift, run_.font.metrics().ascent - shift};
  }

  // What the widths lack so far is made up.
  void stepOn() {
    steps_.push_back({piece_.size(), -drift_});
    drift_ = 0;
  }

  void endPiece(double end) {
    if (piece_.empty()) return;
    const PdfPoint place = placeAt(penAt(start_, canvas_.pages_.faces().face(style_.face)));
    // Where the reader's pen then stands: what the widths still lack isn't made up.
    const double lacking = drift_ * run_.font.emSize() * run_.font.widthScale() / 1000;
    canvas_.content().show(place, style_, piece_, (end - start_ - lacking) * unit_.x, steps_);
    piece_.clear();
  }

  // Frames are drawn as bitmaps draw them, so that they join, with hidden letters to be found.
  // Shades stay letters: their dots let shine through what is below.
  bool isBox(char32_t character) const {
    return run_.level() && isBoxCharacter(character) && !isShade(character);
  }
  bool isHidden() const { return style_.mode == PdfTextMode::hidden; }

  void addBox(std::size_t place) {
    const DotRect cell = boxCell(canvas_.space_, run_, place);
    const bool seen = cell.right >= 0 && cell.left <= canvas_.space_.size().x;
    if (seen) boxes_.add(run_.text[place], cell);
  }

  void fillBoxes() {
    for (const auto& [left, top, right, bottom, coverage] : boxes_.rects())
      canvas_.content().fillRectangle(
          canvas_.boxOnPage({double(left), double(top), double(right), double(bottom)}));
    boxes_.clear();
  }

  // What documents can't hold as a letter goes out as its shape, with a hidden letter of another
  // face to be found.
  void showOutline(const PlacedGlyph& glyph) {
    const auto [bold, slanted] = glyph.face->style();
    const double em = run_.font.emSize();
    const double wide = em * run_.font.widthScale();
    const double slant = slanted ? kPdfSlant : 0;
    const TextPlace pen = penAt(glyph.distance, *glyph.face);
    PdfContent& content = canvas_.content();
    if (bold) {
      content.setStrokeColor(pdfColor(run_.color));
      content.setLineWidth(style_.size * kPdfBoldStroke);
      content.setDash({});
    }
    drawGlyphOutline(*glyph.face, glyph.index, bold, content, [&](double x, double y) {
      return placeAt({pen.along + x * wide + y * em * slant, pen.below - y * em});
    });
  }

  void showHidden(char32_t character, const PlacedGlyph& glyph) {
    const auto code = canvas_.codes_.hiddenCodeOf(character);
    PdfTextStyle style = style_;
    style.face = code.face;
    style.mode = PdfTextMode::hidden;
    style.slanted = false;
    style.spacing = 0;
    const char text = static_cast<char>(code.code);
    canvas_.content().show(placeAt(penAt(glyph.distance, *glyph.face)), style, {&text, 1},
                           code.width / 1000 * style.size * style.stretch / 100);
  }

  PdfCanvas& canvas_;
  const TextRun& run_;
  std::string& piece_;  // codes
  std::vector<PdfStep>& steps_;
  JoinedBoxes& boxes_;
  PdfPoint unit_;  // twips
  double cos_;
  double sin_;
  PdfTextStyle style_;
  bool turned_ = false;  // or too narrow to be told by a stretch
  double start_ = 0;     // of the piece, along the text
  double drift_ = 0;     // of its last letter, in thousandths of an em
  double most_drift_ = 0;
};

void PdfCanvas::paintText(const TextRun& run) {
  if (run.font.emSize() <= 0 || !(run.font.widthScale() > 0) || !space_.shows(run)) return;
  content().setFillColor(pdfColor(run.color));
  TextPainter painter(*this, run);
  painter.paint();
  if (run.record.Underline != 0) painter.paintStroke(run.font.underline());
  if (run.record.StrikeOut != 0) painter.paintStroke(run.font.strikeOut());
}

void PdfCanvas::clipText(const Rect& rect) {
  content().save();
  content().clip(boxOnPage(space_.textClip(rect)));
}

void PdfCanvas::unclipText() {
  content().restore();
}

}  // namespace qor
