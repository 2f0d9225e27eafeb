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

// Whether the second rectangle goes on where the first one ends, to the right or downwards.
bool joins(const DotRect& first, const DotRect& second) {
  const bool sameRow = first.top == second.top && first.bottom == second.bottom;
  const bool sameColumn = first.left == second.left && first.right == second.right;
  return (sameRow && first.left <= second.left && second.left <= first.right) ||
         (sameColumn && first.top <= second.top && second.top <= first.bottom);
}

}  // namespace

class PdfCanvas::TextPainter {
 public:
  TextPainter(PdfCanvas& canvas, const TextRun& run)
      : canvas_(canvas),
        run_(run),
        piece_(canvas.piece_),
        steps_(canvas.steps_),
        boxes_(canvas.boxes_),
        unit_(canvas.twipsPerUnit()),
        cos_(std::cos(run.angle)),
        sin_(std::sin(run.angle)) {
    const double across = unit_.x / unit_.y;
    const double wide = run.font.widthScale() * across;
    most_drift_ = kMostDrift * 1000 / (run.font.emSize() * run.font.widthScale() * unit_.x);
    style_.size = run.font.emSize() * unit_.y;
    if (run.record.Escapement == 0 && wide >= kLeastStretch) {
      style_.stretch = 100 * wide;
    } else {
      turned_ = true;
      style_.turn = {cos_ * wide, sin_ * run.font.widthScale(), -sin_ * across, cos_};
    }
  }

  void paint() {
    const auto& glyphs = run_.glyphs;
    for (std::size_t i = 0; i < glyphs.size(); ++i) {
      const FontFace& face = *glyphs[i].face;
      const auto code = canvas_.codes_.codeOf(face, glyphs[i].index, plainCharacter(run_.text[i]));
      const bool boxed = isBox(run_.text[i]);
      if (code.face != style_.face || boxed != isHidden()) endPiece(glyphs[i].distance);
      if (boxed) addBox(i);
      if (code.face == PdfGlyphCode::kNone) {
        if (!boxed) showOutline(i);
        continue;
      }
      if (piece_.empty()) beginPiece(face, code.face, glyphs[i].distance);
      if (boxed) style_.mode = PdfTextMode::hidden;
      if (std::abs(drift_) > most_drift_) stepOn();
      piece_ += static_cast<char>(code.code);
      drift_ += code.drift;
    }
    endPiece(run_.length);
    fillBoxes();
  }

  // A line along the text, at least a dot thick.
  void paintStroke(const TextStroke& stroke) {
    const double thickness = std::max(stroke.thickness, 1 / canvas_.space_.dotsPerUnit().y);
    const double top = run_.font.metrics().ascent + stroke.offset - thickness / 2;
    const Dots start = placeAt(0, top);
    const Dots opposite = placeAt(run_.length, top + thickness);
    PdfContent& content = canvas_.content();
    if (run_.record.Escapement == 0) {
      content.fillRectangle(start.x, opposite.y, opposite.x - start.x, start.y - opposite.y);
      return;
    }
    content.prepareFill();
    content.moveTo(start.x, start.y);
    for (const Dots corner : {placeAt(run_.length, top), opposite, placeAt(0, top + thickness)})
      content.lineTo(corner.x, corner.y);
    content.closePath();
    content.paint(PdfPainting::fill);
  }

