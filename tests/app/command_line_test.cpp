// The option parser: parameter strings to options.
#include "app/command_line.h"

#include "platform/system/locale.h"
#include "support/test.h"

namespace qor::test {
namespace {

class CommandLineTest : public testing::Test {
 protected:
  CommandLineTest() {
    for (const char* file : {"r.txt", "a -g b.txt", "s.vset", "a#b.vset"}) place_.write(file, "x");
  }

  // Parses and tells the way of running and all that is not as at the start; "@" is the directory.
  std::string parsed(std::string parameters) {
    AppOptions = {};
    AppOptions.WorkDir = place_.path();
    if (const auto at = parameters.find('@'); at != std::string::npos)
      parameters.replace(at, 1, place_.path());
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const RunMode mode = ParseCommandLine(parameters);
    const bool warned = !testing::internal::GetCapturedStderr().empty();
    const bool told = !testing::internal::GetCapturedStdout().empty();
    const char* const modes[] = {"stop", "print", "preview", "export"};
    return modes[mode + 1] + std::string(told ? " told" : "") + (warned ? " warned" : "") +
           options(mode == kRunStop ? 850 : 1253);
  }

 private:
  std::string options(int usualCodePage) const {
    std::string text;
    const auto add = [&](const char* name, std::string value, const std::string& usual = "") {
      if (value.starts_with(place_.path())) value.replace(0, place_.path().size(), "@");
      if (value != usual) text.append(" ").append(name).append("=").append(value);
    };
    add("file", AppOptions.FileName);
    add("ini", AppOptions.IniFileName);
    add("set", AppOptions.SetName);
    add("printer", AppOptions.PrinterName);
    add("caption", AppOptions.WindowCaption);
    add("codepage", std::to_string(AppOptions.DocCodePage), std::to_string(usualCodePage));
    add("mail", std::to_string(AppOptions.MailProgram), "1");
    add("dd", std::to_string(AppOptions.DeleteAfterPrint), "0");
    add("drawn", std::to_string(AppOptions.Drawn), "0");
    add("dynamic", std::to_string(AppOptions.DynamicMode), "0");
    add("test", std::to_string(AppOptions.TestMode), "0");
    add("target", AppOptions.ExportTarget, "pdf");
    add("owner", std::to_string(AppOptions.OwnerWindow), "0");
    return text;
  }

