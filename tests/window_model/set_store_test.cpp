// What the settings dialog does with set files.
#include "window_model/set_store.h"

#include <algorithm>
#include <filesystem>

#include <gtest/gtest.h>

#include "base/errors.h"
#include "support/report_reader.h"
#include "support/rows.h"
#include "support/variable.h"

namespace qor::test {
namespace {

using Names = std::vector<std::string>;

constexpr std::uint64_t kTooLarge = (64U << 20) + 1;

// A set of some lines, divided by "|", with "'" for a double quote.
std::string setText(const std::string& name, const std::string& lines) {
  std::string bytes;
  for (const std::string& line : linesOf("<Set SetName='" + name + "'>|" + lines + "|<Set/>", '|'))
    bytes += line + "\r\n";
  std::ranges::replace(bytes, '\'', '"');
  return bytes;
}

std::string pageText(const std::string& name, const std::string& keys) {
  return setText(name, "<Page>|" + keys + "|<Page/>");
}

const std::string kVersion = "<ReportSetsIniFile Ver=\"1.0\"/>\r\n";
const std::string kA = pageText("A", "<PaperSize='11'/>");
const std::string kB = pageText("B", "<PaperSize='12'/>|<Orientation='2'/>");
const std::string kC = pageText("C", "<PaperSize='13'/>");

class SetStore : public testing::Test {
 protected:
  SetStore() {
    AppOptions = {};
    AppOptions.WorkDir = place_.path();
  }

  void use(const std::string& bytes, const std::string& set) {
    AppOptions.IniFileName = place_.write("s.vset", bytes);
    AppOptions.SetName = set;
  }
  std::string file() const { return place_.read("s.vset"); }

  TemporaryDirectory place_;

