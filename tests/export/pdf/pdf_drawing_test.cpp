// What stands on the pages of PDF documents.
#include "export/pdf/exported_pdf.h"

namespace qor::test {
namespace {

// With "*" for the place of an item, "#" for its box; "@" for the start of a text in the usual
// font, "%" for the rectangle of the box, ";" for the end of a line.
std::string expanded(std::string text) {
  for (const auto& [mark, words] : {std::pair{'*', "left=10 top=20"},
                                    {'#', "left=10 top=20 right=30 bottom=40"},
                                    {'@', "BT;/F0 10 Tf;"},
                                    {'%', "28 786 57 -57 re;S;"}})
    for (auto at = text.find(mark); at != std::string::npos; at = text.find(mark, at))
      text.replace(at, 1, words);
  std::ranges::replace(text, ';', '\n');
  return text;
}

// What a report's lines become, worked out by hand: 1 mm is 56.69 twips and a point 20, baselines
// of plain lines are 11 points apart, the page is 842 points high.
TEST_F(PdfExport, putsEachKindOfRecordWhereTheArithmeticSays) {
  const std::string turn =
      "q;1.000000 0.000000 0.000000 1.000000 28.3 775.35 cm;"
      "0.000000 1.000000 -1.000000 0.000000 0 0 cm;";
  const std::pair<const char*, std::string> rows[] = {
      {"A\r\nB\r\nC(\\)\r\n", "@0 831 Td;(A)Tj;11 TL;(B)';(C\\(\\\\\\))';ET;"},
      {"A<font fc=Red>B<font/>C", "@0 831 Td;(A)Tj;1 0 0 rg;(B)Tj;0 0 0 rg;(C)Tj;ET;"},
      {"A\rB\r\n", "@0 831 Td;(A)Tj;0 0 Td;(B)Tj;ET;"},
      // 566 and 1133 twips are 28.3 and 56.65 points; plain text goes to the same spot from then
      // on.
      {"<text * tc=X/>\r\nY\r\n", "@28.3 775.35 Td;(X)Tj;11 TL;(Y)';ET;"},
      {"A<text * tc=X/>", "@0 831 Td;(A)Tj;28.3 -55.65 Td;(X)Tj;ET;"},
      {"<text * o=1 tc=X/>", "TURN@(X)Tj;ET;Q;"},
      {"<text * o=1 fc=Red tc=X/><text * tc=Y/>",
       "TURNBT;1 0 0 rg;/F0 10 Tf;(X)Tj;ET;Q;@28.3 775.35 Td;(Y)Tj;ET;"},
      {"<text * od=-900 tc=X/>", "@28.3 775.35 Td;(X)Tj;ET;"},
      {"<text * fn=Arial height=20 fb=1 fc=Blue tc=X/>",
       "BT;0 0 1 rg;/F0 20 Tf;28.3 765.35 Td;(X)Tj;ET;"},
      // Whole points: 566, 1133, 1700 and 2267 twips are 28, 56, 85 and 113.
      {"<shape # pt=2/>", "28 786 m;85 729 l;S;"},
      {"<shape # sh_type=2 pc=Red/>", "1 0 0 RG;%"},
      {"<shape # sh_type=2 pt=4/><shape # sh_type=2 pt=0/>", "[ 4 3 1 3]0 d;%[]0 d;%"},
      {"<shape # sh_type=2 pt=3/><shape # sh_type=2 pt=5/>", "[ 2 2]0 d;%[ 4 3 1 3 1 3]0 d;%"},
      {"<shape # sh_type=3/><shape # sh_type=4/><shape # sh_type=2 pt=6/>", ";"},
      {"<img # image=\"none.png\" imgSS=1 pc=Red/><img # image=\"none.png\"/>",
       "1 0 0 RG;28.3 728.65 56.7 56.7 re;S;1 1 1 RG;28 786 0 0 re;S;"},
      {"<shape # sh_type=2 pt=2/><text * fn=Z003 height=30 fb=1 tc=X/>",
       "[ 4 2]0 d;%BT;/F0 30 Tf;2 Tr;1.25 w;[]0 d;28.3 755.35 Td;(X)Tj;ET;"},
      {"<text * fn=Z003 height=30 fb=1 tc=X/><text * fn=Z003 height=30 tc=X/>",
       "BT;/F0 30 Tf;2 Tr;1.25 w;28.3 755.35 Td;(X)Tj;/F1 30 Tf;0 Tr;0 0 Td;(X)Tj;ET;"},
      {"<text * fn=\"Standard Symbols PS\" fi=1 tc=1/>",
       "@1.000000 0.000000 0.212600 1.000000 28.3 775.35 Tm;(1)Tj;ET;"},
      {"A[fn:B:fn]C\r\n", "@0 831 Td;(A[fn:B:fn]C)Tj;ET;"},
      {"A[st:1:st]\r\n", "@0 831 Td;(A[st:1:st])Tj;ET;"},
      {"<text * tc=:tc][x/>", "@28.3 775.35 Td;(:tc][x)Tj;ET;"},
      {"<text * tc=\"\x01"
       "A[B\x02]\"/>",
       "@28.3 775.35 Td;<01415b42025d>Tj;ET;"},
      // Of the two letters that end lines of records, one may stand in a text.
      {"A<text * tc=\"x;y\"/>B\r\n", "@0 831 Td;(A)Tj;28.3 -55.65 Td;(x\\ny)Tj;0 0 Td;(B)Tj;ET;"},
      {"A<barcode # value=\"1;2\"/>B\r\nC", "@0 831 Td;(A)Tj;(B)Tj;11 TL;(C)';ET;"},
      {"<font height=-1/>X\r\nY", "BT;/F0 -1 Tf;0 842 Td;(X)Tj;0 0 Td;(Y)Tj;ET;"},
      {"<font height=-30 fn=Z003 fb=1/>X", "BT;/F0 -30 Tf;2 Tr;1.25 w;0 871 Td;(X)Tj;ET;"},
      {"A\r\n\fB\r\n\f", "@0 831 Td;(A)Tj;ET;page;@0 831 Td;(B)Tj;ET;"}};
  for (auto [report, drawn] : rows) {
    if (drawn.starts_with("TURN")) drawn.replace(0, 4, turn);
    EXPECT_EQ(operators(expanded(report)), expanded(drawn)) << report;
  }
}

TEST_F(PdfExport, alignsTextsInTheirBoxes) {
  exportReport("A\r\n");
  const std::string file = unpacked();
  const double capitals = std::atof(file.c_str() + file.find("/CapHeight ") + 11) / 100;
  const double width = 6.001;  // of one character of 10 points
  // From 10, 20 to 30, 25 mm: 57 by -14 points, from 28.3, 785.35.
  const std::tuple<int, int, double, double> rows[] = {{0, 0, 0, 0.5},   {1, 1, 0.5, 0.5},
                                                       {2, 2, 1, 1},     {0, 1, 0, 0.5},
                                                       {1, 0, 0.5, 0.5}, {3, 2, 0, 0}};
  for (const auto& [across, along, right, up] : rows) {
    const auto drawn = wordsOf(
        operators("<text left=10 top=20 right=30 bottom=25 alignH=" + std::to_string(across) +
                  " alignV=" + std::to_string(along) + " tc=X/>\r\n"));
    const auto place = std::ranges::find(drawn, "Tf") + 1;
    const double height = along == 1 ? -14 : -4;
    EXPECT_NEAR(std::stod(place[0]), 28.3 + right * (57 - width), 0.01) << across;
    EXPECT_NEAR(std::stod(place[1]), 785.35 + up * (height - capitals), 0.01) << along;
  }
}

TEST_F(PdfExport, fitsPicturesInThreeWays) {
  run({"convert-im6.q16", "-size", "96x48", "xc:red", place_.path("p.png")});
  run({"convert-im6.q16", "-size", "96x48", "xc:blue", place_.path("p.jpg")});
  // The box is 85.05 by 56.7 points; the picture 72 by 36 by itself.
  const std::array<const char*, 3> rows[] = {
      {"imgSS=0", "72 0 0 36 28 750 cm", "28 750 72 36 re"},
      {"imgSS=1", "85.05 0 0 56.7 28.3 728.65 cm", "28.3 728.65 85.05 56.7 re"},
      {"imgSS=2", "85.05 0 0 42.525 28.3 735.73", "28.3 728.65 85.05 56.7 re"}};
  for (const auto& [keys, matrix, frame] : rows) {
    for (const std::string name : {"p.png", "p.jpg"}) {
      const std::string drawn =
          operators("<img image=\"" + name + "\" left=10 top=20 right=40 bottom=40 " + keys + "/>");
      EXPECT_NE(drawn.find(matrix), std::string::npos) << drawn;
      EXPECT_NE(drawn.find(frame), std::string::npos) << drawn;
    }
  }
}

TEST_F(PdfExport, takesPicturesByTheNamesThatAllOthersTake) {
  run({"convert-im6.q16", "-size", "9x9", "xc:red", place_.path("p.png")});
  for (const char* name : {"p.tif", "p", "p.PNG", "[p].png"})
    place_.write(name, place_.read("p.png"));
  std::filesystem::create_directory(place_.path("d.png"));
  for (const auto& [name, shown] :
       rowsOf("p.png 1|p.PNG 1|[p].png 1|.\\p.png 1|p.tif 0|p 0|d.png 0|none.png 0")) {
    exportReport("<img image=\"" + name + "\" left=10 top=20/>");
    EXPECT_EQ(imagesOf(place_.path("r.pdf")).size(), shown == "1" ? 1U : 0U) << name;
  }
}

TEST_F(PdfExport, showsBarcodesThatAreRead) {
  exportReport(
      "<barcode br_type=ITF value=1540014128876 left=20 top=70 right=120 bottom=100/>"
      "<barcode br_type=KAREKOD value=\"https://qor/a?b=1\" left=20 top=120 right=60 bottom=160/>");
  run({"pdftoppm", "-r", "192", "-png", "-singlefile", place_.path("r.pdf"), place_.path("page")});
  const std::string read = run({"zbarimg", "-q", place_.path("page.png")}).output;
  EXPECT_EQ(read, "QR-Code:https://qor/a?b=1\nI2/5:15400141288763\n");
}

}  // namespace
}  // namespace qor::test
