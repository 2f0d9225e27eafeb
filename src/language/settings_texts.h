// The texts of the settings dialog, and of what comes of its print button.
#pragma once

#include <array>
#include <string_view>

namespace qor {

struct SettingsTexts {
  // The dialog and its buttons.
  std::string_view title;
  std::string_view applyHint;
  std::string_view defaultsHint;
  std::string_view select;
  std::string_view defaults;
  std::string_view apply;
  std::string_view print;
  std::string_view cancel;
  // Printers, and what to print.
  std::string_view printerTab;
  std::string_view printerList;
  std::string_view noPrinters;
  std::string_view printOrder;
  std::string_view frontToBack;
  std::string_view backToFront;
  std::string_view paperSource;
  std::string_view pages;
  std::string_view allPages;
  std::string_view currentPage;
  std::string_view pageNumbers;
  std::string_view numbersHint;
  std::string_view numbersExample;
  std::string_view copies;
  std::string_view quantityOfCopies;
  std::string_view collate;
  std::string_view printTab;
  std::string_view quality;
  std::string_view qualityDefault;
  std::string_view draft;
  std::string_view low;
  std::string_view medium;
  std::string_view high;
  std::string_view printColor;
  std::string_view colorDefault;
  std::string_view monochrome;
  std::string_view colored;
  // The base font.
  std::string_view fontTab;
  std::string_view fontList;
  std::string_view fontSize;
  std::string_view fontHeight;
  std::string_view fontWidth;
  std::string_view fontSpace;
  std::string_view fontColor;
  std::string_view style;
  std::string_view bold;
  std::string_view underline;
  std::string_view italic;
  std::string_view strikeOut;
  std::string_view characterSet;
  std::string_view fontExample;
  std::string_view noFont;
  // The sheet.
  std::string_view pageTab;
  std::string_view orientation;
  std::string_view autoDetect;
  std::string_view portrait;
  std::string_view landscape;
  std::string_view margins;
  std::string_view leftMargin;
  std::string_view topMargin;
  std::string_view pageSize;
  std::string_view format;
  std::string_view custom;
  std::string_view pageWidth;
  std::string_view pageHeight;
  std::string_view baseCodePage;
  // Settings sets in their file.
  std::string_view openFile;
  std::string_view openFileHint;
  std::string_view saveFile;
  std::string_view saveFileHint;
  std::string_view saveFileAs;
  std::string_view saveFileAsHint;
  std::string_view setsTab;
  std::string_view nameOfFile;
  std::string_view nameOfSet;
  std::string_view namesOfSets;
  std::string_view setValues;
  std::string_view deleteSet;
  std::string_view scaleToPaper;
  // The code pages that are offered, by their places.
  std::array<std::string_view, 7> codePages;
  // Words beside the controls. A "%" stands for a number.
  std::string_view askingPrinter;
  std::string_view askingPrinters;
  std::string_view printerSilent;
  std::string_view printerGone;
  std::string_view onePage;
  std::string_view manyPages;
  std::string_view noPageChosen;
  std::string_view pagesNotRead;
  std::string_view printersValues;
  std::string_view bringBack;
  std::string_view setInForce;
  std::string_view printing;
  std::string_view printedTo;
  std::string_view eachPageOnce;
  std::string_view nothingPrinted;
};

}  // namespace qor
