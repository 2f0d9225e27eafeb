// The texts of exports and of sending them, but for the captions of the dialog, which are the same
// in every language.
#pragma once

#include <array>
#include <string_view>

namespace qor {

struct ExportTexts {
  // Before and behind a file's name while it is made.
  std::string_view ExportWaitPrefix;
  std::string_view ExportWaitSuffix;
  std::string_view chooseFile;
  // What is wrong with a target. All but the first and the last stand before its name.
  std::string_view nameMissing;
  std::string_view lineEndInName;
  std::string_view nameIsDirectory;
  std::string_view nameIsReport;
  std::string_view nameTooLong;
  std::string_view directoryMissing;
  std::string_view noPermission;
  std::string_view notRegular;
  std::string_view nothingToWrite;
  // Questions, before the names of the files, and their answers. A "%" stands for a number.
  std::string_view replace;
  std::string_view keep;
  std::string_view fileExists;
  std::string_view filesExist;
  std::string_view andMore;
  // Before a file's name.
  std::string_view noExporter;
  std::string_view noProgram;
  // What PDF doesn't show, behind a start, and what does, in the dialog and on the command line.
  std::string_view pdfNoticeStart;
  std::array<std::string_view, 7> pdfLosses;  // by PdfLoss
  std::string_view pdfByBox;
  std::string_view pdfByCommand;
  // Of documents: which box their pictures have, and what becomes of a page.
  std::string_view rtfPictures;
  std::string_view documentsFlow;
};

}  // namespace qor
