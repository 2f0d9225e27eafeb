// A device context of a printer: what it measures under a device mode, and a job of pages.
#pragma once

#include <memory>
#include <string>

#include "platform/pdf/pdf_metadata.h"
#include "platform/print/printer.h"

namespace qor {

class Canvas;

struct DocumentInfo {
  PdfInformation document;
  std::string output;        // a file that takes the job in the printer's place; may be empty
  std::string fallbackFile;  // for a printer that makes files, where `output` is empty
};

class PrintContext {
 public:
  PrintContext(const Printer& printer, const DeviceMode& mode);
  ~PrintContext();
  PrintContext(const PrintContext&) = delete;
  PrintContext& operator=(const PrintContext&) = delete;

  const Printer& printer() const { return printer_; }
  const DeviceMode& mode() const { return mode_; }
  const DeviceCaps& caps() const { return caps_; }

  // Starts a job. Until endDocument() nothing of it is printed or replaced; without it the job is
  // taken back. This and the following throw FileError or PrintError.
  void startDocument(const DocumentInfo& info);

  // The file that the job becomes; empty where it goes to a device.
  const std::string& file() const { return file_; }

  // A page cut to the printable area. Its dots count from the corner of the sheet.
  Canvas& startPage();
  void endPage();

  // Hands the job over; one without pages is dropped.
  void endDocument();

 private:
  struct Document;

  Printer printer_;
  DeviceMode mode_;
  DeviceCaps caps_;
  std::string file_;
  std::unique_ptr<Document> document_;
};

}  // namespace qor
