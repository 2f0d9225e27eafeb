// Pages as pictures.
#include "export/image/image_export.h"

#include <array>

#include "base/errors.h"
#include "base/units.h"
#include "document/code_page.h"
#include "export/image/picture_names.h"
#include "platform/canvas/bitmap_canvas.h"
#include "platform/pictures/save_picture.h"
#include "platform/system/messages.h"
#include "platform/system/output_file.h"
#include "render/page_walk.h"
#include "render/sheet.h"

namespace qor {
namespace {

// By ImageFormat.
constexpr std::array<PictureFormat, kImageFormatCount> kFormats = {
    PictureFormat::bmp, PictureFormat::jpeg, PictureFormat::gif, PictureFormat::ico,
    PictureFormat::png};

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

// Only the target itself was named by the user; where a link stands in another one's place, it
// goes.
void savePage(BitmapCanvas& bitmap, PictureFormat format, const ExportTask& task) {
  const std::string& name = task.files.back();
  OutputFile file(name, name == task.target ? LinkTarget::written : LinkTarget::spared);
  savePicture(bitmap.pixels(), format, kPictureDpi, file);
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
  const ImageFormatSet formats = writtenFormats(task.target, task.options.ImageFormats);
  const PictureNames names(task);
  layOutSheet(task.doc.Settings);
  BitmapCanvas bitmap = bitmapOf(task.doc.Settings.Scr, task.target);
  forEachPage(task, [&](VDocPage& page) {
    bitmap.clear();
    RenderPageToImage(page, bitmap.canvas());
    // What one page replaces no other one brings back.
    task.doc.RequireSameFile();
    for (std::size_t i = 0; i < kFormats.size(); ++i) {
      if (!formats.test(i)) continue;
      task.files.push_back(names.name(page.Number, i));
      if (task.starts) task.starts(task.files.back());
      savePage(bitmap, kFormats[i], task);
    }
  });
  return ExportResult::files;
}

}  // namespace qor
