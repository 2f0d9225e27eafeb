// The names that the export dialog proposes.
#include "window_model/export_names.h"

#include "export/export_formats.h"
#include "support/test.h"

namespace qor::test {
namespace {

std::string text(const ProposedName& name) {
  return name.fileName + " " + std::string(name.filter) + " " + std::string(name.defaultExtension);
}

TEST(ExportNames, areMadeOfTheReportsName) {
  const std::tuple<int, int, const char*> rows[] = {
      {kExportText, 0, "d/a.txt *.txt|*.txt .txt"},
      {kExportHtml, 0, "d/a.html *.html|*.html|*.htm|*.htm .html"},
      {kExportRtf, 0, "d/a.rtf *.rtf|*.rtf .rtf"},
      {kExportDoc, 0, "d/a.doc *.doc|*.doc .doc"},
      {kExportPdf, 0, "d/a.pdf *.pdf|*.pdf .pfd"},
      {kExportPictures, 0, "d/a.b.jpeg *.jpeg|*.jpeg .jpeg"},
      {kExportSheets, 0, "d/a.xls *.xls|*.xls .xls"},
      {kExportSheets, 1, "d/a.xlsx *.xlsx|*.xlsx .xls"},
      {kExportSheets, 2, "d/a.csv *.csv|*.csv .xls"},
      {kExportSheets, 3, "d/a.xls *.xls|*.xls .xls"},
      {kExportSheets, -1, "d/a.xls *.xls|*.xls .xls"}};
  for (const auto& [format, type, expected] : rows)
    EXPECT_EQ(text(BuildExportFileName("d/a.b.c", format, type)), expected) << format;
}

TEST(ExportNames, keepWhatUsersKnow) {
  // A report; what text, DOC, PDF and pictures are called. A point in a directory cuts nothing.
  const char* const rows[] = {
      "rapor.txt rapor(conv).txt rapor.doc rapor.pdf rapor.jpeg",
      "rapor.doc rapor.txt rapor(conv).doc rapor.pdf rapor.jpeg",
      "rapor.TxT rapor(conv).txt rapor.doc rapor.pdf rapor.jpeg",
      "rapor.txt.txt rapor.txt rapor.doc rapor.pdf rapor.txt.jpeg",
      "a.b.txt a.txt a.doc a.pdf a.b.jpeg",
      "a.bc.b a.txt a.doc a.pdf ac.b.jpeg",
      "/d.e/a.txt /d.e/a(conv).txt /d.e/a.doc /d.e/a.pdf /d.e/a.jpeg",
      "C:\\r.s\\a.b.txt C:\\r.s\\a.txt C:\\r.s\\a.doc C:\\r.s\\a.pdf C:\\r.s\\a.b.jpeg",
      "/d.e/rapor .txt .doc .pdf /d.e/rapor.jpeg"};
  for (const char* row : rows) {
    const std::vector<std::string> words = wordsOf(row);
    std::size_t place = 1;
    for (const int format : {kExportText, kExportDoc, kExportPdf, kExportPictures})
      EXPECT_EQ(BuildExportFileName(words[0], format, 0).fileName, words[place++]) << row;
  }
}

TEST(ExportNames, ofSpreadsheetsFollowTheirType) {
  const std::tuple<const char*, int, const char*> rows[] = {
      {"x.y.z", 2, "x.csv *.csv|*.csv .xls"},
      {"x.y.z", 1, "x.xlsx *.xlsx|*.xlsx .xls"},
      {" /d.e/x y .xls ", 0, "/d.e/x y.xls *.xls|*.xls .xls"},
      {"/d.e/x", 2, "/d.e/x.csv *.csv|*.csv .xls"},
      {"..\\x.xls", 2, "..\\x.csv *.csv|*.csv .xls"},
      {".xls", 2, ".csv *.csv|*.csv .xls"},
      {"", 1, ".xlsx *.xlsx|*.xlsx .xls"}};
  for (const auto& [typed, type, expected] : rows)
    EXPECT_EQ(text(nameForSheetType(typed, type)), expected) << typed;
}

}  // namespace
}  // namespace qor::test
