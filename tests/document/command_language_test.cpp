// What the lines of a report hold: texts, style tags, item tags.
#include "document/colors.h"
#include "support/test.h"

namespace qor::test {
namespace {

// The name of a row, its line, and the items as a dump tells them, "|" between them; texts without
// their name.
void expectItems(const std::vector<std::array<std::string, 3>>& rows) {
  for (const auto& [name, report, expected] : rows) {
    std::string items;
    for (const std::string& line : linesOf(TestReport(report).dump())) {
      const bool isText = line.starts_with("  text ");
      if (line == "line" && items.empty()) continue;
      items += (items.empty() ? "" : "|") + line.substr(isText ? 7 : line.find_first_not_of(' '));
    }
    EXPECT_EQ(items, expected) << name;
  }
}

TEST(CommandLanguage, styleTagsChangeTheTextBehindThem) {
  expectItems(
      {{"closing", "<b>x<b/>y", "\"x\" weight=700|\"y\""},
       {"closing takes inner tags with it", "<b><i>x<b/>y", "\"x\" weight=700 italic=1|\"y\""},
       {"nothing open", "<i/>a", "\"a\""},
       {"not a tag", "</b>a", "\"</b>a\""},
       {"no end", "a<b c", "\"a<b c\""},
       {"capitals", "<B>a", "\"<B>a\""},
       {"headings", "<h1>a<h2>b<h3>c<h4>d<h5>e<h6>f<h2/>g",
        "\"a\" height=24|\"b\" height=18|\"c\" height=15|\"d\" height=12|\"e\" height=8|\"f\" "
        "height=6|\"g\" height=24"},
       {"one tag in itself", "<h1>a<h2>b<h1>c<h1/>d<h1/>e<h1/>f",
        "\"a\" height=24|\"b\" height=18|\"c\" height=24|\"d\" height=18|\"e\"|\"f\""},
       {"twice as wide, twice", "<w1>a<w1>b<w1/>c<w1/>d",
        "\"a\" factor=2|\"b\" factor=4|\"c\" factor=2|\"d\""},
       {"underline and strike-out", "<u><s>a", "\"a\" underline=1 strikeout=1"},
       {"font", "<font fn=\"Arial\" height=14>x<font/>y", "\"x\" face=Arial height=14|\"y\""},
       {"font without a pop", "<font height=14/>x<font/>y", "\"x\" height=14|\"y\" height=14"},
       {"attributes in another tag", "<b fi=1/>x", "\"x\" italic=1"},
       {"opening form of another tag is dropped", "<b x=\"1\">x", "\"x\""},
       {"font closed from outside", "<h1>a<font fn=\"Arial\">b<h1/>c",
        "\"a\" height=24|\"b\" face=Arial height=24|\"c\""},
       {"line of an opening tag", "<font fn=\"Arial\">", "\"\""},
       {"line of a plain tag", "<b>", ""},
       {"empty line", "\r\n", "\"\""},
       {"place of a style is ignored", "<font left=5 tc=\"q\" fi=1/>a", "\"a\" italic=1"},
       {"page", "<page w=100/>a", "\"a\""},
       {"image without a blank", "<img/>", "\"<img/>\""},
       {"no end that belongs to it", "<text tc=\"a>b\"/>c", "\"<text tc=\"a>b\"/>c\""},
       {"face of 40 letters", "<font fn=\"" + std::string(40, 'f') + "\"/>a",
        "\"a\" face=" + std::string(31, 'f') + ""},
       {"text of 5000 bytes", std::string(5000, 'x'), "\"" + std::string(5000, 'x') + "\""}});
}

TEST(CommandLanguage, stylesGoOnInTheNextLineAndPage) {
  TestReport report("<i>a\r\nb\f\r\nc<i/>d");
  EXPECT_EQ(report.dump(1),
            "line\n  text \"a\" italic=1\nline\n  text \"b\" italic=1\n"
            "line afterFormFeed overprint feeds0\n  text \"\" italic=1\n");
  EXPECT_EQ(report.dump(2), "line\n  text \"c\" italic=1\n  text \"d\" italic=1\n");
}

TEST(CommandLanguage, fontsAreSharedByThoseThatAreEqualOnly) {
  TestReport report(
      "\r\n<i>a<text fb=1 tc=b/>c\r\n\r\n<font height=7>\r\n\r\n<i/>\r\n\r\n"
      "<barcode font_height=9 fi=1/>d");
  const std::string plain = "line\n  text \"\"";
  EXPECT_EQ(report.dump().substr(0, report.dump().find("barcode")),
            plain + "\nline\n  text \"a\" italic=1\n  text \"b\" weight=700 italic=1\n" +
                "  text \"c\" italic=1\n" + plain + " italic=1\n" + plain + "\n" + plain +
                " height=7 italic=1\nline\n" + plain + "\nline\n  ");
  EXPECT_NE(report.dump().find(" height=9 italic=1 shape"), std::string::npos);
  EXPECT_NE(report.dump().find("  text \"d\"\n"), std::string::npos);
}

TEST(CommandLanguage, textItemsTakeTheirKeys) {
  expectItems(
      {{"place", "<text left=10. top=20.5 tc=\"a b\"/>", "\"a b\" at 566,1162"},
       {"comma, two decimals", "<text left=10,25 tc=x top=1.50/>", "\"x\" at 581,85"},
       {"three decimals", "<text left=1.234 top=-1,25/>", "\"\" at 69959,-70"},
       {"quoted fraction is lost", "<text left=\"10.5\" top=1.2,3 tc=q/>", "\"q\""},
       {"one decimal", "<text left=.5 top=-1.5 tc=q/>", "\"q\" at 28,-85"},
       {"quoted whole number", "<text left=\"  10\" top=\"-3\" tc=q/>", "\"q\" at 566,-170"},
       {"box", "<text left=10 top=10 right=50 bottom=20 alignH=1 alignV=2 tc=\"m\"/>",
        "\"m\" at 566,566 to 2834,1133 align 12"},
       {"whole points only", "<text height=12.5 fb=1 tc=a/>", "\"a\" weight=700"},
       {"weights", "<text fp=250 tc=a/><text fb=2 tc=b/>", "\"a\" weight=250|\"b\""},
       {"styles", "<text fi=1 fu=1 fso=1 vs=2 hs=3 width=7 tc=a/>",
        "\"a\" width=7 italic=1 underline=1 strikeout=1 hs=3 vs=2"},
       {"rotation", "<text o=1 tc=a/><text o=5 tc=b/><text od=455 tc=c/>",
        "\"a\" turned=900|\"b\" turned=900|\"c\" turned=455"},
       {"number in hexadecimal", "<text height=$10 tc=a/><text height=0x0C tc=b/>",
        "\"a\" height=16|\"b\" height=12"},
       {"number out of range", "<text height=99999999999 tc=a/>", "\"a\""},
       {"quotes inside", "<text tc=\"say \"hi\" now\" left=1 top=1/>",
        "\"say \"hi\" now\" at 56,56"},
       {"quotes inside at the end", "<text left=1 tc=\"say \"hi\" now\"/>", "\"say \" at 56,0"},
       {"equals sign cuts", "<text tc=\"Total: x=5\" left=1 top=1/>", "\"Total\" at 56,56"},
       {"bare words", "<text memo \"x y\" tc=a b c fi=1/>", "\"a\" italic=1"},
       {"empty value", "<text fn=\"\" tc=a/>", "\"a\""},
       {"own font does not leak", "<text fi=1 tc=a/>b", "\"a\" italic=1|\"b\""},
       {"key must be whole", "<text fc16x=4 fc=Red tc=a/>", "\"a\" color=ff"},
       // Behind a value 1024 characters are kept.
       {"tail behind a value", "<text tc=a" + std::string(1020, ' ') + "fi=1/>", "\"a\" italic=1"},
       {"cut behind a value", "<text tc=a" + std::string(1021, ' ') + "fi=1/>", "\"a\""},
       {"tail behind quotes", "<text fn=\"\"" + std::string(1020, ' ') + "tc=b/>", "\"b\""},
       {"cut behind quotes", "<text fn=\"\"" + std::string(1021, ' ') + "tc=b/>", "\"\""},
       {"tail behind a text", "<text tc=\"a\" x=1" + std::string(1017, ' ') + "fi=1/>",
        "\"a\" italic=1"},
       {"cut behind a text", "<text tc=\"a\" x=1" + std::string(1018, ' ') + "fi=1/>", "\"a\""}});
}

TEST(CommandLanguage, otherItemsTakeTheirKeys) {
  expectItems({
      {"shape",
       "<shape sh_type=3 left=1 top=2 right=30 bottom=40 pt=2 pc=Navy bt=4 bc=Lime rw=5 rh=6 "
       "lw=20/>",
       "shape 3 56,113 1700,2267 pen 2 20 800000 brush 4 ff00 round 5,6"},
      {"shape without keys", "<shape />", "shape 1 0,0 0,0 pen 1 15 0 brush 0 0 round 0,0"},
      {"image", "<img image=\"a b.png\" imgSS=2 sh_type=2/>",
       "image \"a b.png\" number -1 stretch 2 shape 2 0,0 0,0 pen 1 15 0 brush 0 0 round 0,0"},
      {"barcode without keys", "<barcode />",
       "barcode 2 \"\" of 0 keys, type 0 show 0 pos 1 font 0 fit 1 factor 1 width 0 15 margins 0 0 "
       "0 orient 0 color 0 shape 1 0,0 0,0 pen 1 15 0 brush 0 0 round 0,0"},
      {"image name without quotes", "<img image=a.png imgn=3/>",
       "image \"\" number 3 stretch 0 shape 1 0,0 0,0 pen 1 15 0 brush 0 0 round 0,0"},
      {"barcode",
       "<barcode br_type=39 value=\"A 1\" value_show=1 value_pos=0 value_font=2 size_set=0 "
       "size_factor=150 manual_width=1 line_width=20 manual_height=2 margin_top=5 margin_bottom=7 "
       "orient=3 brc16=9 font_name=\"Arial\" font_height=8 font_width=4 fb=1 value_type=6 left=1/>",
       "barcode 5 \"A 1\" of 20 keys, type 6 show 1 pos 0 font 2 fit 0 factor 1.5 width 1 20 "
       "margins 1 7 0 orient 3 color ff0000 face=Arial height=8 width=4 weight=700 shape 1 56,0 "
       "0,0 pen 1 15 0 brush 0 0 round 0,0"},
  });
}

TEST(CommandLanguage, barcodeTypesGoByNameOrNumber) {
  for (const auto& [name, type] :
       rowsOf("EAN_8 1|1 1|EAN_13 2|2 2|UPCA 3|3 3|UPCE 4|5 4|39 5|6 5|128 6|7 6|CodeBar 7|8 7|"
              "InterLeave 8|9 8|FullASCII 9|10 9|ITF 10|93 11|11 11|KAREKOD 12|12 12|4 -1|"
              "ean_13 -1|13 -1")) {
    VData_BarCode code(nullptr);
    code.SetType(name);
    EXPECT_EQ(std::to_string(code.BarcodeType), type) << name;
  }
}

TEST(CommandLanguage, coloursGoByNameAndNumber) {
  // In the order of their numbers, as blue, green, red.
  const auto colors = rowsOf(
      "Black 0|Navy 800000|Teal 808000|Green 8000|Purple 800080|Maroon 80|Olive 8080|"
      "Silver c0c0c0|Gray 808080|Blue ff0000|Aqua ffff00|Lime ff00|Fuchsia ff00ff|Red ff|"
      "Yellow ffff|White ffffff|LtGray c0c0c0|DkGray 808080|other 0");
  for (std::size_t i = 0; i < colors.size(); ++i) {
    const auto& [name, color] = colors[i];
    EXPECT_EQ(ColorByName(name), std::stoul(color, nullptr, 16)) << name;
    EXPECT_EQ(ColorByIndex(static_cast<std::int32_t>(i)), ColorByName(name)) << name;
  }
  EXPECT_EQ(ColorByIndex(-1), 0U);
}

// Each of the four families of keys, in the items that have it, and where a dump tells the colour.
TEST(CommandLanguage, coloursReadInEveryForm) {
  const std::array<std::string, 3> families[] = {{"text", "fc", "color="},
                                                 {"barcode", "fc", "color="},
                                                 {"shape", "pc", "pen 1 15 "},
                                                 {"img", "pc", "pen 1 15 "},
                                                 {"shape", "bc", "brush 0 "},
                                                 {"barcode", "bc", "brush 0 "},
                                                 {"barcode", "brc", "orient 0 color "}};
  for (const auto& [item, key, place] : families) {
    const auto dumpOf = [&, item = item, key = key](const std::string& form) {
      return TestReport("<" + item + " " + key + "INT=1 " + key + form + "/>").dump();
    };
    for (const auto& [form, color] :
         rowsOf("=Navy 800000|=red 0|16=5 80|16=99 0|16=-1 0|256=5 0|RGB=\"255,0,1\" 100ff|"
                "RGB=1,2,3 30201|RGB=7 0|RGB=7,8 7|RGB=1,x,3 1|RGB=257,256,1 10001|"
                "INT=16711681 ff0001|INT=+7 7|INT=x1f 1f|INT=X1F 1f|INT=0X1F 1f|INT=-$F fffffff1|"
                "INT=-2147483648 80000000|INT=-2147483649 1|HEX=$0080FF 80ff|HEX=0x0080FF 80ff"))
      EXPECT_EQ(dumpOf(form), dumpOf("INT=0x" + color)) << item << key << form;
    const std::string dump = dumpOf("INT=0x123456");
    EXPECT_NE(dump.find(place + "123456"), std::string::npos) << dump;
    EXPECT_EQ(dump.find("123456"), dump.rfind("123456")) << dump;
  }
}

TEST(CommandLanguage, linesEndAsOnALinePrinter) {
  expectItems({{"bare CR", "a\rb\r\nc", "\"a\"|line overprint feeds0|\"b\"|line|\"c\""},
               {"LF alone is no end", "a\nb", "\"a\"|\"b\""},
               {"tab is dropped", "a\tb", "\"ab\""},
               {"end of file", "a\r\nb\x1A\r\nc", "\"a\"|line|\"b\""},
               {"CR at the end", "a\r", "\"a\""},
               {"memo spans lines", "<text memo tc=\"a\r\nb\r\nc\"/>\r\nd", "\"a|b|c\"|\"d\""},
               {"memo behind a tab", "<te\txt memo tc=\"a\r\nb\"/>", "\"a|b\""},
               {"tabs in lines in turn", "a\tb\t\tc\r\nd\r\n\te\tf\t\r\n\t\r\ng",
                "\"abc\"|line|\"d\"|line|\"ef\"|line|\"\"|line|\"g\""},
               {"zero byte is dropped", std::string("a\0b", 3), "\"a\"|\"b\""}});
  EXPECT_EQ(TestReport("a\tb").dump(1, PageMode::sheets), "line\n  text \"a\"\n  text \"b\"\n");
}

TEST(CommandLanguage, hostileLinesAreReadInOnePass) {
  const std::string nested = times(300000, "<b>") + "x" + times(299999, "<i/>");
  const std::string words = "<text " + times(400000, "\"a b\" c ");
  const std::string many(1999999, '<');
  for (const auto& [line, items] :
       {std::pair{nested, std::string("line\n  text \"x\" weight=700\n")},
        {words + "tc=z/>", "line\n  text \"z\"\n"},
        {many + "<b>x", "line\n  text \"" + many + "\"\n  text \"x\" weight=700\n"}})
    EXPECT_TRUE(TestReport(line).dump() == items);
}

}  // namespace
}  // namespace qor::test
