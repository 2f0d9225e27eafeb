// PDF pages by Cairo.
#include "platform/print/pdf_pages.h"

#include <algorithm>
#include <vector>

#include <cairo-pdf.h>

#include "base/errors.h"
#include "base/units.h"
#include "platform/system/byte_sink.h"
#include "platform/system/text_encoding.h"

namespace qor {
namespace {

// Bytes below 32 are drawn as blanks. Code points that no text may hold, as code pages from files
// may name them, would end the drawing.
char32_t plainCharacter(char32_t c) {
  const bool isText = c <= 0x10FFFF && (c < 0xD800 || c > 0xDFFF) && (c < 0xFDD0 || c > 0xFDEF) &&
                      (c & 0xFFFE) != 0xFFFE;
  return c < U' ' ? U' ' : isText ? c : U'\xFFFD';
}

}  // namespace

// A canvas in dots on a surface in points.
class PdfPages::Page : public CairoCanvas {
 public:
  Page(cairo_surface_t* surface, const PdfSheet& sheet, PaperPictures& pictures)
      : CairoCanvas(surface, sheet.dots, sheet.dotsPerInch, DotGrid::fine), pictures_(pictures) {
    setUnitsPerDot(pointsPerDot(sheet.dotsPerInch.x), pointsPerDot(sheet.dotsPerInch.y));
  }

  cairo_status_t drawingStatus() const { return status(); }

 protected:
  void paintPicture(cairo_t* context, const StoredPicture& picture, bool) override {
    pictures_.use(context, picture);
    cairo_pattern_set_filter(cairo_get_source(context), CAIRO_FILTER_GOOD);
    cairo_paint(context);
  }

  // The text goes with its glyphs, so that readers of the document find and copy it. Cairo finds
  // ASCII by itself: no other character of a font comes before it.
  void putGlyphs(cairo_t* context, const TextRun&, std::u32string_view text,
                 std::span<const cairo_glyph_t> glyphs) override {
    const auto isAscii = [](char32_t c) { return c < 0x7F; };
    if (std::all_of(text.begin(), text.end(), isAscii)) {
      cairo_show_glyphs(context, glyphs.data(), static_cast<int>(glyphs.size()));
    } else {
      showWithText(context, text, glyphs);
    }
  }

 private:
  void showWithText(cairo_t* context, std::u32string_view text,
                    std::span<const cairo_glyph_t> glyphs) {
    utf8_.clear();
    clusters_.clear();
    for (const char32_t c : text) {
      const std::size_t before = utf8_.size();
      appendUtf8(utf8_, plainCharacter(c));
      clusters_.push_back({static_cast<int>(utf8_.size() - before), 1});
    }
    cairo_show_text_glyphs(context, utf8_.data(), static_cast<int>(utf8_.size()), glyphs.data(),
                           static_cast<int>(glyphs.size()), clusters_.data(),
                           static_cast<int>(clusters_.size()), cairo_text_cluster_flags_t{});
  }

  PaperPictures& pictures_;
  std::string utf8_;
  std::vector<cairo_text_cluster_t> clusters_;
};

PdfPages::PdfPages(ByteSink& sink, const PdfSheet& sheet, const std::string& title)
    : sink_(sink),
      surface_(cairo_pdf_surface_create_for_stream(take, this, sheet.width, sheet.height)) {
  cairo_pdf_surface_set_metadata(surface_.get(), CAIRO_PDF_METADATA_TITLE, title.c_str());
  page_ = std::make_unique<Page>(surface_.get(), sheet, pictures_);
}

PdfPages::~PdfPages() {
  // Cairo finishes a surface that is destroyed; the sink may be gone by then.
  abandoned_ = true;
}

cairo_status_t PdfPages::take(void* self, const unsigned char* bytes, unsigned count) {
  PdfPages& pages = *static_cast<PdfPages*>(self);
  if (pages.failure_ || pages.abandoned_) return CAIRO_STATUS_WRITE_ERROR;
  try {
    pages.sink_.write({reinterpret_cast<const char*>(bytes), count});
    return CAIRO_STATUS_SUCCESS;
  } catch (...) {
    pages.failure_ = std::current_exception();
    return CAIRO_STATUS_WRITE_ERROR;
  }
}

void PdfPages::check() {
  if (failure_) std::rethrow_exception(failure_);
  const cairo_status_t onPage = page_ ? page_->drawingStatus() : CAIRO_STATUS_SUCCESS;
  const cairo_status_t status =
      onPage == CAIRO_STATUS_SUCCESS ? cairo_surface_status(surface_.get()) : onPage;
  if (status != CAIRO_STATUS_SUCCESS) throw PrintError(cairo_status_to_string(status));
}

Canvas& PdfPages::canvas() {
  return *page_;
}

void PdfPages::endPage() {
  cairo_surface_show_page(surface_.get());
  pictures_.endPage();
  check();
}

void PdfPages::finish() {
  page_.reset();
  cairo_surface_finish(surface_.get());
  check();
}

}  // namespace qor
