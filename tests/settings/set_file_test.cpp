// Settings sets in their file.
#include "document/vset.h"
#include "settings/number_text.h"
#include "settings/set_lines.h"
#include "support/test.h"

namespace qor::test {
namespace {

// "|" stands for the end of a line, "'" for a double quote.
VSet::Lines setLines(std::string text) {
  std::ranges::replace(text, '\'', '"');
  return linesOf(text, '|');
}

std::string fileOf(const std::string& text) {
  std::string bytes;
  for (const std::string& line : setLines(text)) bytes += line + "\r\n";
  return bytes;
}

// What a set file would hold, such as "PaperSize=9", and the quality, which it never holds.
VSet::Lines fieldsOf(const VSet& set) {
  VSet::Lines lines;
  set.WriteSetLines(lines);
  for (std::string& line : lines) std::erase_if(line, [](char c) { return c == ' ' || c == '"'; });
  lines.push_back("<PrintQuality=" + std::to_string(set.Page.PrintQuality) + "/>");
  return lines;
}

class SetFileTest : public testing::Test {
 protected:
  SetFileTest() {
    AppOptions = {};
    AppOptions.WorkDir = place_.path();
    AppOptions.DocCodePage = 857;
    AppOptions.FontCharset = 162;
  }

  // Names a file with these bytes and a set in it.
  void use(const std::string& bytes, const std::string& set = "A") {
    AppOptions.IniFileName = place_.write("s.vset", bytes);
    AppOptions.SetName = set;
  }
  std::string file() const { return place_.read("s.vset"); }

  // Loads the set "A" and tells the result and all fields that it changed.
  std::string loaded(const std::string& text) {
    use(fileOf(text));
    VSet set;
    set.DefaultPrinterName = "System";
    const auto before = fieldsOf(set);
    std::string result;
    try {
      result = std::to_string(set.ReloadSet());
    } catch (const ConversionError&) {
      result = "conversion";
    } catch (const ListIndexError&) {
      result = "index";
    }
    const auto after = fieldsOf(set);
    for (std::size_t i = 0; i < after.size(); ++i)
      if (after[i] != before[i]) result += " " + after[i].substr(1, after[i].size() - 3);
    return result;
  }

  static std::vector<std::string> namesInFile() {
    std::vector<std::string> names = {"old"};
    VSet::ListSetNames(names);
    return names;
  }

  TemporaryDirectory place_;
  Variable code_page_{"QOR_ANSI_CODEPAGE", "1254"};

