// A report as a document.
#include "export/rtf/word_export.h"

#include <string>

#include "barcode/barcode_picture.h"
#include "base/path.h"
#include "document/side_picture.h"
#include "document/vdoc.h"
#include "export/rtf/line_to_word.h"
#include "export/rtf/word_pictures.h"
#include "platform/rtf/word_document.h"
#include "platform/system/output_file.h"
#include "render/sheet.h"

namespace qor {
namespace {

constexpr const char* kFirstFace = "Courier New";
constexpr double kFirstSize = 8;  // points

WordPage pageOf(const VSetPage& settings) {
  const SheetSize sheet = sheetSizeOf(settings);
  WordPage page;
  page.width = sheet.width;
  page.height = sheet.height;
  return page;
}

// True where the last line has placed a shape or a picture.
bool typeLines(const VDocPage& page, const WordTyping& typing) {
  bool placed = false;
  forEachLine(page, [&](const VDocStr& line) {
    placed = LineToWord(line, typing);
    typing.document.endParagraph();
  });
  return placed;
}

}  // namespace

ExportResult ExportWord(ExportTask& task) {
  NewSidePictures made;
  OutputFile file(task.target);
  const VSetPage& settings = task.doc.Settings.Page;
  const auto document = makeRtfDocument(file);
  const DocumentText text(settings.BaseCodePage);
  WordPictures pictures(sideFileStem(task.startedWith.report));
  const bool wantsPictures = task.options.SaveDocPictures;
  const WordTyping typing = {*document, text, wantsPictures ? &pictures : nullptr};
  document->setPage(pageOf(settings));
  document->setFont(kFirstFace, kFirstSize);
  const std::int32_t lastPage = task.lastPage();
  forEachPage(task, [&](const VDocPage& page) {
    if (wantsPictures) writeBarcodePicturesOf(page, pictures.stem());
    const bool placed = typeLines(page, typing);
    if (page.Number < lastPage) document->breakPage(placed ? WordBreak::beside : WordBreak::typed);
  });
  document->save();
  file.commit();
  made.keep();
  task.files.push_back(task.target);
  return ExportResult::done;
}

}  // namespace qor
