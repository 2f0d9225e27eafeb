// The options of the run: one record for the process. All texts are UTF-8. Four write it: the
// entry (WinMain, ParseCommandLine, and the ways of running, which put DynamicMode off where nobody
// looks again and forget an IniFileName that no user has named), the selection of a language
// (FontCharset, AnsiCodePage, DocCodePage, the last of which the window puts back while a report is
// open), VSet::LoadSet (IniFileName and SetName, where none are named), and the settings dialog
// (PrinterName, IniFileName, SetName). Everybody reads it but exporters and print jobs, which are
// told what they need (RunOptions): they may be for another printer or another target than the
// run's.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace qor {

struct AppOptionsRecord {
  std::string ProgramName = "QorPrint";
  std::string ProgramVersion = "1.0b";
  std::string WorkDir;      // directory of the start, with a closing separator
  std::string FileName;     // the report
  std::string IniFileName;  // set file; empty means the default one
  std::string SetName;      // the set in it
  std::string PrinterName;  // empty means the default printer
  std::string WindowCaption;
  bool DeleteAfterPrint = false;
  bool DynamicMode = false;  // the report is still being written
  bool TestMode = false;
  bool Drawn = false;       // exports as PDF show the pages as drawn
  int FontCharset = 0;      // Windows character set number of the interface language
  int AnsiCodePage = 1252;  // of the interface language
  int DocCodePage = 850;
  bool CodePageGiven = false;  // DocCodePage was told by the command line
  bool OpenedByUser = false;   // the command line says nothing of the report
  int MailProgram = 1;
  std::string ExportTarget = "pdf";
  std::uint64_t OwnerWindow = 0;  // told when the preview closes
  // Directories, below which alone reports find pictures; nothing: anywhere.
  std::optional<std::vector<std::string>> PicturePlaces;
};

inline AppOptionsRecord AppOptions;

}  // namespace qor
