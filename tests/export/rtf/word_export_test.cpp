// Documents of the program, as word processors and other readers see them.
#include "export/export_formats.h"
#include "platform/rtf/rtf_text.h"
#include "support/exporting.h"
#include "support/picture_file.h"

namespace qor::test {
namespace {

using Lines = std::vector<std::string>;

class WordExport : public Exporting {
 protected:
  Lines read(const std::string& file, const Lines& colours = {}) const {
    return readBy("rtf/read_word.py", file, colours);
  }

  // A picture of one colour, 96 by 48 pixels: 25.4 by 12.7 mm.
  std::string putPicture(const std::string& name, std::uint32_t colour, PictureFormat format) {
    const std::vector<std::uint32_t> pixels(96 * 48, colour);
    const std::string file = pictureFile({96, 48, 96, pixels.data()}, format);
    place_.write(name, file);
    return file;
  }
};

std::string hexOf(const std::string& bytes) {
  std::string digits;
  for (const unsigned char byte : bytes)
    digits += {"0123456789abcdef"[byte / 16], "0123456789abcdef"[byte % 16]};
  return digits;
}

// The numbers of each drawing object: its box, its depth, its kind, then where they are there flip
// or rounding, the line's, and the dots and the size of a picture.
std::string objectsOf(const std::string& rtf) {
  constexpr std::string_view kWords[] = {
      "shpleft",      "shptop",    "shpright",       "shpbottom",
      "shpz",         "picwgoal",  "pichgoal",       "picw",
      "pich",         "sn fLine",  "sn lineColor",   "sn lineWidth",
      "sn shapeType", "sn fFlipV", "sn adjustValue", "sn lineDashing"};
  std::string numbers;
  for (auto place = rtf.find('\\'); place != std::string::npos; place = rtf.find('\\', place + 1)) {
    const std::string_view rest = std::string_view(rtf).substr(place + 1);
    const auto* const word = std::find_if(std::begin(kWords), std::end(kWords),
                                          [rest](auto start) { return rest.starts_with(start); });
    if (word == std::end(kWords)) continue;
    const std::size_t digits = rest.find_first_of("-0123456789");
    numbers += word == kWords ? '|' : ' ';
    numbers += rest.substr(digits, rest.find_first_not_of("-0123456789", digits) - digits);
  }
  return numbers;
}

// A line of the report beside what becomes of it. What a line turns on and leaves on goes on; the
// next one that turns it on turns it off.
TEST_F(WordExport, typesLinesInTheirStyles) {
  const std::pair<std::string, std::string> rows[] = {
      {"<shape sh_type=1/>", ""},
      {"Plain <b>bold<b/> <i>it<i/> <u>un<u/> <s>s<s/> end",
       "{Arial 9.5}Plain {Arial 9.5 bold}bold{Arial 9.5} {Arial 9.5 italic}it{Arial 9.5} "
       "{Arial 9.5 underline}un{Arial 9.5} s end"},
      {"<s><font fp=699>6<font fp=700>7<font fp=401>4<font fp=400>0<font fp=700>7<font "
       "fp=401>x<s/>",
       "6{Arial 9.5 bold}74{Arial 9.5}0{Arial 9.5 bold}7x"},
      {"plain", "plain"},
      {"<b>bold<b/> plain", "{Arial 9.5}bold{Arial 9.5 bold} plain"},
      {"<b>again<b/>", "{Arial 9.5}again"},
      {"<s><font fi=2 fu=2>none <font fi=1 fu=1>both <font fi=2 fu=2>both<s/>",
       "none {Arial 9.5 italic underline}both both"},
      {"<i><u>neither<i/><u/>", "{Arial 9.5}neither"},
      {"<s><font fn=Times height=-14>\x8F\xE0\xA8\xA2\xA5\xE2 <font fn=Arial>\xFC<s/>",
       "{Times 14}Привет {Arial 14}№"},
      {"{a\\b}  ; \\u1055?", "{Arial 9.5}{a\\b}  ; \\u1055?"},
      {"<text left=50 top=99 height=20 tc=\"placed \"/>here", "{Arial 20}placed {Arial 9.5}here"},
      {"<font height=0>12<font/>", "{Arial 12}12"},
      {"", ""}};
  std::string report =
      "\fsecond\r\n<shape sh_type=2 left=9 top=9 right=20 bottom=20/>\fq<img image=\"p.png\"/>\f"
      "b<barcode br_type=39 value=A1 right=70 bottom=10/>\fs<shape sh_type=2/>\r\nend\f\f<shape "
      "sh_type=2/>\r\nunder\fthird"
      "<text memo left=1 top=1 tc=\"one\ntwo \" />";
  putPicture("p.png", 0, PictureFormat::png);
  std::string lines;
  Lines expected = {"sheet 210.0 148.0 3.5 3.5 3.5 3.5 landscape"};
  for (const auto& [line, told] : rows) {
    lines += line + "\r\n";
    expected.push_back(told);
  }
  lines.resize(lines.size() - 2);  // the page ends with the last line
  place_.write("s.vset", setWith("S",
                                 "Page BaseCodePage=866|Page PaperSize=11|Page Orientation=2|"
                                 "Font Name=Arial|Font Height=9.3"));
  expectTold(exportTo("r.rtf", lines + report, {"-i", "s.vset#S"}), "");
  for (const char* line : {"---{Arial 9.5}second", "", "---q", "---b", "---s", "end", "---", "---",
                           "under", "---thirdone\\ntwo ", "pages 8"})
    expected.emplace_back(line);
  EXPECT_EQ(read("r.rtf"), expected);
  const std::string rtf = place_.read("r.rtf");
  EXPECT_EQ(countOf("{\\page}", rtf), 3U) << "behind a shape, a picture and a barcode";
  EXPECT_EQ(countOf("\\fs16 \\par", rtf), 1U) << "before the first font of the report";
  expectTold(exportTo("./r.doc", lines + report, {"-i", "s.vset#S"}), "");
  EXPECT_TRUE(place_.read("r.doc") == rtf);
}

// Where inks lie on the sheet, millimetres from its corner: what of each colour is seen.
TEST_F(WordExport, placesShapesAndPictures) {
  const std::string png = putPicture("natural.png", 0x1080F0, PictureFormat::png);
  const std::string jpeg = putPicture("filled.jpg", 0xF01080, PictureFormat::jpeg);
  putPicture("tall.bmp", 0x10F080, PictureFormat::bmp);
  putPicture("wide.png", 0x8010F0, PictureFormat::png);
  putPicture("dots.png", 0xF08010, PictureFormat::png);
  place_.write("broken.png", png.substr(0, png.size() / 2));
  const std::string report =
      "<shape sh_type=1 left=60 top=90 right=20 bottom=70 pc=Red/>text "
      "<shape sh_type=1 left=60 top=100 right=20 bottom=140 pcHEX=0xFFFF0000 pt=2/>\r\n"
      "<shape sh_type=2 left=150 top=90 right=100 bottom=70 pc=Lime lw=113 bt=1 bc=Aqua pt=0/>\r\n"
      "<shape sh_type=3 left=100 top=100 right=150 bottom=130 rw=300 rh=900 pc=Green/>\r\n"
      "<shape sh_type=4 left=100 top=140 right=150 bottom=170 pc=Teal/><shape sh_type=9/>\r\n"
      "<shape sh_type=5 left=1 top=1 right=2 bottom=3 pt=3 lw=0/><shape sh_type=3 pt=5 rw=9 rh=9/>"
      "<shape sh_type=3 left=1 top=1 right=2 bottom=3 pt=4 rw=999 rh=999 lw=1/><shape sh_type=3/>"
      "<img image=\"natural.png\" left=20 top=180/>"
      "<img image=\"natural.png\" imgn=3/><img image=\"broken.png\"/><img image=\"none.png\"/>"
      "<img image=\"filled.jpg\" left=60 top=180 right=120 bottom=190 imgSS=1 pc=Red/>\r\n"
      "<img image=\"filled.jpg\" left=170 top=180 right=171 bottom=181 imgSS=7/>"
      "<img image=\"tall.bmp\" left=20 top=200 right=60 bottom=260 imgSS=2/>"
      "<img image=\"wide.png\" left=80 top=200 right=160 bottom=210 imgSS=2 sh_type=2 pc=Navy/>"
      "<img image=\"dots.png\" left=80 top=250 imgSS=3/>\r\n"
      "<barcode br_type=39 value=A1 left=20 top=270 right=90 bottom=280 brcHEX=0x404080 fi=1/>";
  expectTold(exportTo("out.rtf", report, {"-codepage", "866"}), "");
  std::vector<std::string> colours;
  Lines expected;
  for (const auto& [colour, place] :
       rowsOf("FF0000 20 70 60 90|0000FF 20 100 60 140|00FF00 99 69 151 91|008000 100 100 150 130|"
              "008080 100 140 150 170|1080F0 20 180 45 193|10F080 20 220 60 240|"
              "8010F0 110 200 130 210|000080 110 200 130 210|F08010 80 250 82 251")) {
    colours.push_back(colour);
    expected.push_back("ink 1 " + colour + " " + place);
  }
  Lines found = read("out.rtf", colours);
  std::erase_if(found, [](const std::string& line) { return !line.starts_with("ink"); });
  EXPECT_EQ(found, expected);
  std::string rtf = place_.read("out.rtf");
  EXPECT_EQ(objectsOf(rtf),
            "|1133 3968 3401 5102 1 20 1 255 9525|1133 5669 3401 7937 2 20 1 1 16711680 9525 1"
            "|5669 3968 8503 5102 3 1 1 65280 71755|5669 5669 8503 7370 4 2 1904 1 32768 9525"
            "|5669 7937 8503 9637 5 3 1 8421376 9525|56 56 113 170 6 1 1 0 9525 2"
            "|0 0 0 0 7 2 0 1 0 9525 4|56 56 113 170 8 2 10800 1 0 635 3|0 0 0 0 9 1 0 1 0 9525"
            "|1133 10204 2573 10924 10 75 0 96 48 1440 720"
            "|3401 10204 6803 10771 11 75 0 96 48 3402 567"
            "|9637 10204 11077 10924 12 75 0 96 48 1440 720"
            "|1133 12472 3401 13606 13 75 0 96 48 2268 1134"
            "|6235 11338 7369 11905 14 75 1 8388608 9525 96 48 1134 567"
            "|4535 14173 4631 14221 15 75 0 96 48 96 48"
            "|1133 15307 5093 15862 16 75 0 264 37 3960 555");
  for (const char* common : {"\\shpfblwtxt1", "fBehindDocument}{\\sv 1}", "fFilled}{\\sv 0}",
                             "posrelh}{\\sv 1}", "posrelv}{\\sv 1}"})
    EXPECT_EQ(countOf(common, rtf), 16U) << common;
  // PNG and JPEG are embedded as they came, others as PNG.
  std::erase(rtf, '\n');
  EXPECT_EQ(countOf("\\pngblip" + hexOf(png.substr(0, 8)), rtf), 4U);
  EXPECT_EQ(countOf("\\pngblip" + hexOf(png) + "}", rtf), 1U);
  EXPECT_EQ(countOf("\\jpegblip" + hexOf(jpeg) + "}", rtf), 2U);
  EXPECT_EQ(countOf("\\jpegblip" + hexOf(place_.read("r_barcode_A1_20_270.jpeg")), rtf), 1U);

  TestReport told(report, 866);
  ExportTask task = {told.doc(), place_.path("none.rtf"), runOptions()};
  runExport(*formatOf("none.rtf"), task);
  EXPECT_EQ(countOf("\\shp", place_.read("none.rtf")), 0U) << "where the dialog leaves them out";
  EXPECT_EQ(told.names(), Lines{"report.txt"});
}

TEST(RtfText, escapesWhatIsNotPlain) {
  std::string rtf = "\r";
  appendRtfText("\na\\b{c};~\ta\r\nb\rc\n\ne\x7F\x01z\x1F\u0080é7\u7FFF\u8000\uFFFD\uFFFE😀", rtf);
  appendRtfName(";a\n{;;\tb;", rtf);
  EXPECT_EQ(
      rtf,
      "\r\\line a\\'5cb\\'7bc\\'7d;~\\tab a\\line b\\line c\\line \\line e\\'7fz\\u128?\\u233?7"
      "\\u32767?\\u-32768?\\u-3?\\u-10179?\\u-8704?\\'3ba\\'7b\\'3b\\'3bb\\'3b");
}

// Anything may stand in a report: another reader takes the file, too, or the old one stays.
TEST_F(WordExport, survivesWhatReportsHold) {
  const std::string report =
      "x{\\}\1\xF0\xF1\xFC<font fn=\"A;b{\\}\" height=1000000>face<font/><shape sh_type=1 "
      "left=-999999999 top=5 right=999999999 bottom=-5 lw=2000000000/>";
  expectTold(exportTo("r.rtf", report, {"-codepage", "866"}), "");
  const std::string rtf = place_.read("r.rtf");
  EXPECT_EQ(objectsOf(rtf), "|-1000000 -283 1000000 283 1 20 1 1 0 20116800");
  EXPECT_EQ(countOf("\\fs3276 face", rtf), 1U);
  EXPECT_EQ(run({"catdoc", "-w", "-d", "utf-8", place_.path("r.rtf")}).output, "x{\\}Ёё№face\n");
  place_.write("r.rtf", "old");
  expectTold(exportTo("r.rtf", std::string(50000, 'y'), {}, {{}, {}, 2000}), "File too large");
  EXPECT_EQ(place_.read("r.rtf"), "old");
  expectTold(exportTo("none/r.doc", "x"), "No such file");
}

}  // namespace
}  // namespace qor::test
