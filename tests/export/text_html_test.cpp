// Text and HTML exports, byte for byte, by the program from outside.
#include "support/exporting.h"

namespace qor::test {
namespace {

// Exports and gives the target's bytes. The report's directory is the current one and also holds a
// picture of 3 by 2 pixels and a set file.
class TextHtmlTest : public Exporting {
 protected:
  TextHtmlTest() {
    std::string picture("BM\x4E\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\3\0\0\0\2\0\0\0\1\0\x18\0", 30);
    picture.resize(54 + 2 * 12);
    place_.write("p.bmp", picture);
    place_.write("s.vset", setWith("\xDEube", "Font Name=Arial|Page BaseCodePage=866"));
  }

  std::string exported(const std::string& report, const std::string& target,
                       const std::vector<std::string>& options = {},
                       const std::map<std::string, std::string>& environment = {}) {
    expectTold(exportTo(target, report, options, {{}, environment, 0}), "");
    return place_.read(target);
  }

  // What stands between <pre> and </pre>, without the end of its last line.
  std::string body(const std::string& report) {
    const std::string html = exported(report, "o.html");
    const auto start = html.find("<pre>\r\n") + 7;
    return html.substr(start, html.find("\r\n</pre>\r\n") - start);
  }
};

const std::string kEnd = "\f\r\n\x1A\r\n";
const std::string kPlain = "<basefont color=\"#000000\"></b>";

TEST_F(TextHtmlTest, writesText) {
  std::string highBytes;
  for (int c = 128; c < 256; ++c) highBytes += static_cast<char>(c);
  const std::pair<std::string, std::string> rows[] = {
      {"", "\x1A\r\n"},
      {"A", "A\r\n" + kEnd},
      {"A\r\nB\r\n\x1A", "A\r\nB\r\n" + kEnd},
      {"A\r\n\x1A"
       "B",
       "A\r\n" + kEnd},
      {"\r\n", "\r\n" + kEnd},
      // A form feed ends a line, be it an empty one; so does the CR that a page keeps of CR LF.
      {"A\fB", "A\r\n\f\r\nB\r\n" + kEnd},
      {"A\r\n\fB\r\n", "A\r\n\r\n\f\r\nB\r\n" + kEnd},
      {"A\r\n\f\r\nB\r\n\x1A", "A\r\n\r\n\r\n\f\r\nB\r\n" + kEnd},
      {"A\f", "A\r\n" + kEnd},
      {"AAA\rBB\r\nC", "AAA\r\nBB\r\nC\r\n" + kEnd},
      {"A\tB\nC\1D", "ABCD\r\n" + kEnd},
      {highBytes, highBytes + "\r\n" + kEnd},
      {"1 < 2 & <b>x<b/> </b><q>", "1 < 2 & x </b><q>\r\n" + kEnd},
      {"\033Ehead\033(s3Bbold", "headbold\r\n" + kEnd},
      {"a<text left=10 top=20 tc=\"box\"/>c", "aboxc\r\n" + kEnd},
      {"<text memo left=1 top=1 tc=\"x\r\ny\"/>\r\nB\r\n", "x\nyB\r\n" + kEnd},
      {"<shape left=1 right=9/><img image=\"p.bmp\"/>\r\nB", "\r\nB\r\n" + kEnd},
      {std::string(5000, 'A'), std::string(5000, 'A') + "\r\n" + kEnd}};
  for (const auto& [report, expected] : rows)
    EXPECT_EQ(exported(report, "o.txt", {"-codepage", "866"}), expected) << report;
}

TEST_F(TextHtmlTest, writesAPageOfHtml) {
  EXPECT_EQ(exported("\xCE\xF2\xF7\xB8\xF2\f<shape left=1/>\r\n\x1A", "o.html",
                     {"-codepage", "1251", "-caption", "Отчёт <ş>"}),
            "<html>\r\n<head>\r\n<title>\xCE\xF2\xF7\xB8\xF2 <&#351;></title>\r\n"
            "<meta name=\"Description\" content=\"QOR Report convertor Ver.1.3b7\">\r\n"
            "<meta http-equiv=\"Content-Type\" content=\"text/html;charset=windows-1251\">\r\n"
            "</head>\r\n<body>\r\n<basefont face=\"Courier New\">\r\n<pre>\r\n" +
                kPlain + "\xCE\xF2\xF7\xB8\xF2\r\n\r\n</pre>\r\n</body>\r\n</html>\r\n");
}

TEST_F(TextHtmlTest, namesTheCodePage) {
  const auto headOf = [this](const std::vector<std::string>& options, const char* locale,
                             const char* report = "A") {
    const std::string html = exported(report, "o.html", options, {{"LC_ALL", locale}});
    const auto charset = html.find("charset=") + 8;
    const auto face = html.find("<basefont face=\"") + 16;
    return html.substr(charset, html.find('"', charset) - charset) + " " +
           html.substr(face, html.find('"', face) - face);
  };
  for (const auto& [number, charset] :
       rowsOf("437 |850 |857 |1250 |866 cp866|1252 windows-1252|1254 windows-1254|x windows-1252"))
    EXPECT_EQ(headOf({"-codepage", number}, "C"), charset + " Courier New") << number;
  EXPECT_EQ(headOf({"-codepage", "1252"}, "ru_RU.UTF-8"), "windows-1252 Courier New");
  EXPECT_EQ(headOf({}, "ru_RU.UTF-8"), "windows-1251 Courier New");
  EXPECT_EQ(headOf({}, "tr_TR.UTF-8"), "windows-1254 Courier New");
  EXPECT_EQ(headOf({"-codepage", "1251"}, "C", "\033(9TA"), " Courier New");
  EXPECT_EQ(headOf({"-i", "s.vset#Şube"}, "tr_TR.UTF-8"), "cp866 Arial");
}

// Follows the references of a page as a browser does: each one, and the start of what is there.
constexpr const char* kFollowLinks = R"(
import sys, html.parser, urllib.parse, urllib.request
class Reader(html.parser.HTMLParser):
    def handle_starttag(self, tag, attributes):
        if tag != 'img': return
        link = urllib.parse.urljoin('file://' + sys.argv[1], dict(attributes)['src'])
        try: found = urllib.request.urlopen(link).read(3)
        except OSError as error: found = str(error).encode()
        print(dict(attributes)['src'], found.hex(), sorted(dict(attributes)))
Reader().feed(open(sys.argv[1], encoding='ascii').read())
)";

TEST_F(TextHtmlTest, linksLeadToTheirFiles) {
  const std::string sizes = " ['height', 'src', 'width']\n";
  // Names in code page 1254 and in UTF-8, and the references that a reader sees.
  const std::tuple<std::string, std::string, std::string> rows[] = {
      {"plain-1_~.png", "plain-1_~.png", "plain-1_~.png"},
      {"dir/a b.png", "dir/a b.png", "dir/a%20b.png"},
      {"a\"b.png", "a\"b.png", "a%22b.png"},
      {"50%.png", "50%.png", "50%25.png"},
      {"50%41.png", "50%41.png", "50%2541.png"},
      {"a#b?c.png", "a#b?c.png", "a%23b%3Fc.png"},
      {"<x'&amp;.png", "<x'&amp;.png", "%3Cx%27&amp;.png"},
      {"\xFC\xDE.png", "üŞ.png", "%C3%BC%C5%9E.png"},
      {"a:b.png", "a:b.png", "./a:b.png"}};
  std::filesystem::create_directory(place_.path("dir"));
  std::string report;
  std::string expected;
  for (const auto& [inReport, name, link] : rows) {
    place_.write(name, "yes");
    report += "<img image=\"" + inReport + "\" left=1 top=1 right=9 bottom=9/>\r\n";
    expected += link + " 796573" + sizes;
  }
  report += "<barcode br_type=KAREKOD value=\"1% \xFC#&<x\" left=20 top=10 right=60 bottom=50/>";
  expected += place_.path("r_barcode_1%25%20%C3%BC%23&%3Cx_20_10.jpeg") + " ffd8ff" + sizes;
  exported(report, "o.html", {"-codepage", "1254"});
  const std::string seen = run({"python3", "-c", kFollowLinks, place_.path("o.html")}).told();
  EXPECT_EQ(seen, "0:" + expected);
  EXPECT_EQ(body("<img image=\"http://h/a%20b.png?c=\"d\" right=9 bottom=9/>"),
            "<img src=\"http://h/a%20b.png?c=%22d\" width=\"25\" height=\"25\">");
  EXPECT_EQ(body("<img image=\"C:\\a\\b.png\" right=9 bottom=9/>"),
            "<img src=\"C:\\a\\b.png\" width=\"25\" height=\"25\">");
}

TEST_F(TextHtmlTest, writesLinesOfHtml) {
  const std::string red = "<basefont color=\"#FF0000\">";
  const std::pair<std::string, std::string> rows[] = {
      {"A\r\n\r\nB", kPlain + "A\r\n" + kPlain + "\r\n" + kPlain + "B"},
      {"A\fB", kPlain + "A\r\n" + kPlain + "B"},
      {"AAA\rBB", kPlain + "AAA\r\n" + kPlain + "BB"},
      {"a < b & \xFF <q>", kPlain + "a < b & \xFF <q>"},
      {"<b>x<b/>y", "<basefont color=\"#000000\"><b>x" + kPlain + "y"},
      {"<font fc=\"Red\" fb=1>x<font/>y", red + "<b>x" + kPlain + "y"},
      {"<font fc=\"Red\" fp=699/>x", red + "</b>x"},
      {"<font fcHEX=$12AB56 fp=700/>x", "<basefont color=\"#56AB12\"><b>x"},
      {"a<text left=9 top=9 tc=\"box\"/>c", kPlain + "a" + kPlain + "box" + kPlain + "c"},
      {"<shape left=1 right=9/>", ""},
      // 10 mm are 566 twips and 28 pixels, 50 mm 2834 and 141; 20 mm 1133 and 56, 70 mm 3968 and
      // 198.
      {"<img image=\"none.png\" left=10 top=20 right=50 bottom=70/>",
       "<img src=\"none.png\" width=\"113\" height=\"142\">"},
      {"<img image=\"p.bmp\" left=10 top=20/>", "<img src=\"p.bmp\" width=\"3\" height=\"2\">"},
      {"A<img image=\"p.bmp\" left=10/>B",
       kPlain + "A<img src=\"p.bmp\" width=\"3\" height=\"2\">" + kPlain + "B"}};
  for (const auto& [report, expected] : rows) EXPECT_EQ(body(report), expected) << report;
}

}  // namespace
}  // namespace qor::test
