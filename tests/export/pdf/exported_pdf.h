// Exports of reports as PDF documents, by the program.
#pragma once

#include "support/exporting.h"

namespace qor::test {

class PdfExport : public Exporting {
 protected:
  // As "r.pdf", at a time of its own.
  Outcome exportReport(const std::string& report, const std::string& codePage = "1254",
                       unsigned long limit = 0) {
    return exportTo("r.pdf", report, {"-codepage", codePage, "-caption", "T"},
                    {{}, {{"SOURCE_DATE_EPOCH", "86400"}}, limit});
  }

  std::string unpacked(const std::string& name = "r.pdf") const {
    return unpackedPdf(place_.path(name));
  }

  // The operators of all pages, each page between "page" lines.
  std::string operators(const std::string& report, const std::string& codePage = "1254") {
    EXPECT_EQ(exportReport(report, codePage).exitCode, 0);
    const std::string file = unpacked();
    std::string pages;
    for (auto page = file.find("%% Contents for page"); page != std::string::npos;
         page = file.find("%% Contents for page", page + 1)) {
      const auto first = file.find("stream\n", page) + 7;
      pages += (pages.empty() ? "" : "page\n") +
               file.substr(first, file.find("endstream", first) - first);
    }
    return pages;
  }

  // The same report, by a program that stands elsewhere.
  Outcome exportByCopy(const TemporaryDirectory& program, const char* option = "") {
    for (const char* name : {"qorutlview", "qor_harfbuzz.so"})
      std::filesystem::copy_file(std::filesystem::path(QOR_PROGRAM).parent_path() / name,
                                 program.path(name));
    return run({program.path("qorutlview"), "-f", "r.txt", "-codepage", "1254", option, "-export",
                "r.pdf"},
               in(place_));
  }
};

}  // namespace qor::test
