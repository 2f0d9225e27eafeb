// Where exports go, what stands in their way, and what is said of it.
#include "window_model/export_targets.h"

#include <unistd.h>

#include "export/export_formats.h"
#include "language/language.h"
#include "support/test.h"
#include "window_model/export_words.h"

namespace qor::test {
namespace {

namespace fs = std::filesystem;

class ExportTargets : public testing::Test {
 protected:
  ExportTargets() {
    selectLanguage(languageOf("en"));
    for (const char* name : {"r.png", "old.txt", "sub/o(2).png", "sub/o(3).gif"})
      place_.write(name, "x");
    fs::create_directory(place_.path("sub/x(2).jpeg"));
    fs::create_symlink("r.png", place_.path("way.txt"));
    fs::create_symlink("none", place_.path("nowhere.txt"));
  }
  ~ExportTargets() override { selectLanguage(languageOf("en")); }

  // "none" and the existing files, or the fault's text; without the directory of the test.
  std::string look(const std::string& target, int format = kExportText, int pages = 3) const {
    const auto files = filesOfExport(format, target, formats_, pages);
    const TargetLook found = lookAtTarget(target, files, place_.path("r.png"));
    std::string text = faultText(found);
    for (const std::string& file : found.existing) text += file + " ";
    // Long names may be broken.
    return without("\u200B", without(place_.path(""), text));
  }
  std::string at(const std::string& name) const { return place_.path(name); }

