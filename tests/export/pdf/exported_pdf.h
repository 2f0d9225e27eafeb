// Exports of reports as PDF documents, by the program.
#pragma once

#include <filesystem>

#include <gtest/gtest.h>

#include "support/program.h"

namespace qor::test {

class PdfExport : public testing::Test {
 protected:
  Outcome exportReport(const std::string& report, const std::string& codePage = "1254",
                       unsigned long limit = 0) {
    directory_.write("r.txt", report);
    return runViewer({"-f", "r.txt", "-codepage", codePage, "-caption", "T", "-export", "r.pdf"},
                     {directory_.path(), {{"SOURCE_DATE_EPOCH", "86400"}}, limit});
  }

  // The operators of all pages, each page between "page" lines, as qpdf unpacks them.
  std::string operators(const std::string& report, const std::string& codePage = "1254") {
    EXPECT_EQ(exportReport(report, codePage).exitCode, 0);
    run({"qpdf", "--qdf", "--object-streams=disable", directory_.path("r.pdf"),
         directory_.path("q.pdf")});
    const std::string file = directory_.read("q.pdf");
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
               {directory_.path(), {}, 0});
  }

  TemporaryDirectory directory_;
};

}  // namespace qor::test