 private:
  OptionsGuard guard_;
  Variable code_page_{"QOR_ANSI_CODEPAGE", "1254"};
  Variable locale_{"LC_ALL", "C"};
};

std::string inForce() {
  return AppOptions.IniFileName + "#" + AppOptions.SetName;
}

TEST_F(SetStore, opensAFileAndPutsItsFirstSetInForce) {
  EXPECT_EQ(namesOfSets(), Names{});
  use(kVersion + kA + kB, "B");
  const std::string first = AppOptions.IniFileName;
  const std::string large = place_.write("large.vset", kC);
  std::filesystem::resize_file(large, kTooLarge);
  EXPECT_THROW(openSetFile(large), FileError);
  EXPECT_EQ(inForce(), first + "#B");
  const std::tuple<std::string, std::string, Names> rows[] = {
      {place_.write("t.vset", kVersion + pageText("\xDE\xE7\xF0", "x") + kB), "Şçğ", {"Şçğ", "B"}},
      {place_.write("u.vset", kVersion), "", {}},
      {first, "A", {"A", "B"}},
      {place_.path("none.vset"), "", {}}};
  for (const auto& [path, set, names] : rows) {
    openSetFile(path);
    EXPECT_EQ(inForce(), path + "#" + set);
    EXPECT_EQ(namesOfSets(), names) << path;
  }
  EXPECT_FALSE(place_.has("none.vset"));
}

// The order of sets and the name of nameless ones are seen in the dialog.
TEST_F(SetStore, putsInForceWhatIsSaved) {
  use(kVersion + kA + kB, "A");
  const std::string first = AppOptions.IniFileName;
  VSet set;
  set.Page.PaperSize = 70;
  const std::tuple<const char*, std::string, std::string> rows[] = {
      {"B", "", first + "#A"},
      {"Ğ", first, first + "#Ğ"},
      {"X", place_.path("none/x.vset"), first + "#Ğ"},
      {"N", place_.path("new.vset"), place_.path("new.vset") + "#N"}};
  for (const auto& [name, path, expected] : rows) {
    try {
      saveSetAs(set, name, path);
    } catch (const FileError&) {
      EXPECT_STREQ(name, "X");
    }
    EXPECT_EQ(inForce(), expected);
  }
  EXPECT_EQ(namesOfSets(), Names{"N"});
  openSetFile(first);
  EXPECT_EQ(namesOfSets(), (Names{"Ğ", "A", "B"}));
  EXPECT_NE(file().find("PaperSize     = \"70\""), std::string::npos);
}

TEST_F(SetStore, loadsAWholeSetOrNothing) {
  const std::string bytes = kVersion + kA + kB +
                            pageText("bad", "<PaperSize='13'/>|<Orientation='x'/>") +
                            setText("open", "<Page>|<PaperSize='14'/>");
  // The result; paper and orientation over the paper 70 upright.
  const std::tuple<const char*, const char*, std::string> rows[] = {{"A", "read", "11 1"},
                                                                    {"B", "read", "12 2"},
                                                                    {"bad", "conversion", "70 1"},
                                                                    {"open", "end", "70 1"},
                                                                    {"a", "read", "70 1"}};
  for (const auto& [name, expected, values] : rows) {
    use(bytes, "B");
    VSet set;
    set.Page.PaperSize = 70;
    set.Page.PrintQuality = 1;
    set.PrinterName = "P";
    std::string result = "read";
    try {
      loadSetOf(name, set);
    } catch (const ConversionError&) {
      result = "conversion";
    } catch (const ListIndexError&) {
      result = "end";
    }
    EXPECT_EQ(result, expected) << name;
    EXPECT_EQ(AppOptions.SetName, name);
    EXPECT_EQ(std::to_string(set.Page.PaperSize) + " " + std::to_string(set.Page.Orientation),
              values);
    EXPECT_TRUE(set.Page.PrintQuality == 1 && set.PrinterName == "P") << name;
  }
}

TEST_F(SetStore, deletesTheSetInForce) {
  for (const auto& [name, left] : {std::pair("B", kA + kC), {"C", kA + kB}, {"", kA + kB + kC}}) {
    use(kVersion + kA + kB + kC, name);
    const std::string path = AppOptions.IniFileName;
    deleteSetInForce();
    EXPECT_EQ(file(), left) << name;
    EXPECT_EQ(inForce(), path + "#Default");
  }
  for (const std::string& path : {std::string(), place_.path("none.vset")}) {
    AppOptions.IniFileName = path;
    AppOptions.SetName = "B";
    deleteSetInForce();
    EXPECT_EQ(AppOptions.SetName, "B") << path;
  }
  EXPECT_EQ(place_.names(), Names{"s.vset"});
  use("", "B");
  EXPECT_THROW(deleteSetInForce(), ListIndexError);
  EXPECT_EQ(AppOptions.SetName, "B");
}

TEST_F(SetStore, showsTheLinesOfASet) {
  VSet set;
  set.Page.PaperSize = 70;
  const std::string named = "<Set SetName=\"";
  // Of a set that is written: its header, and the paper of the draft.
  const auto expectWritten = [&](const std::string& name, const std::string& header) {
    const Names lines = linesOfSet(name, set);
    ASSERT_EQ(lines.size(), 32U) << name;
    EXPECT_EQ(lines.front(), named + header + "\">");
    EXPECT_EQ(lines[11], "        <PaperSize     = \"70\"/>");
    EXPECT_EQ(lines.back(), "<Set/>");
    EXPECT_EQ(AppOptions.SetName, "B");
  };
  use(kVersion + kA + setText("\xDE\xE7", "\xF0 x") + setText("", "w"), "B");
  EXPECT_EQ(linesOfSet("Şç", set), (Names{named + "Şç\">", "ğ x", "<Set/>"}));
  EXPECT_EQ(AppOptions.SetName, "B");
  expectWritten("", "Default");
  set.PrinterName = "Ğ";
  EXPECT_EQ(linesOfSet("none", set)[2], "        <PrinterName   = \"Ğ\"/>");
  for (const std::string& path : {std::string(), place_.path("none.vset")}) {
    AppOptions.IniFileName = path;
    expectWritten("A", "A");
  }
}

}  // namespace
}  // namespace qor::test
