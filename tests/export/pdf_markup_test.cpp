// Bracket markup, written and read.
#include "export/pdf_markup.h"

#include <gtest/gtest.h>

#include "support/report_reader.h"

namespace qor::test {
namespace {

TEST(PdfMarkup, isFoundByItsFirstMarks) {
  const MarkupRecord record("a[fn:x[fs:7:fs]y:fn][fs:8:fs][tl:5[ist:3:ist]\n");
  EXPECT_EQ(record.plainText(), "a");
  EXPECT_EQ(record[PdfField::fn], "x[fs:7:fs]y");
  EXPECT_EQ(record[PdfField::fs], "7");
  EXPECT_TRUE(record.has(PdfField::tl));
  EXPECT_EQ(record[PdfField::tl], "");
  EXPECT_EQ(record[PdfField::ist], "3");
  EXPECT_FALSE(record.has(PdfField::tt));
}

TEST(PdfMarkup, tellsEveryItem) {
  struct Row {
    const char* line;
    const char* records;
  };
  const std::string font = "[fn:Courier New:fn][fs:10:fs][fc:0:fc]";
  for (const Row& row :
       {Row{"a", "a@\n|"}, Row{"a<b>c<b/>", "a@\n\n|c@[fb:1:fb]|"},
        Row{"<text left=1 tc=x/>", "@[tl:56:tl][tt:0:tt][tr:0:tr][tc:x:tc]\n|"},
        Row{"<text left=1 right=2 bottom=3 alignH=1 alignV=2 tc=x/>",
            "@[tl:56:tl][tt:0:tt][tr:0:tr][tc:x:tc][ta:113:ta][tb:170:tb][th:1:th][tv:2:tv]\n|"},
        Row{"<shape left=-1 top=2 right=3 bottom=4 pc=Red pt=3/>",
            "[st:1:st][gl:-56:gl][gt:113:gt][gr:170:gr][gb:226:gb][gc:255:gc][pt:3:pt]\n|"},
        Row{"<barcode br_type=39 value=A left=1/>",
            "[bcv:A:bcv][gl:56:gl][gt:0:gt][gr:0:gr][gb:0:gb][gc:0:gc]\n|"},
        Row{"<img image=\"p.png\" top=1 imgSS=2/>",
            "[ist:1:ist][ifn:p.png:ifn][il:0:il][it:56:it][ir:0:ir][ib:0:ib][ic:0:ic][iss:2:iss]"
            "\n|"}}) {
    TestReport report(row.line);
    PdfLines lines(1);
    LineToMarkup(*report.page().FirstLine, lines, 0);
    std::string records;
    for (const std::string& record : lines[0]) records += record + "|";
    for (auto place = records.find(font); place != std::string::npos; place = records.find(font)) {
      records.replace(place, font.size(), "@");
    }
    EXPECT_EQ(records, row.records);
  }
}

}  // namespace
}  // namespace qor::test
