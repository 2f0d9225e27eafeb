// Documents of the program, as word processors and other readers see them.
#include <algorithm>

#include <gtest/gtest.h>

#include "export/export_formats.h"
#include "support/picture_file.h"
#include "support/program.h"
#include "support/report_reader.h"
#include "support/rows.h"

namespace qor::test {
namespace {

using Lines = std::vector<std::string>;

class WordExport : public testing::Test {
 protected:
  Outcome exportTo(const std::string& target, const std::string& report,
                   const std::vector<std::string>& more = {"-codepage", "866"},
                   unsigned long limit = 0) {
    place_.write("r.txt", report);
    std::vector<std::string> line = {"-f", "r.txt", "-export", target};
    line.insert(line.end(), more.begin(), more.end());
    return runViewer(line, {place_.path(), {}, limit});
  }

  Lines read(const std::string& file, const std::vector<std::string>& colours = {}) const {
    std::vector<std::string> line = {
        "/usr/bin/python3", QOR_SOURCE_DIR "/tests/export/rtf/read_word.py", place_.path(file)};
    line.insert(line.end(), colours.begin(), colours.end());
    const Outcome outcome = run(line, {{}, {{"PYTHONIOENCODING", "utf-8"}}, 0});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.errors;
    return linesOf(outcome.output);
  }

  // The text as another reader sees it.
  std::string textOf(const std::string& file) const {
    return run({"catdoc", "-w", "-d", "utf-8", place_.path(file)}).output;
  }

  // A picture of one colour, 96 by 48 pixels: 25.4 by 12.7 mm.
  std::string putPicture(const std::string& name, std::uint32_t colour, PictureFormat format) {
    const std::vector<std::uint32_t> pixels(96 * 48, colour);
    const std::string file = pictureFile({96, 48, 96, pixels.data()}, format);
    place_.write(name, file);
    return file;
  }

