// The pages of a PDF document and what they share: fonts, images and patterns stand in it once. A
// page leaves when it is ended; of all that was written only the places in the file are kept.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/pdf/pdf_content.h"
#include "platform/pdf/pdf_faces.h"
#include "platform/pdf/pdf_images.h"
#include "platform/pdf/pdf_metadata.h"
#include "platform/pdf/pdf_structure.h"

namespace qor {

class PdfPages {
 public:
  // Starts a document. The sink must live as long; what it throws comes through everywhere.
  PdfPages(ByteSink& sink, PdfInformation information);

  // The size of every page, in points. It may be told until the document is finished.
  void setPageSize(double width, double height);
  double pageHeight() const { return height_; }

  // Documents of many pages may take a second processor.
  void allowBackground() { file_.allowBackground(); }

  // Readers open the document fitted to what is on its pages.
  void openFitted() { opens_fitted_ = true; }

  // A page starts with everything as in a new document. At least one page must have been ended
  // when the document is finished, which throws FileError where a font can't be embedded.
  void beginPage();
  void endPage();
  void finish();

  // The operators of the open page.
  PdfContent& content() { return content_; }

  // The faces of texts.
  PdfFaces& faces() { return faces_; }

  // The document's image of a picture, or null where its file has gone. Valid as long as the
  // document.
  const PdfImage* loadImage(const StoredPicture& picture) { return images_.add(picture); }
  void showImage(const PdfImage& image, const PdfBox& box);

  // Adds a pattern without colours, which `entries` describe and `operators` draw; its name.
  std::string addPattern(std::string_view entries, std::string_view operators);

 private:
  std::string resourcesOfPage() const;
  bool fitsArchives() const;
  void closeNode();

  PdfInformation information_;
  PdfFile file_;
  PdfFaces faces_;
  PdfImages images_;
  PdfContent content_;
  std::optional<PdfStructure> structure_;
  std::map<PdfId, std::string> images_of_page_;  // the names of their resources
  std::vector<PdfId> patterns_;
  double width_ = 0;
  double height_ = 0;
  bool opens_fitted_ = false;
  PdfId font_dictionary_;
  PdfId pattern_dictionary_ = 0;
  PdfId page_tree_;
  std::vector<PdfId> nodes_;  // of the page tree
  std::vector<PdfId> pages_;  // of the node at hand
  std::size_t page_count_ = 0;
  PdfId first_page_ = 0;
};

}  // namespace qor
