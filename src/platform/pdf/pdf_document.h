// The PDF engine: a document that is written page by page. Coordinates are points from the lower
// left corner of the page, y runs upward. All that is drawn goes on the open page; texts are bytes
// of their font's encoding.
#pragma once

#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/pdf/fit_options.h"
#include "platform/pdf/pdf_encoding.h"
#include "platform/pdf/pdf_font_name.h"
#include "platform/pdf/pdf_pages.h"
#include "platform/pdf/pdf_resources.h"

namespace qor {

class PdfFonts;

class PdfDocument {
 public:
  // Starts a document. The sink must live as long; what it throws comes through everywhere.
  PdfDocument(ByteSink& sink, PdfInformation information);
  ~PdfDocument();
  PdfDocument(const PdfDocument&) = delete;
  PdfDocument& operator=(const PdfDocument&) = delete;

  // Takes fonts and encodings by the names of a resource file. Throws FileError.
  void setResourceFile(const std::string& path);

  // What the bytes of an encoding of this name mean, where the system's tables aren't to be taken.
  void defineEncoding(const std::string& name, const PdfEncoding& encoding);

  // The size of every page, in points. It may be told until the document is finished.
  void setPageSize(double width, double height) { pages_.setPageSize(width, height); }

  // Documents of many pages may take a second processor.
  void allowBackground() { pages_.allowBackground(); }

  // A page starts with everything as in a new document. At least one page must have been ended
  // when the document is finished, which throws FileError where a font can't be embedded.
  void beginPage();
  void endPage() { pages_.endPage(); }
  void finish() { pages_.finish(); }

  // True if the name is defined, or tells a code page that the system has a table of.
  bool hasEncoding(const std::string& name) const;

  // True if the system has the face or the one that the resource file names for it.
  bool hasFace(const std::string& name) const;

  // A font for setFont. Encodings are those defined and "cp" with a number. Throws FileError where
  // no font can be embedded.
  std::size_t loadFont(const PdfFontName& name, const std::string& encoding);

  void setFont(std::size_t font, double size);
  // How far below the last line continueText starts the next one.
  void setLeading(double leading) { state_.leading = leading; }
  void setFillColor(const PdfColor& color) { content().setFillColor(color); }
  void setStrokeColor(const PdfColor& color) { content().setStrokeColor(color); }
  void setDash(std::span<const double> lengths) { content().setDash(lengths); }

  // Where the next text's baseline starts, and the next lines below it.
  void setTextPosition(double x, double y);
  PdfPoint textPosition() const { return state_.text; }

  // The end of the path at hand; the corner of the page where there is none.
  PdfPoint currentPoint() const { return path_; }

  // Shows a text and moves the position behind it.
  void show(std::string_view text);

  // The same, on the next line: below the start of the last one.
  void continueText(std::string_view text);

  // Puts one line of text into a box with this lower left corner. Its own box reaches from the
  // baseline to the top of capitals. The text position stays.
  void fitTextline(std::string_view text, double x, double y, const FitOptions& fit);

  // Coordinates, colours, font and text position of the time of save come back with restore.
  void save();
  void restore();
  void translate(double x, double y);
  void rotate(double degrees);  // counter-clockwise

  void moveTo(double x, double y);
  void lineTo(double x, double y);
  void rectangle(double x, double y, double width, double height);
  void stroke();

  // The document's image of a picture, or null where its file has gone. Valid as long as the
  // document.
  const PdfImage* loadImage(const StoredPicture& picture) { return pages_.loadImage(picture); }

  // Puts a picture into a box with this lower left corner: filling it, as large as it fits, or in
  // its own size at the resolution of the options.
  void fitImage(const PdfImage& image, double x, double y, const FitOptions& fit);

 private:
  struct State {
    std::size_t font = 0;
    double size = 0;
    double leading = 0;
    PdfPoint text;
    double lineStart = 0;
  };

  // One piece of text in one face.
  struct Piece {
    std::size_t face = 0;
    double length = 0;
    std::string_view codes;
  };

  Piece takePiece(std::string_view& text);
  double lengthOf(std::string_view text);
  PdfPoint showAt(PdfPoint place, std::string_view text);
  std::size_t encodingNumber(const std::string& name);
  PdfContent& content() { return pages_.content(); }

  PdfPages pages_;
  std::unique_ptr<PdfFonts> fonts_;
  PdfResources resources_;
  std::map<std::string, std::size_t> encodings_;
  State state_;
  std::vector<State> saved_;
  PdfPoint path_;
};

}  // namespace qor
