// Texts of a document: fonts by name, and pieces of text in the faces that have their characters.
#include "base/errors.h"
#include "platform/fonts/font_families.h"
#include "platform/pdf/pdf_document.h"
#include "platform/pdf/pdf_fonts.h"
#include "platform/system/text_encoding.h"

namespace qor {

std::size_t PdfDocument::encodingNumber(const std::string& name) {
  const auto known = encodings_.find(name);
  if (known != encodings_.end()) return known->second;
  if (!hasEncoding(name)) throw SystemError(name + ": the encoding is unknown");
  defineEncoding(name, encodingOfCodePage(resources_.codePageOf(name)));
  return encodings_.at(name);
}

bool PdfDocument::hasEncoding(const std::string& name) const {
  return encodings_.contains(name) || isSingleByteCodePage(resources_.codePageOf(name));
}

bool PdfDocument::hasFace(const std::string& name) const {
  return hasFamily(resources_.familyOf(name));
}

std::size_t PdfDocument::loadFont(const PdfFontName& name, const std::string& encoding) {
  return fonts_->load({resources_.familyOf(name.face), name.bold, name.italic},
                      encodingNumber(encoding));
}

void PdfDocument::setFont(std::size_t font, double size) {
  state_.font = font;
  state_.size = size;
}

void PdfDocument::setTextPosition(double x, double y) {
  state_.text = {x, y};
  state_.lineStart = x;
}

// Cuts off the front of a text what one face shows.
PdfDocument::Piece PdfDocument::takePiece(std::string_view& text) {
  const PdfFonts::Run run = fonts_->runOf(state_.font, text);
  const Piece piece = {run.face, run.length * state_.size, text.substr(0, run.bytes)};
  text.remove_prefix(run.bytes);
  return piece;
}

double PdfDocument::lengthOf(std::string_view text) {
  double length = 0;
  while (!text.empty()) length += takePiece(text).length;
  return length;
}

PdfPoint PdfDocument::showAt(PdfPoint place, std::string_view text) {
  while (!text.empty()) {
    const Piece piece = takePiece(text);
    const FaceStyle style = fonts_->styleOf(piece.face);
    content().show(
        place,
        {piece.face, state_.size, style.syntheticBold ? PdfTextMode::bold : PdfTextMode::plain,
         style.syntheticSlant},
        piece.codes, piece.length);
    place.x += piece.length;
  }
  return place;
}

void PdfDocument::show(std::string_view text) {
  state_.text = showAt(state_.text, text);
}

void PdfDocument::continueText(std::string_view text) {
  state_.text = {state_.lineStart, state_.text.y - state_.leading};
  show(text);
}

void PdfDocument::fitTextline(std::string_view text, double x, double y, const FitOptions& fit) {
  const double height = fonts_->capHeight(state_.font) * state_.size;
  showAt({x + fit.horizontal * (fit.box.width - lengthOf(text)),
          y + fit.vertical * (fit.box.height - height)},
         text);
}

}  // namespace qor