  TemporaryDirectory place_;
};

std::size_t countOf(const std::string& word, const std::string& text) {
  std::size_t count = 0;
  for (auto place = text.find(word); place != std::string::npos; place = text.find(word, place + 1))
    ++count;
  return count;
}

std::string hexOf(const std::string& bytes) {
  std::string digits;
  for (const unsigned char byte : bytes) {
    digits += "0123456789abcdef"[byte / 16];
    digits += "0123456789abcdef"[byte % 16];
  }
  return digits;
}

// Only what every reader takes: printable ASCII, and groups that end.
void expectSound(const std::string& rtf) {
  int depth = 0;
  bool sound = rtf.starts_with("{\\rtf1");
  for (std::size_t i = 0; i < rtf.size(); ++i) {
    const char c = rtf[i];
    sound = sound && (c == '\n' || (c >= ' ' && c <= '~')) && (depth > 0 || i == 0 || c == '\n');
    if (c == '\\') ++i;
    depth += (c == '{') - (c == '}');
  }
  EXPECT_TRUE(sound && depth == 0) << rtf.substr(0, 1000);
}

// A line of the report beside what becomes of it. What a line turns on and leaves on goes on; the
// next one that turns it on turns it off.
TEST_F(WordExport, typesLinesInTheirStyles) {
  const std::pair<std::string, std::string> rows[] = {
      {"Plain <b>bold<b/> <i>it<i/> <u>un<u/> <s>s<s/> end",
       "{Arial 9.5}Plain {Arial 9.5 bold}bold{Arial 9.5} {Arial 9.5 italic}it{Arial 9.5} "
       "{Arial 9.5 underline}un{Arial 9.5} s end"},
      {"<font fp=500>500 <font fp=700>700 <font fp=500>500<font/><font/><font/>",
       "500 {Arial 9.5 bold}700 500"},
      {"plain", "plain"},
      {"<b>bold<b/> plain", "{Arial 9.5}bold{Arial 9.5 bold} plain"},
      {"<b>again<b/>", "{Arial 9.5}again"},
      {"<i><u>both<i/><u/>", "{Arial 9.5 italic underline}both"},
      {"<i><u>neither<i/><u/>", "{Arial 9.5}neither"},
      {"<font fn=\"Times New Roman\" height=14 fp=401>\x8F\xE0\xA8\xA2\xA5\xE2 \xFC<font/>",
       "{Times New Roman 14}Привет №"},
      {"{a\\b}  ; \\u1055?", "{Arial 9.5}{a\\b}  ; \\u1055?"},
      {"<text left=50 top=99 height=20 tc=\"placed \"/>here", "{Arial 20}placed {Arial 9.5}here"},
      {"<font height=0>12<font/>", "{Arial 12}12"},
      {"", ""}};
  std::string report =
      "\fsecond\r\n<shape sh_type=2 left=9 top=9 right=20 bottom=20/>\fthird<text memo left=1 "
      "top=1 tc=\"one\ntwo \" />";
  std::string lines;
  Lines expected = {"sheet 210.0 148.0 3.5 3.5 3.5 3.5 landscape"};
  for (const auto& [line, told] : rows) {
    lines += line + "\r\n";
    expected.push_back(told);
  }
  lines.resize(lines.size() - 2);  // the page ends with the last line
  place_.write("s.vset",
               "<Set SetName=\"S\">\r\n<Page>\r\n<BaseCodePage = \"866\"/>\r\n<PaperSize = "
               "\"11\"/>\r\n<Orientation = \"2\"/>\r\n<Page/>\r\n<Font>\r\n<Name = "
               "\"Arial\"/>\r\n<Height = \"9.5\"/>\r\n<Font/>\r\n<Set/>\r\n");
  expectTold(exportTo("r.rtf", lines + report, {"-i", "s.vset#S"}), "");
  for (const char* line : {"---{Arial 9.5}second", "", "---thirdone\\ntwo ", "pages 3"})
    expected.emplace_back(line);
  EXPECT_EQ(read("r.rtf"), expected);
  const std::string rtf = place_.read("r.rtf");
  EXPECT_EQ(countOf("\\page", rtf) - countOf("\\paperw", rtf) - countOf("\\paperh", rtf), 0U);
  expectSound(rtf);
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
      "<shape sh_type=1 left=20 top=70 right=60 bottom=90 pc=Red/>text "
      "<shape sh_type=1 left=60 top=100 right=20 bottom=140 pcHEX=0xFFFF0000 pt=2/>\r\n"
      "<shape sh_type=2 left=150 top=90 right=100 bottom=70 pc=Lime lw=113 bt=1 bc=Aqua pt=0/>\r\n"
      "<shape sh_type=3 left=100 top=100 right=150 bottom=130 rw=300 rh=900 pc=Green/>\r\n"
      "<shape sh_type=4 left=100 top=140 right=150 bottom=170 pc=Teal/><shape sh_type=9/>\r\n"
      "<img image=\"natural.png\" left=20 top=180/>"
      "<img image=\"natural.png\" left=160 top=180 imgn=3/>"
      "<img image=\"broken.png\" left=170 top=180/><img image=\"none.png\" left=170 top=190/>"
      "<img image=\"filled.jpg\" left=60 top=180 right=120 bottom=190 imgSS=1 pc=Red/>\r\n"
      "<img image=\"tall.bmp\" left=20 top=200 right=60 bottom=260 imgSS=2/>"
      "<img image=\"wide.png\" left=80 top=200 right=160 bottom=210 imgSS=2 sh_type=2 pc=Navy/>"
      "<img image=\"dots.png\" left=80 top=250 imgSS=3/>\r\n"
      "<barcode br_type=39 value=A1 left=20 top=270 right=90 bottom=280 brcHEX=0x404080 fi=1/>";
  expectTold(exportTo("r.rtf", report), "");
  const std::pair<std::string, std::string> inks[] = {
      {"FF0000", "20 70 60 90"},     {"0000FF", "20 100 60 140"},   {"00FF00", "99 69 151 91"},
      {"008000", "100 100 150 130"}, {"008080", "100 140 150 170"}, {"1080F0", "20 180 45 193"},
      {"10F080", "20 220 60 240"},   {"8010F0", "110 200 130 210"}, {"000080", "110 200 130 210"},
      {"F08010", "80 250 82 251"}};
  std::vector<std::string> colours;
  Lines expected;
  for (const auto& [colour, place] : inks) {
    colours.push_back(colour);
    expected.push_back("ink 1 " + colour + " " + place);
  }
  Lines found = read("r.rtf", colours);
  std::erase_if(found, [](const std::string& line) { return !line.starts_with("ink"); });
  EXPECT_EQ(found, expected);
  std::string rtf = place_.read("r.rtf");
  EXPECT_EQ(countOf("\\shpfblwtxt1", rtf), 11U) << "5 shapes, 5 pictures and a barcode";
  expectSound(rtf);
  // PNG and JPEG are embedded as they came.
  std::erase(rtf, '\n');
  EXPECT_EQ(countOf("\\pngblip" + hexOf(png) + "}", rtf), 1U);
  EXPECT_EQ(countOf("\\jpegblip" + hexOf(jpeg) + "}", rtf), 1U);
  EXPECT_EQ(countOf("\\jpegblip" + hexOf(place_.read("r_barcode_A1_20_270.jpeg")), rtf), 1U);
  for (const char* property : {"lineDashing}{\\sv 1}", "lineWidth}{\\sv 71755}",
                               "adjustValue}{\\sv 1904}", "fFlipV}{\\sv 1}"})
    EXPECT_EQ(countOf(property, rtf), 1U) << property;
  EXPECT_EQ(countOf("fFilled}{\\sv 0}", rtf), 11U);

  TestReport told(report, 866);
  ExportTask task = {told.doc(), place_.path("none.rtf"), runOptions()};
  runExport(*formatOf("none.rtf"), task);
  EXPECT_EQ(countOf("\\shp", place_.read("none.rtf")), 0U) << "where the dialog leaves them out";
}

// Anything may stand in a report: every reader takes the file, or the old one stays.
TEST_F(WordExport, survivesWhatReportsHold) {
  std::string bytes;
  for (int byte = 1; byte < 256; ++byte) bytes += static_cast<char>(byte);
  const std::pair<std::string, std::string> rows[] = {
      {"{{\\}} } { \\par \\'41", ""},
      {std::string("a\0b\1c\x1A", 6), ""},
      {bytes, ""},
      {"<font fn=\"A;b{\\}\" height=1000000>face<font/>", "face"},
      {"<shape sh_type=1 left=-999999999 top=5 right=999999999 bottom=-5 lw=2000000000/>x", "x"},
      {"\xF0\xF1\xFC", "Ёё№"}};
  for (const auto& [report, text] : rows) {
    expectTold(exportTo("r.rtf", report + "\r\n"), "");
    expectSound(place_.read("r.rtf"));
    EXPECT_NE(textOf("r.rtf").find(text), std::string::npos) << text << textOf("r.rtf");
  }
  place_.write("r.rtf", "old");
  expectTold(exportTo("r.rtf", std::string(50000, 'y'), {}, 2000), "File too large");
  EXPECT_EQ(place_.read("r.rtf"), "old");
  expectTold(exportTo("none/r.doc", "x"), "No such file");
}

}  // namespace
}  // namespace qor::test