  OptionsGuard guard_;
  TemporaryDirectory place_;
  ImageFormatSet formats_ = 1U << kImageGif | 1U << kImagePng;
};

TEST_F(ExportTargets, areWhatUsersType) {
  const std::pair<std::string, std::string> rows[] = {
      {" \t" + at("a b.txt") + "\r\n ", at("a b.txt")},
      {" ", ""},
      {at("sub\\a.txt"), at("sub/a.txt")},
      {at("none\\a.txt"), at("none/a.txt")},
      {"a.txt", "a.txt"}};
  for (const auto& [typed, target] : rows) EXPECT_EQ(targetOf(typed), target);
  fs::create_directory(at("we\\ird"));
  EXPECT_EQ(targetOf(at("we\\ird/a.txt")), at("we\\ird/a.txt"));
}

TEST_F(ExportTargets, areNamedAsExportersNameThem) {
  const std::tuple<int, const char*, int, const char*> rows[] = {
      {kExportPdf, "d.e/a.b", 3, "d.e/a.b"},
      {kExportPictures, "d.e/a.b.jpeg", 1, "d.e/a.b.gif d.e/a.b.png"},
      {kExportPictures, "d.e/a", 1, "d.e/a.jpeg d.e/a.gif d.e/a.png"},
      {kExportPictures, "a.x", 2, "a(1).gif a(1).png a(2).gif a(2).png"},
      {kExportPictures, "a.x", 0, ""},
      {kExportPdf, "a.pdf", 0, ""}};
  for (const auto& [format, target, pages, files] : rows)
    EXPECT_EQ(filesOfExport(format, target, formats_, pages), wordsOf(files)) << target;
}

TEST_F(ExportTargets, areLookedAtBeforeAnythingIsWritten) {
  const std::string long255 = std::string(251, 'n') + ".txt";
  const auto before = place_.names();
  const std::tuple<std::string, int, std::string> rows[] = {
      {at("old.txt"), kExportText, "old.txt "},
      {at("old.txt/x"), kExportText, "The directory of this file doesn't exist: old.txt/x"},
      {at("nowhere.txt"), kExportText, "nowhere.txt "},
      {at("o\"'\xC4\x9F\xD0\xB6.txt"), kExportText, ""},
      {at(long255), kExportText, ""},
      {at("n" + long255), kExportText, "This name is too long: n" + long255},
      {at(std::string(250, 'n')), kExportPictures,
       "This name is too long: " + std::string(250, 'n') + "(1).jpeg"},
      {"", kExportText, "Type the name of the file."},
      {at("a\nb\rc"), kExportText, "A name can't hold a line end: a b c"},
      {at(std::string("a\0b", 3)), kExportText, "A name can't hold a line end: a b"},
      {at("sub"), kExportText, "This is a directory and not a file: sub"},
      {at("sub/"), kExportPictures, "This is a directory and not a file: sub/"},
      {at("sub/x"), kExportPictures, "This is a directory and not a file: sub/x(2).jpeg"},
      {at("none/"), kExportPdf, "The directory of this file doesn't exist: none/"},
      {at("sub/../r.png"), kExportHtml, "This file is the report itself: sub/../r.png"},
      {at("way.txt"), kExportHtml, "This file is the report itself: way.txt"},
      {at("r.png"), kExportPictures, ""},
      {at("sub/o.jpeg"), kExportPictures, "sub/o(2).png sub/o(3).gif "},
      {"/dev/null", kExportText, "This is not a regular file: /dev/null"}};
  for (const auto& [target, format, expected] : rows) EXPECT_EQ(look(target, format), expected);
  EXPECT_EQ(look(at("r.jpeg"), kExportPictures, 1), "This file is the report itself: r.png");
  formats_ = {};
  EXPECT_EQ(look(at("new.png"), kExportPictures).substr(0, 26), "There is nothing to write:");
  EXPECT_EQ(place_.names(), before);
}

TEST_F(ExportTargets, mustBePermitted) {
  const std::string refused = "You have no permission to write this file: ";
  const std::string directory = at("sub/");
  const uid_t user = ::geteuid();
  const auto rights = [](const std::string& path, unsigned bits) {
    fs::permissions(path, static_cast<fs::perms>(bits));
  };
  // What another user, or a user without rights, meets: a closed directory, one that is only read,
  // and a file that is only read.
  rights(at(""), 0755);
  for (const auto& [path, bits, name, expected] :
       {std::tuple{directory, 0777U, "new.txt", ""},
        {directory, 0555U, "new.txt", "sub/new.txt"},
        {directory, 0666U, "o(2).png", "sub/o(2).png"},
        {directory, 0555U, "o(3).gif", "sub/o(3).gif"},
        {directory + "o(2).png", 0444U, "o(2).png", "sub/o(2).png"}}) {
    rights(directory, 0777);
    rights(at("sub/o(3).gif"), 0666);
    rights(path, bits);
    ASSERT_EQ(::seteuid(user == 0 ? 65534 : user), 0);
    const std::string found = look(directory + name);
    ASSERT_EQ(::seteuid(user), 0);
    EXPECT_EQ(found, *expected == '\0' ? "" : refused + expected) << path << name;
  }
  rights(directory, 0777);
}

TEST_F(ExportTargets, areSpokenOfInTheLanguageThatIsDue) {
  EXPECT_EQ(exportWaitText("a"), "Please Wait. a file is creating... ");
  const std::tuple<int, const char*> rows[] = {{1251, "a был создан!"},
                                               {1252, "a File was created!"},
                                               {1254, "a dosyası oluşturuldu!"},
                                               {866, "File was created!"}};
  for (const auto& [codePage, expected] : rows) EXPECT_EQ(exportedText("a", codePage), expected);
  const std::string part = times(50, "ж");
  EXPECT_EQ(exportedText(part + part, 1252), part + part + " File was created!");
  EXPECT_EQ(exportedText(part + part + "ж", 1252),
            part + "\u200B" + part + "\u200Bж\u200B File was created!");
  const std::string most = exportedText(std::string(401, 'n'), 1252);
  EXPECT_TRUE(most.ends_with("n\u200B… File was created!") && most.size() == 400 + 8 * 3 + 21)
      << most;
  EXPECT_EQ(replaceQuestion({"a"}), "A file of that name exists. Replace it?\na");
  std::vector<std::string> files(10, "a");
  const std::string ten = replaceQuestion(files);
  EXPECT_TRUE(ten.starts_with("10 files of") && ten.ends_with("\na") && ten.size() == 71) << ten;
  files.insert(files.end(), 2, "b");
  EXPECT_TRUE(replaceQuestion(files).ends_with("\na\na\nand 2 more"));
  selectLanguage(languageOf("ru"));
  EXPECT_EQ(exportWaitText("a"), "Пожалуйста, подождите. a файл создается... ");
  selectLanguage(languageOf("tr"));
  EXPECT_EQ(exportWaitText("a"), "Lütfen Bekleyin. a  dosyası oluşturuluyor... ");
  EXPECT_EQ(exportedText("a", 1251), "a был создан!");
}

}  // namespace
}  // namespace qor::test