  OptionsGuard guard_;
  Variable code_page_{"QOR_ANSI_CODEPAGE", "1253"};
  TemporaryDirectory place_;
};

TEST(GetOptionValue, takesTheValueAndCutsItOut) {
  const auto taken = [](std::string parameters) {
    std::string value;
    const bool found = GetOptionValue(value, parameters, "-f");
    return (found ? value : "none") + ":" + parameters;
  };
  // The value, and the parameters that are left.
  for (const auto& [parameters, expected] :
       rowsOf("-g -dd => none:-g -dd|a -f b c => b:a  c|a -f b => b:a -f b|x -f \"a b\" => a b:x |"
              "-f \"\" -g => : -g|-f \"a\"b c => a:b c|-f    a b => a: b|-f \"a b => none:-f \"a b|"
              "-fa.txt -g => -g:-fa.txt -g|my-file -f x y => -f:my x y|-f => :-f",
              " => "))
    EXPECT_EQ(taken(parameters), expected);
  const std::string tail(1100, 'x');
  EXPECT_EQ(taken("-f a " + tail), "a: " + tail.substr(0, 1023));
}

TEST_F(CommandLineTest, fillsTheOptions) {
  // The settings are split at the last mark; options are searched for as parts of the text: "-g" is
  // taken for the name of a report, "nvoice" for that of settings.
  for (const auto& [parameters, expected] :
       rowsOf("-caption \"A -g B\" -f r.txt -i s.vset#Q -p \"HP 4 L\" -codepage $362 -mail 2 -dd "
              "-dynamic -drawn -test -export Dir/O.TXT -handle 4660 => export file=@r.txt "
              "ini=@s.vset set=Q "
              "printer=HP 4 L caption=A -g B codepage=866 mail=2 dd=1 drawn=1 dynamic=1 test=1 "
              "target=Dir/o.txt owner=4660|"
              "-EXPORT ОТЧЁТ_ŞÇĞ.TXT -F r.txt -I s.vset#Q -P HP -CODEPAGE 866 -MAIL 2 -DD -DRAWN "
              "-DYNAMIC "
              "-TEST -CAPTION Sales -HANDLE 7 => export file=@r.txt ini=@s.vset set=Q printer=HP "
              "caption=Sales codepage=866 mail=2 dd=1 drawn=1 dynamic=1 test=1 "
              "target=отчёт_şçğ.txt owner=7|"
              "-f missing.txt => stop warned|-G -f r.txt => print file=@r.txt|"
              "-f r.txt -G => print file=@r.txt|-P HP -f r.txt => preview file=@r.txt printer=HP|"
              "-p HP -f r.txt => preview file=@r.txt printer=HP|"
              "-dd -f r.txt => preview file=@r.txt dd=1|-DD -f r.txt => preview file=@r.txt dd=1|"
              "-f r.txt -g -export o.txt => export file=@r.txt target=o.txt|"
              "-I s.vset#A => preview ini=@s.vset set=A|-i @s.vset# => preview ini=@s.vset|"
              "-i \"s.vset#Set A\" -f r.txt => preview file=@r.txt ini=@s.vset set=Set A|"
              "-i s.vset#Set A -f r.txt => preview file=@r.txt ini=@s.vset set=Set|"
              "-i a#b.vset#C => preview ini=@a#b.vset set=C|-i a#b.vset => preview warned|"
              "x -fr.txt -g => stop warned|-f r.txt -green => print file=@r.txt|"
              "-f \"a -g b.txt\" => print file=@a -g b.txt|"
              "-f r.txt -caption -g => print file=@r.txt caption=-g|"
              "-f r.txt -invoice => preview warned file=@r.txt|"
              "-export a-f.txt -f r.txt => stop warned|"
              "-f r.txt -export a-p.txt -p HP => export file=@r.txt printer=-p target=a|"
              "-caption X -h => stop told caption=X",
              " => "))
    EXPECT_EQ(parsed(parameters), expected) << parameters;
  const std::string letters = times(300, "Ж");
  EXPECT_EQ(parsed("-i s.vset#" + letters),
            "preview ini=@s.vset set=" + letters.substr(0, 255 * std::string("Ж").size()));
}

TEST_F(CommandLineTest, needsItsOptionsAsTheyAreSpelt) {
  for (const char* parameters :
       {"-F r.txt", "-f @r.txt", "-f \"r.txt\"", "-f \"r.txt -F r.txt", "-f r.txt -mail abc",
        "-HANDLE abc -f r.txt", "x -fr.txt", "-dynamic -f r.txt", "-drawn -f r.txt",
        "-f r.txt -Drawn", "-test -f r.txt", "-mail 2 -f r.txt", "-f r.txt -e txt",
        "-f r.txt -Dd -Dynamic -Test"})
    EXPECT_EQ(parsed(parameters), "preview file=@r.txt") << parameters;
  for (const char* parameters : {"-g", "-dd", "-p", "-fr.txt", "-f \"r.txt", "-codepage abc",
                                 "-Export o.txt", "x -h", "-hx", "-?", "--h"})
    EXPECT_EQ(parsed(parameters), "preview") << parameters;
  for (const char* parameters : {"/?", "/h", "/H", "-h", "-H", "  -h "})
    EXPECT_EQ(parsed(parameters), "stop told") << parameters;
}

TEST(CodePages, followTheVariableAndThenTheLanguage) {
  const auto codePage = [](const char* number, const char* all, const char* ctype,
                           const char* language) {
    const Variable variables[] = {
        {"QOR_ANSI_CODEPAGE", number}, {"LC_ALL", all}, {"LC_CTYPE", ctype}, {"LANG", language}};
    return systemAnsiCodePage();
  };
  EXPECT_EQ(codePage("1251", "tr_TR", nullptr, nullptr), 1251);
  EXPECT_EQ(codePage("abc", "tr_TR", nullptr, nullptr), 1254);
  EXPECT_EQ(codePage(nullptr, "ru_RU.UTF-8", "el", "tr_TR"), 1251);
  EXPECT_EQ(codePage(nullptr, nullptr, "el_GR", "tr_TR"), 1253);
  EXPECT_EQ(codePage(nullptr, nullptr, nullptr, "uk_UA.UTF-8"), 1251);
  EXPECT_EQ(codePage(nullptr, "sr@latin", nullptr, nullptr), 1251);
  EXPECT_EQ(codePage(nullptr, nullptr, nullptr, nullptr), 1252);
  for (const auto& [language, page] :
       rowsOf("C 1252|ru 1251|uk 1251|be 1251|bg 1251|mk 1251|sr 1251|tr 1254|az 1254|pl 1250|"
              "cs 1250|sk 1250|hu 1250|ro 1250|hr 1250|sl 1250|el 1253|he 1255|ar 1256|lt 1257|"
              "lv 1257|et 1257|vi 1258|de 1252"))
    EXPECT_EQ(std::to_string(codePage(nullptr, language.c_str(), "el", "el")), page) << language;
}

}  // namespace
}  // namespace qor::test
