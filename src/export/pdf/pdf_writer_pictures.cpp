// Pictures and barcodes on pages.
#include "barcode/barcode_picture.h"
#include "base/units.h"
#include "document/item_kinds.h"
#include "document/picture_file.h"
#include "export/pdf/markup_values.h"
#include "export/pdf/pdf_writer.h"
#include "platform/pictures/picture_store.h"

namespace qor {
namespace {

// Pictures in their own size hang from the place they are put at.
constexpr FitOptions kNaturalSize = {.vertical = 1, .dpi = kPictureDpi};

}  // namespace

// The document's image of a picture that may be null.
const PdfImage* PdfWriter::imageOf(const std::shared_ptr<const StoredPicture>& picture) {
  const PdfImage* image = picture ? document_.loadImage(*picture) : nullptr;
  if (image != nullptr) last_image_ = {double(image->width), double(image->height)};
  return image;
}

// A picture that may be missing, in the box of its record, with its frame.
void PdfWriter::putInBox(const PdfImage* image, const MarkupRecord& record, FitOptions fit) {
  const double left = pointsFromTwips(realOf(record[PdfField::imageLeft]));
  const double width = pointsFromTwips(realOf(record[PdfField::imageRight])) - left;
  const double height =
      pointsFromTwips(realOf(record[PdfField::imageBottom]) - realOf(record[PdfField::imageTop]));
  const double bottom = kPageHeight - height - pointsFromTwips(realOf(record[PdfField::imageTop]));
  fit.box = {width, height};
  if (image != nullptr) document_.fitImage(*image, left, bottom, fit);
  document_.rectangle(left, bottom, width, height);
  document_.stroke();
}

// The same in its own size.
void PdfWriter::putAtCorner(const PdfImage* image, const MarkupRecord& record) {
  const double left = wholePoints(record[PdfField::imageLeft]);
  const double top = kPageHeight - wholePoints(record[PdfField::imageTop]);
  if (image != nullptr) document_.fitImage(*image, left, top, kNaturalSize);
  const double perPixel = pointsPerDot(kNaturalSize.dpi);
  document_.rectangle(left, top - last_image_.y * perPixel, last_image_.x * perPixel,
                      last_image_.y * perPixel);
  document_.stroke();
}

void PdfWriter::writeImage(const MarkupRecord& record) {
  constexpr std::int32_t kNone = -1;
  const std::int32_t frame = integerOf(record[PdfField::imageColor]);
  document_.setStrokeColor(frame == 0 ? PdfColor{1, 1, 1} : colorOf(record[PdfField::imageColor]));
  std::string buffer;
  const PdfImage* image =
      imageOf(pictureNamed(asReported(record[PdfField::imageFile], buffer), code_page_));
  const std::string_view stretch = record[PdfField::imageStretch];
  switch (stretch.empty() ? kNone : integerOf(stretch)) {
    case kNaturalStretch: return putAtCorner(image, record);
    case kFillStretch: return putInBox(image, record, {.vertical = 1, .method = FitMethod::entire});
    case kFitStretch:
      return putInBox(image, record,
                      {.horizontal = 0.5, .vertical = 0.5, .method = FitMethod::meet});
    default: break;
  }
}

void PdfWriter::writeBarcode(const MarkupRecord& record) {
  if (!record[PdfField::boxColor].empty())
    document_.setStrokeColor(colorOf(record[PdfField::boxColor]));
  std::string buffer;
  const std::string name = barcodePictureName(
      {stem_, asReported(record[PdfField::barcodeValue], buffer), code_page_,
       integerOf(record[PdfField::boxLeft]), integerOf(record[PdfField::boxTop])},
      ".jpeg");
  const PdfImage* image = imageOf(storedPicture(name, LinkSource::refused));
  if (image == nullptr) return;
  document_.fitImage(*image, wholePoints(record[PdfField::boxLeft]),
                     kPageHeight - wholePoints(record[PdfField::boxTop]), kNaturalSize);
}

}  // namespace qor
