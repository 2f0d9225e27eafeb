// Pages as pictures.
#include "export/image/image_export.h"

#include <array>

#include "base/errors.h"
#include "base/path.h"
#include "base/units.h"
#include "document/code_page.h"
#include "platform/canvas/bitmap_canvas.h"
#include "platform/pictures/save_picture.h"
#include "platform/system/messages.h"
#include "render/page_walk.h"
#include "render/sheet.h"

namespace qor {
namespace {

struct FormatRow {
  std::string_view extension;
  PictureFormat format;
};

// By ImageFormat.
constexpr std::array<FormatRow, kImageFormatCount> kFormats = {{{".bmp", PictureFormat::bmp},
                                                                {".jpeg", PictureFormat::jpeg},
                                                                {".gif", PictureFormat::gif},
                                                                {".ico", PictureFormat::ico},
                                                                {".png", PictureFormat::png}}};

// The names of the files: the target's without its extension, and the page's number where there are
// several pages.
class TargetNames {
 public:
  TargetNames(const std::string& target, bool numbered)
      : stem_(std::string(directoryOf(target)).append(baseNameOf(target))), numbered_(numbered) {}

  std::string name(std::int32_t page, std::string_view extension) const {
    const std::string number = numbered_ ? "(" + std::to_string(page) + ")" : "";
    return (stem_ + number).append(extension);
  }

 private:
  std::string stem_;
  bool numbered_;
};

BitmapCanvas bitmapOf(const VSetScr& screen, const std::string& target) {
  try {
    return {screen.paper_width, screen.paper_height, kPictureDpi};
  } catch (const PictureError& error) {
    throw FileError(target + ": " + error.what(), ErrorKind::cannotWrite);
  }
}

void layOutSheet(VSet& settings) {
  settings.Prn = sheetAsDevice(settings.Page, kPictureDpi);
  settings.Scr = screenOf(settings.Page, settings.Prn, kPictureDpi);
}

}  // namespace

void RenderPageToImage(VDocPage& page, Canvas& canvas) {
  const VSetScr& screen = page.Settings->Scr;
  canvas.setClip({screen.print_left, screen.print_top, screen.print_right, screen.print_bottom});
  canvas.setMapping(
      {double(screen.dpi_x), double(screen.dpi_y), screen.print_left, screen.print_top});
  LoadCodePage(page.Settings->Page.BaseCodePage);
  DrawPage(page, canvas);
  canvas.clearClip();
}

ExportResult ExportImages(ExportTask& task) {
  if (task.doc.PageCount == 0) showWarning(task.target + ": the report has no pages");
  auto formats = task.options.ImageFormats;
  if (extensionOf(task.target).empty()) formats.set(kImageJpeg);
  const TargetNames names(task.target, task.doc.PageCount != 1);
  layOutSheet(task.doc.Settings);
  BitmapCanvas bitmap = bitmapOf(task.doc.Settings.Scr, task.target);
  forEachPage(task.doc, task.mode, task.progress, [&](VDocPage& page) {
    bitmap.clear();
    RenderPageToImage(page, bitmap.canvas());
    for (std::size_t i = 0; i < kFormats.size(); ++i) {
      if (!formats.test(i)) continue;
      task.files.push_back(names.name(page.Number, kFormats[i].extension));
      savePicture(bitmap.pixels(), kFormats[i].format, kPictureDpi, task.files.back());
    }
  });
  return ExportResult::files;
}

}  // namespace qor
