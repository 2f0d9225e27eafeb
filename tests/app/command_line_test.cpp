// The option parser: parameter strings to options.
#include "app/command_line.h"

#include <cstdlib>
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "base/interface_texts.h"
#include "platform/locale.h"
#include "support/report_reader.h"

namespace qor::test {
namespace {

void setVariable(const char* name, const char* value) {
  value != nullptr ? ::setenv(name, value, 1) : ::unsetenv(name);
}

// An environment variable for the length of a test; a null value unsets it.
class Variable {
 public:
  Variable(const char* name, const char* value) : name_(name) {
    if (const char* before = std::getenv(name)) before_ = before;
    setVariable(name, value);
  }
  ~Variable() { setVariable(name_, before_ ? before_->c_str() : nullptr); }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;

 private:
  const char* name_;
  std::optional<std::string> before_;
};

class CommandLineTest : public testing::Test {
 protected:
  CommandLineTest() {
    for (const char* file : {"r.txt", "a -g b.txt", "s.vset", "a#b.vset"}) place_.write(file, "x");
  }

  // Parses and tells the way of running and all that is not as at the start; "@" is the directory.
  std::string parsed(std::string parameters) {
    AppOptions = {};
    AppOptions.WorkDir = place_.path();
    if (const auto at = parameters.find('@'); at != std::string::npos) {
      parameters.replace(at, 1, place_.path());
    }
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const RunMode mode = ParseCommandLine(parameters);
    const bool warned = !testing::internal::GetCapturedStderr().empty();
    const bool told = !testing::internal::GetCapturedStdout().empty();
    const char* const modes[] = {"stop", "print", "preview", "export"};
    text_ = modes[mode + 1];
    if (told) text_ += " told";
    if (warned) text_ += " warned";
    addOptions();
    return text_;
  }

  struct Row {
    const char* parameters;
    const char* expected;
  };
  void expectParsed(std::initializer_list<Row> rows) {
    for (const Row& row : rows) EXPECT_EQ(parsed(row.parameters), row.expected) << row.parameters;
  }

 private:
  void addOptions() {
    const AppOptionsRecord start;
    add("file", AppOptions.FileName, start.FileName);
    add("ini", AppOptions.IniFileName, start.IniFileName);
    add("set", AppOptions.SetName, start.SetName);
    add("printer", AppOptions.PrinterName, start.PrinterName);
    add("caption", AppOptions.WindowCaption, start.WindowCaption);
    add("codepage", AppOptions.DocCodePage, ansi_);
    add("mail", AppOptions.MailProgram, start.MailProgram);
    add("dd", AppOptions.DeleteAfterPrint, false);
    add("dynamic", AppOptions.DynamicMode, false);
    add("test", AppOptions.TestMode, false);
    add("target", AppOptions.ExportTarget, start.ExportTarget);
    add("owner", AppOptions.OwnerWindow, start.OwnerWindow);
  }

  void add(const char* name, std::string value, const std::string& start) {
    if (value == start) return;
    if (value.starts_with(place_.path())) value.replace(0, place_.path().size(), "@");
    text_.append(" ").append(name).append("=").append(value);
  }
  template <class Number>
  void add(const char* name, Number value, Number start) {
    if (text_.starts_with("stop")) return;
    add(name, std::to_string(value), std::to_string(start));
  }

