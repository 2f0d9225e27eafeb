// What crosses between the ways into an export and the exporters.
#pragma once

#include <bitset>
#include <functional>
#include <string>
#include <vector>

#include "base/run_options.h"
#include "document/page_loop.h"
#include "export/page_ranges.h"
#include "export/page_share.h"

namespace qor {

// Places in ExportOptions::ImageFormats, in the order in which files are written.
enum ImageFormat { kImageBmp, kImageJpeg, kImageGif, kImageIco, kImagePng, kImageFormatCount };

using ImageFormatSet = std::bitset<kImageFormatCount>;

struct ExportOptions {
  bool UseNewPageChar = false;  // text: a form feed line after each page
  bool UseEofChar = false;      // text: an end-of-file line at the end
  bool SaveHtmlPictures = false;
  bool SaveDocPictures = false;
  bool PrintToPdfPrinter = false;
  bool DrawnPages = false;  // PDF: as drawn, else as told
  bool ScaleToPaper = false;
  int PaperScale = 100;  // percent, where the page is to be scaled to the paper
  ImageFormatSet ImageFormats;
  bool PagePerSheet = false;
  char CsvSeparator = ';';
  int PreviewPageWidth = 0;  // of the page as the window first painted it, pixels
};

// What an export came to: done; stopped by the user or for a reason that was told; or the files of
// the list were written. Companions know the values.
enum class ExportResult { stopped = -1, done = 0, files = 100 };

// The names of the files that an export wrote, in order.
using ExportFileList = std::vector<std::string>;

// One export. The exporters walk the document page by page and keep one page at a time. They throw
// what reading pages throws, StoppedError where `progress` asks for it, and FileError where the
// target can't be written; the target is then as it was.
struct ExportTask {
  VDoc& doc;
  std::string target;      // a file; pictures of several pages make their names of it
  RunOptions startedWith;  // the run
  ExportOptions options{};
  PageMode mode = PageMode::plain;  // that of the format where a window asks
  PageProgress progress{};
  std::function<void(const std::string& file)> starts{};  // told of each picture, if not empty
  ExportFileList files{};                                 // appended to, also one that then fails
  std::string notice{};  // what of the pages the files don't show, in the interface's language
  PageRanges pages{};
  std::size_t processors = 1;  // that a long report may take
  PageShare* share = nullptr;  // of pictures: the pages of this process where others make the rest
  // Names the picture of a page, where the target's own way is not wanted: of one format then.
  std::function<std::string(std::int32_t page)> pictureName{};

  std::int32_t pageCount() const { return pages.countOf(doc.PageCount); }
  std::int32_t lastPage() const { return pages.lastOf(doc.PageCount); }
};

// Calls `use` with each page of the task. Throws as the document's.
template <class Use>
void forEachPage(const ExportTask& task, Use use) {
  const auto wanted = [&task](std::int32_t number) {
    return task.pages.has(number) && (task.share == nullptr || task.share->has(number));
  };
  forEachPage(task.doc, task.mode, task.progress, wanted, use);
}

}  // namespace qor