 private:
  OptionsGuard guard_;
  Variable locale_{"LC_ALL", "C"};
};

// A section as a file holds it, of values such as "PaperSize=9|PaperWidth=210".
std::string sectionOf(const std::string& name, const std::string& values) {
  std::string text = "    <" + name + ">|";
  for (const std::string& value : setLines(values)) {
    const auto equals = value.find('=');
    const std::string key = value.substr(0, equals) + std::string(14 - equals, ' ');
    text += "        <" + key + "= '" + value.substr(equals + 1) + "'/>|";
  }
  return text + "    <" + name + "/>|";
}

std::string fileOfDefaultSet(const std::string& print, const std::string& page,
                             const std::string& font) {
  return fileOf("<ReportSetsIniFile Ver='1.0'/>|<Set SetName='Default'>|" +
                sectionOf("Print", print) + sectionOf("Page", page) + sectionOf("Font", font) +
                "<Set/>|");
}

TEST_F(SetFileTest, createsTheDefaultFile) {
  VSet set;
  EXPECT_EQ(set.LoadSet(), 1);
  EXPECT_EQ(AppOptions.IniFileName, place_.path("QorUtlView.vset"));
  EXPECT_EQ(AppOptions.SetName, "Default");
  EXPECT_EQ(place_.read("QorUtlView.vset"),
            fileOfDefaultSet(
                "PrinterName=(default printer)|PrintColor=monochrome|NumOfCopies=1|PaperSource=15|"
                "PrintPagesSet=0|PagesForPrint=|SortByCopies=0",
                "PaperSize=9|PaperWidth=210|PaperHeight=297|Orientation=1|MarginLeft=0|MarginTop=0|"
                "BaseCodePage=857",
                "Name=Courier New|Height=10|Width=0|Space=0|Charset=162|Color=0|Weight=400|"
                "Italic=0|Underline=0|StrikeOut=0"));
  EXPECT_EQ(set.LoadSet(), 0);
  AppOptions.SetName = "Other";
  EXPECT_EQ(set.LoadSet(), -1);
}

// What the file has stored of the code page is an earlier run's.
TEST_F(SetFileTest, leavesAReportThatWasOpenedTheCodePageOfTheSystem) {
  VSet().LoadSet(VSet::Use::look);
  AppOptions.DocCodePage = 1251;
  for (const bool opened : {false, true}) {
    AppOptions.IniFileName.clear();
    AppOptions.OpenedByUser = opened;
    VSet set;
    set.LoadSet(VSet::Use::look);
    EXPECT_EQ(set.Page.BaseCodePage, opened ? 1251 : 857);
  }
}

TEST_F(SetFileTest, neverCreatesAFileThatWasNamed) {
  EXPECT_EQ(VSet().SaveSet(), -1);
  for (const std::string& name : {std::string(), place_.path("none.vset")}) {
    AppOptions.IniFileName = name;
    EXPECT_EQ(VSet().ReloadSet(), 0);
    EXPECT_TRUE(namesInFile().empty());
  }
  EXPECT_FALSE(place_.has("none.vset"));
}

TEST_F(SetFileTest, bringsBackWhatWasSaved) {
  const std::string text = fileText(fileOfDefaultSet(
      "PrinterName=HP İ|PrintColor=color|NumOfCopies=3|PaperSource=7|PrintPagesSet=2|"
      "PagesForPrint=1,3-5|SortByCopies=1",
      "PaperSize=256|PaperWidth=100.5|PaperHeight=80.25|Orientation=2|MarginLeft=-4|MarginTop=12|"
      "BaseCodePage=866",
      "Name=Arial|Height=7.2|Width=0.1|Space=1.5|Charset=204|Color=16711680|Weight=700|Italic=1|"
      "Underline=1|StrikeOut=1"));
  use(text, "Default");
  VSet set;
  set.Page.PrintQuality = 1;
  EXPECT_EQ(set.LoadSet(), 0);
  EXPECT_EQ(set.PrinterName, "HP İ");
  EXPECT_EQ(set.Page.PrintQuality, 1);
  EXPECT_EQ(set.SaveSet(), 0);
  EXPECT_EQ(file(), text);

  set.Page.PrintColor = 3;
  set.DefaultPrinterName = set.PrinterName;
  set.Font.LogFont.setFaceName(std::string(40, 'n'));
  VSet::Lines lines;
  set.WriteSetLines(lines);
  EXPECT_EQ(lines[2], "        <PrinterName   = \"(default printer)\"/>");
  EXPECT_EQ(lines[3], "        <PrintColor    = \"(default)\"/>");
  EXPECT_EQ(lines[20], "        <Name          = \"" + std::string(31, 'n') + "\"/>");
}

TEST_F(SetFileTest, readsLineByLine) {
  const std::string longName(40, 'n');
  const std::pair<std::string, std::string> sections[] = {
      {"", "0"},
      {"<Page>|<PaperSize = '11'/>|<Page/>", "0 PaperSize=11"},
      {"<Font>|<Height = '12,5'/>|<Font/>|<Print>|<NumOfCopies='3'/>|<Print/>",
       "0 NumOfCopies=3 Height=12.5"},
      {"<Page>|; note|<Foo = '1'/>||<Orientation = '2'/>|<Page/>", "0 Orientation=2"},
      {"<Page>|<Weight = '700'/>|<Page/>|<PaperSize = '11'/>", "0"},
      {"<Print>|<PagesForPrint = 'PrintColor x'/>|<Print/>", "0 PrintColor=(default)"},
      {"<Font>|<Height = 'Name=x y'/>|<Font/>", "0 Name=x"},
      {"<Font>|<Height = 12/>|<Font/>", "0 Height=12"},
      {"<Print>|<PrintColor = 'color'/>|<NumOfCopies = 3/>|<PaperSource = '7'/>|<Print/>",
       "conversion PrintColor=color"},
      {"<Print>|<PrintColor = 'blue'/>|<PrintQuality = 'high'/>|<Print/>",
       "0 PrintColor=(default) PrintQuality=4"},
      {"<Print>|<PrintQuality = 'draft'/>|<Print/>", "0 PrintQuality=1"},
      {"<Print>|<PrintQuality = 'low'/>|<Print/>", "0 PrintQuality=2"},
      {"<Print>|<PrintQuality = 'best'/>|<SortByCopies = '2'/>|<Print/>",
       "0 SortByCopies=1 PrintQuality=0"},
      {"<Print>|<PrinterName = '(default printer)'/>|<Print/>", "0 PrinterName=(defaultprinter)"},
      {"<Print>|<PrinterName = HP/>|<Print/>", "0 PrinterName=HP/>"},
      {"<Font>|<Charset = '204'/>|<Charset = '300'/>|<Font/>", "0"},
      {"<Font>|<Charset = '204'/>|<Charset = '-1'/>|<Font/>", "0"},
      {"<Font>|<Italic = '1'/>|<Underline = '2'/>|<StrikeOut = 'on'/>|<Font/>", "0 Italic=1"},
      {"<Font>|<Name = '" + longName + "'/>|<Font/>", "0 Name=" + longName.substr(0, 31)},
      {"<Page>|<PaperSize = '11'/>", "index PaperSize=11"}};
  for (const auto& [section, expected] : sections)
    EXPECT_EQ(loaded("<Set SetName='A'>|" + section + "|<Set/>"), expected) << section;
}

TEST_F(SetFileTest, findsItsSet) {
  const std::string page11 = "|<Page>|<PaperSize = '11'/>|<Page/>|";
  const std::string page12 = "|<Page>|<PaperSize = '12'/>|<Page/>|";
  const std::pair<std::string, std::string> files[] = {
      {"", "-1"},
      {"<ReportSetsIniFile Ver='1.0'/>", "-1"},
      {"<Set SetName=A >" + page11 + "<Set/>", "0 PaperSize=11"},
      {"<Set SetName='A'B'>" + page11 + "<Set/>", "0 PaperSize=11"},
      {"<Set SetName='a'>" + page11 + "| <Set SetName='A'>" + page11 + "<Set/>", "-1"},
      {"<Set SetName='A'>" + page11 + "<Set/>|<Set SetName='A'>" + page12, "0 PaperSize=11"},
      {"<Set SetName='A'>" + page11 + "<Set SetName='B'>" + page12 + "<Set/>", "0 PaperSize=12"},
      {"<Set SetName='A'>" + page11, "index"}};
  for (const auto& [text, expected] : files) EXPECT_EQ(loaded(text), expected) << text;
}

TEST_F(SetFileTest, savesTheSetFirst) {
  const std::string body = "|x|<Set/>|";
  use(fileOf("<Ver/>|<Set SetName='A'>" + body + "<Set SetName='B'>" + body +
             "garbage|<Set SetName='C'>" + body),
      "B");
  EXPECT_EQ(VSet().SaveSet(), 0);
  EXPECT_EQ(namesInFile(), (std::vector<std::string>{"B", "A", "C"}));
  const std::string saved = file();
  EXPECT_TRUE(saved.starts_with(fileOf("<ReportSetsIniFile Ver='1.0'/>|<Set SetName='B'>")));
  EXPECT_TRUE(saved.ends_with(
      fileOf("    <Font/>|<Set/>|<Set SetName='A'>" + body + "<Set SetName='C'>" + body)));
  EXPECT_EQ(VSet().SaveSet(), 0);
  EXPECT_EQ(file(), saved);

  AppOptions.SetName = "0";
  EXPECT_EQ(VSet().SaveSet(), 0);
  EXPECT_EQ(namesInFile(), (std::vector<std::string>{"0", "B", "A", "C"}));
  EXPECT_EQ(VSet().ReloadSet(), -1);

  use("");
  EXPECT_THROW(VSet().SaveSet(), ListIndexError);
}

TEST_F(SetFileTest, removesLinesUpToTheNextName) {
  const std::pair<const char*, const char*> rows[] = {
      {"<Ver/>|<Set SetName='A'>|x|<Set/>|<Set SetName='B'>|y|<Set/>",
       "<Set SetName='B'>|y|<Set/>"},
      {"<Set SetName='B'>|y|<Set SetName='A'>|x|<Set/>|garbage", "<Set SetName='B'>|y"},
      {"<Set SetName='A'>|x|<Set/>| <Set SetName='B'>|y", " <Set SetName='B'>|y"},
      {"<Set SetName='A'>|x|<Set SetName='A'>|y", "<Set SetName='A'>|y"},
      {" <Set SetName='A'>|x|<Set/>", " <Set SetName='A'>|x|<Set/>"},
      {"<Ver/>|<Set SetName='B'>|y", "<Set SetName='B'>|y"},
      {"<Set SetName='Version'>|y|<Set/>", "y|<Set/>"}};
  for (const auto& [before, left] : rows) {
    VSet::Lines lines = setLines(before);
    VSet::RemoveSetLines("A", lines);
    EXPECT_EQ(lines, setLines(left)) << before;
  }
  VSet::Lines none;
  EXPECT_THROW(VSet::RemoveSetLines("A", none), ListIndexError);
}

TEST_F(SetFileTest, holdsNamesInTheAnsiCodePage) {
  const std::array<std::string, 3> rows[] = {{"1254", "Şçğ İı", "\xDE\xE7\xF0 \xDD\xFD"},
                                             {"1251", "Отчёт №", "\xCE\xF2\xF7\xB8\xF2 \xB9"}};
  for (const auto& [codePage, name, bytes] : rows) {
    code_page_.set(codePage.c_str());
    use("<Ver/>\n", name);
    EXPECT_EQ(VSet().SaveSet(), 0);
    EXPECT_NE(file().find(fileOf("|<Set SetName='" + bytes + "'>")), std::string::npos) << name;
    EXPECT_EQ(namesInFile(), std::vector<std::string>{name});
    EXPECT_EQ(VSet().ReloadSet(), 0);
  }
}

TEST(GetKeyValue, takesWhatStandsBehindTheKey) {
  const std::pair<const char*, const char*> rows[] = {
      {"<Key = \"a b\"/>", "a b"}, {"Key=1 x", "1"}, {"<Set Key=abc>", "abc>"}, {"Key a b", "a"},
      {"Key \"a\" b", "a"},        {"Key=\"\"", ""}, {"x Key: y = z", "z"},     {"Key=", ""},
      {"a=\"Key=1\" Key=2", "1\""}};
  std::string value;
  for (const auto& [line, expected] : rows) {
    EXPECT_TRUE(GetKeyValue(line, "Key", value)) << line;
    EXPECT_EQ(value, expected) << line;
  }
  for (const char* line : {"Key=\"a", "key=1", ""}) EXPECT_FALSE(GetKeyValue(line, "Key", value));
}

TEST_F(SetFileTest, writesAndReadsNumbers) {
  for (const std::string& text :
       wordsOf("0 210 -12.5 0.1 0.0001 1E20 0.333333333333333 123456789012345"))
    EXPECT_EQ(FloatToStr(std::stod(text)), text);
  EXPECT_EQ(FloatToStr(1.0 / 3), "0.333333333333333");
  for (const auto& [text, value] :
       rowsOf("12,5 12.5|12.5 12.5|1,234.5 1.234|1.234,5 1.2345|-3,5mm -3.5|+3 3|.5 0.5|1e3 1000|"
              "12/> 12|abc 0|- 0"))
    EXPECT_EQ(ParseDoubleAnyLocale(text), std::stod(value)) << text;
  EXPECT_EQ(ParseDoubleAnyLocale("1 000,5"), 1000.5);
  EXPECT_EQ(ParseDoubleAnyLocale(""), 0);
  if (run({"localedef", "-i", "ru_RU", "-f", "UTF-8", place_.path("ru_RU.utf8")}).exitCode != 0)
    GTEST_SKIP() << "no source of a locale with a decimal comma";
  const Variable variables[] = {{"LOCPATH", place_.path().c_str()}, {"LC_ALL", "ru_RU.utf8"}};
  EXPECT_EQ(FloatToStr(12.5), "12,5");
}

}  // namespace
}  // namespace qor::test