  OptionsGuard guard_;
  Variable codePage_{"QOR_ANSI_CODEPAGE", "1253"};
  int ansi_ = 1253;
  TemporaryDirectory place_;
  std::string text_;
};

TEST(GetOptionValue, takesTheValueAndCutsItOut) {
  struct Row {
    const char* name;
    std::string parameters;
    std::string key;
    bool found;
    std::string value;
    std::string rest;
  };
  const std::string longTail(1100, 'x');
  const Row rows[] = {
      {"no key", "-g -dd", "-f", false, "", "-g -dd"},
      {"value in the middle", "a -f b c", "-f", true, "b", "a  c"},
      {"value at the end stays", "a -f b", "-f", true, "b", "a -f b"},
      {"quoted value", "-f \"a b\" -g", "-f", true, "a b", " -g"},
      {"quoted value at the end", "x -f \"a b\"", "-f", true, "a b", "x "},
      {"text right behind the quote", "-f \"a\"b c", "-f", true, "a", "b c"},
      {"empty quotes", "-f \"\" -g", "-f", true, "", " -g"},
      {"open quote", "-f \"a b", "-f", false, "", "-f \"a b"},
      {"several blanks", "-f    a b", "-f", true, "a", " b"},
      {"glued value, no blank", "-fa.txt", "-f", true, "a.txt", "-fa.txt"},
      {"glued value is lost before a blank", "-fa.txt -g", "-f", true, "-g", "-fa.txt -g"},
      {"first occurrence counts", "my-file -f x y", "-f", true, "-f", "my x y"},
      {"nothing behind the key", "-f", "-f", true, "", "-f"},
      {"rest is cut", "-f a " + longTail, "-f", true, "a", " " + longTail.substr(0, 1023)},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    std::string value;
    std::string parameters = row.parameters;
    EXPECT_EQ(GetOptionValue(value, parameters, row.key), row.found);
    if (row.found) {
      EXPECT_EQ(value, row.value);
    }
    EXPECT_EQ(parameters, row.rest);
  }
}

TEST_F(CommandLineTest, fillsTheOptions) {
  expectParsed({
      {"-f r.txt", "preview file=@r.txt"},
      {"-F r.txt", "preview file=@r.txt"},
      {"-f @r.txt", "preview file=@r.txt"},
      {"-f \"r.txt\"", "preview file=@r.txt"},
      {"-f missing.txt", "stop warned"},
      {"-f \"r.txt", "preview"},
      {"-f \"r.txt -F r.txt", "preview file=@r.txt"},
      {"-g -f r.txt", "print file=@r.txt"},
      {"-f r.txt -G", "print file=@r.txt"},
      {"-f r.txt -p HP", "preview file=@r.txt printer=HP"},
      {"-P \"HP 4 L\" -f r.txt", "preview file=@r.txt printer=HP 4 L"},
      {"-codepage 866", "preview codepage=866"},
      {"-CODEPAGE $362 -f r.txt", "preview file=@r.txt codepage=866"},
      {"-codepage abc", "preview"},
      {"-f r.txt -mail 2", "preview file=@r.txt mail=2"},
      {"-f r.txt -MAIL 2", "preview file=@r.txt mail=2"},
      {"-f r.txt -mail abc", "preview file=@r.txt"},
      {"-dd -f r.txt", "preview file=@r.txt dd=1"},
      {"-f r.txt -DD", "preview file=@r.txt dd=1"},
      {"-f r.txt -dynamic", "preview file=@r.txt dynamic=1"},
      {"-f r.txt -TEST", "preview file=@r.txt test=1"},
      {"-export O.PDF -f r.txt", "export file=@r.txt target=o.pdf"},
      {"-f r.txt -EXPORT Dir/O.PDF", "export file=@r.txt target=Dir/o.pdf"},
      {"-export ОТЧЁТ_ŞÇĞ.TXT", "export target=отчёт_şçğ.txt"},
      {"-f r.txt -g -export o.txt", "export file=@r.txt target=o.txt"},
      {"-handle 4660 -f r.txt", "preview file=@r.txt owner=4660"},
      {"-HANDLE abc -f r.txt", "preview file=@r.txt"},
      {"-caption \"My -g report\" -f r.txt", "preview file=@r.txt caption=My -g report"},
      {"-CAPTION Sales -f r.txt", "preview file=@r.txt caption=Sales"},
      {"-caption \"A B\" -f r.txt -i s.vset#Q -p HP -codepage 1254 -mail 2 -dd -dynamic -test "
       "-export O.TXT -handle 7",
       "export file=@r.txt ini=@s.vset set=Q printer=HP caption=A B codepage=1254 mail=2 dd=1 "
       "dynamic=1 test=1 target=o.txt owner=7"},
  });
}

TEST_F(CommandLineTest, splitsTheSettingsAtTheLastMark) {
  expectParsed({
      {"-i s.vset", "preview ini=@s.vset"},
      {"-I s.vset#A", "preview ini=@s.vset set=A"},
      {"-i @s.vset#A", "preview ini=@s.vset set=A"},
      {"-i s.vset#", "preview ini=@s.vset"},
      {"-i \"s.vset#Set A\" -f r.txt", "preview file=@r.txt ini=@s.vset set=Set A"},
      {"-i s.vset#Set A -f r.txt", "preview file=@r.txt ini=@s.vset set=Set"},
      {"-i a#b.vset#C", "preview ini=@a#b.vset set=C"},
      {"-i a#b.vset", "preview warned"},
      {"-i missing.vset#A -f r.txt", "preview warned file=@r.txt"},
  });

  std::string letters;
  for (int i = 0; i < 300; ++i) letters += "Ж";
  EXPECT_EQ(parsed("-i s.vset#" + letters),
            "preview ini=@s.vset set=" + letters.substr(0, 255 * std::string("Ж").size()));
}

TEST_F(CommandLineTest, searchesSubstrings) {
  expectParsed({
      {"-g", "preview"},
      {"-dd", "preview"},
      {"-p", "preview"},
      {"-fr.txt", "preview"},
      {"x -fr.txt", "preview file=@r.txt"},
      {"x -fr.txt -g", "stop warned"},  // takes "-g" for the name
      {"-dynamic -f r.txt", "preview file=@r.txt"},
      {"-test -f r.txt", "preview file=@r.txt"},
      {"-mail 2 -f r.txt", "preview file=@r.txt"},
      {"-Export o.txt", "preview"},
      {"-f r.txt -e txt", "preview file=@r.txt"},
      {"-f r.txt -Dd -Dynamic -Test", "preview file=@r.txt"},
      {"-f r.txt -green", "print file=@r.txt"},
      {"-f \"a -g b.txt\"", "print file=@a -g b.txt"},
      {"-f r.txt -caption -g", "print file=@r.txt caption=-g"},
      {"-f r.txt -invoice", "preview warned file=@r.txt"},  // settings file "nvoice"
      {"-export a-f.txt -f r.txt", "stop warned"},          // report "-f"
      {"-f r.txt -export a-p.txt -p HP", "export file=@r.txt printer=-p target=a"},
  });
}

TEST_F(CommandLineTest, showsHelpOnlyForASwitchAlone) {
  for (const char* parameters : {"/?", "/h", "/H", "-h", "-H", "  -h "}) {
    EXPECT_EQ(parsed(parameters), "stop told") << parameters;
  }
  EXPECT_EQ(parsed("-caption X -h"), "stop told caption=X");
  for (const char* parameters : {"x -h", "-hx", "-?", "--h"}) {
    EXPECT_EQ(parsed(parameters), "preview") << parameters;
  }
}

TEST(ParameterString, quotesWhatHoldsBlanks) {
  const auto joined = [](std::vector<const char*> arguments) {
    arguments.insert(arguments.begin(), "qorutlview");
    return parameterString(static_cast<int>(arguments.size()), arguments.data());
  };
  EXPECT_EQ(joined({}), "");
  EXPECT_EQ(joined({""}), "\"\"");
  EXPECT_EQ(joined({"-f", "a b.txt", "", "-g"}), "-f \"a b.txt\" \"\" -g");
}

TEST(CodePages, followTheVariableAndThenTheLanguage) {
  struct Row {
    const char* variable;
    const char* all;
    const char* language;
    int expected;
  };
  const Row rows[] = {
      {"1251", "tr_TR.UTF-8", nullptr, 1251},  {"abc", "tr_TR.UTF-8", nullptr, 1254},
      {nullptr, "ru_RU.UTF-8", "tr_TR", 1251}, {nullptr, nullptr, "uk_UA.UTF-8", 1251},
      {nullptr, "pl_PL.UTF-8", nullptr, 1250}, {nullptr, "el_GR.UTF-8", nullptr, 1253},
      {nullptr, "sr_RS@latin", nullptr, 1251}, {nullptr, "de_DE.UTF-8", nullptr, 1252},
      {nullptr, "C", "ru_RU.UTF-8", 1252},     {nullptr, nullptr, nullptr, 1252},
  };
  const Variable ctype("LC_CTYPE", nullptr);
  for (const Row& row : rows) {
    const Variable number("QOR_ANSI_CODEPAGE", row.variable);
    const Variable all("LC_ALL", row.all);
    const Variable language("LANG", row.language);
    EXPECT_EQ(systemAnsiCodePage(), row.expected) << (row.all ? row.all : "no LC_ALL");
  }
}

TEST(CodePages, decideTheInterface) {
  const OptionsGuard guard;
  const auto selected = [](int codePage) {
    SelectInterfaceTexts(codePage);
    return std::vector<int>{AppOptions.FontCharset, AppOptions.AnsiCodePage,
                            AppOptions.DocCodePage};
  };
  EXPECT_EQ(selected(1251), (std::vector{204, 1251, 866}));
  EXPECT_EQ(selected(1254), (std::vector{162, 1254, 857}));
  for (const int other : {1250, 866, 857, 1252}) {
    EXPECT_EQ(selected(other), (std::vector{0, 1252, 850})) << other;
  }
}

}  // namespace
}  // namespace qor::test