 private:
  // The place on the page of what is so far along the text and below the top of its cells.
  Dots placeAt(double along, double below) const {
    return canvas_.placeOf(run_.x + cos_ * along + sin_ * below,
                           run_.y - sin_ * along + cos_ * below);
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
  Dots penAt(double distance, const FontFace& face) const {
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
    const Dots pen = penAt(start_, canvas_.pages_.faces().face(style_.face));
    const Dots place = placeAt(pen.x, pen.y);
    // Where the reader's pen then stands: what the widths still lack isn't made up.
    const double lacking = drift_ * run_.font.emSize() * run_.font.widthScale() / 1000;
    canvas_.content().show(place.x, place.y, style_, piece_, (end - start_ - lacking) * unit_.x,
                           steps_);
    piece_.clear();
  }

  // Frames are drawn as bitmaps draw them, so that they join, with hidden letters to be found.
  // Shades stay letters: their dots let shine through what is below.
  bool isBox(char32_t character) const {
    return run_.record.Escapement == 0 && isBoxCharacter(character) && !isShade(character);
  }
  bool isHidden() const { return style_.mode == PdfTextMode::hidden; }

  // Level lines go on in the next cell, and upright ones through the middle of theirs: only what
  // the cell before and this one have made can go on.
  void addBox(std::size_t place) {
    const DotRect cell = boxCell(canvas_.space_, run_, place);
    if (cell.right < 0 || cell.left > canvas_.space_.size().x) return;
    std::swap(before_, here_);
    here_.clear();
    const BoxCharacter box(run_.text[place], cell);
    for (const DotRect& rect : box.rects()) here_.push_back(join(rect));
  }

  // The place of the rectangle, or of the one that now holds it.
  std::size_t join(const DotRect& rect) {
    for (const auto* known : {&here_, &before_}) {
      for (const std::size_t number : *known) {
        DotRect& box = boxes_[number];
        if (!joins(box, rect)) continue;
        box.right = std::max(box.right, rect.right);
        box.bottom = std::max(box.bottom, rect.bottom);
        return number;
      }
    }
    boxes_.push_back(rect);
    return boxes_.size() - 1;
  }

  void fillBoxes() {
    for (const auto& [left, top, right, bottom, coverage] : boxes_) {
      const PageBox box =
          canvas_.boxOnPage(DotBox{double(left), double(top), double(right), double(bottom)});
      canvas_.content().fillRectangle(box.x, box.y, box.width, box.height);
    }
    boxes_.clear();
  }

  // What documents can't hold as a letter goes out as its shape, with a hidden letter of another
  // face to be found.
  void showOutline(std::size_t place) {
    const PlacedGlyph& glyph = run_.glyphs[place];
    const auto [bold, slanted] = glyph.face->style();
    const double em = run_.font.emSize();
    const double wide = em * run_.font.widthScale();
    const double slant = slanted ? kPdfSlant : 0;
    const Dots pen = penAt(glyph.distance, *glyph.face);
    PdfContent& content = canvas_.content();
    content.setStrokeColor(pdfColor(run_.color));
    content.setLineWidth(style_.size * kPdfBoldStroke);
    content.setDash({});
    drawGlyphOutline(*glyph.face, glyph.index, bold, content, [&](double x, double y) {
      const Dots point = placeAt(pen.x + x * wide + y * em * slant, pen.y - y * em);
      return std::pair(point.x, point.y);
    });
    showHidden(plainCharacter(run_.text[place]), glyph);
  }

  void showHidden(char32_t character, const PlacedGlyph& glyph) {
    const auto code = canvas_.codes_.hiddenCodeOf(character);
    const Dots pen = penAt(glyph.distance, *glyph.face);
    const Dots place = placeAt(pen.x, pen.y);
    PdfTextStyle style = style_;
    style.face = code.face;
    style.mode = PdfTextMode::hidden;
    style.slanted = false;
    style.spacing = 0;
    const char text = static_cast<char>(code.code);
    canvas_.content().show(place.x, place.y, style, {&text, 1}, 0);
  }

  PdfCanvas& canvas_;
  const TextRun& run_;
  std::string& piece_;  // codes
  std::vector<PdfStep>& steps_;
  std::vector<DotRect>& boxes_;
  Dots unit_;
  double cos_;
  double sin_;
  PdfTextStyle style_;
  std::vector<std::size_t> before_;  // places in boxes_, of the cell before
  std::vector<std::size_t> here_;
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
  const PageBox box = boxOnPage(space_.textClip(rect));
  content().save();
  content().clip(box.x, box.y, box.width, box.height);
}

void PdfCanvas::unclipText() {
  content().restore();
}

}  // namespace qor
