// What crosses between the ways into an export and the exporters.
#pragma once

#include <bitset>
#include <string>
#include <vector>

namespace qor {

// Places in ExportOptions::ImageFormats, in the order in which files are written.
enum ImageFormat { kImageBmp, kImageJpeg, kImageGif, kImageIco, kImagePng, kImageFormatCount };

struct ExportOptions {
  std::string TargetName;
  bool UseNewPageChar = false;  // text: a form feed line after each page
  bool UseEofChar = false;      // text: an end-of-file line at the end
  bool SaveHtmlPictures = false;
  bool SaveDocPictures = false;
  bool PrintToPdfPrinter = false;
  bool ScaleToPaper = false;
  int PaperScale = 100;  // percent, where the page is to be scaled to the paper
  std::bitset<kImageFormatCount> ImageFormats;
  bool PagePerSheet = false;
  char CsvSeparator = ';';
  int PageMode = 0;          // how pages are read; the windows ask in kWindowPageMode
  int PreviewPageWidth = 0;  // of the page as the window first painted it, pixels
};

// PDFs that are asked for in this page mode have the width of the page on view.
inline constexpr int kWindowPageMode = 7;

// The names of the files that a picture export wrote, in order.
using ExportFileList = std::vector<std::string>;

// What an exporter may return: stop here and say nothing more, or look into the file list.
inline constexpr int kExportStop = -1;
inline constexpr int kExportFiles = 100;

}  // namespace qor
