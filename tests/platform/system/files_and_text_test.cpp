// Text encodings, and files that are replaced only by complete ones.
#include "platform/system/file_cache.h"
#include "platform/system/file_times.h"
#include "platform/system/input_file.h"
#include "platform/system/output_file.h"
#include "platform/system/text_encoding.h"
#include "support/test.h"

namespace qor::test {
namespace fs = std::filesystem;
namespace {

TEST(TextEncoding, marksWhatIsNoLetter) {
  EXPECT_EQ(utf8FromCodePage("a\x98-", 1251), "a\uFFFD-");
  EXPECT_EQ(utf8FromCodePage("\xE9", 99999), "\uFFFD");
  EXPECT_EQ(codePageFromUtf8("a€b", 866, Substitute::questionMark), "a?b");
  EXPECT_EQ(codePageFromUtf8("aЖb", 1252, Substitute::htmlReference), "a&#1046;b");
  EXPECT_EQ(codePageFromUtf8("\xFFz", 1251, Substitute::questionMark), "?z");
  EXPECT_TRUE(codePointsFromUtf8("aЖ€😀") == U"aЖ€😀");
  EXPECT_TRUE(codePointsFromUtf8("\xC0\x80") == U"\uFFFD\uFFFD");
  EXPECT_TRUE(codePointsFromUtf8("\xED\xA0\x80x") == U"\uFFFD\uFFFD\uFFFDx");
  EXPECT_TRUE(codePointsFromUtf8("\xE2\x82") == U"\uFFFD\uFFFD");
  EXPECT_EQ(lowerUtf8("ОТЧЁТ Ğüİ.PNG \xFF-A"), "отчёт ğüi.png \xFF-a");
  EXPECT_EQ(firstCharacters("Отчёт", 2), "От");
}

// A link stays, and its target is replaced.
TEST(OutputFile, replacesItsTargetOnlyWhenComplete) {
  const TemporaryDirectory directory;
  const std::string target = directory.write("a b.txt", "before");
  fs::permissions(target, fs::perms(0640));
  fs::create_symlink(target, directory.path("link"));
  {
    OutputFile file(target);
    file.write(std::string(100000, 'x'));
    EXPECT_EQ(directory.read("a b.txt"), "before");
  }
  EXPECT_EQ(directory.read("a b.txt"), "before");
  const std::string longest(255, 'n');
  for (const std::string& name : {std::string("link"), longest}) {
    OutputFile file(directory.path(name));
    file.write("after");
    file.commit();
    EXPECT_EQ(directory.read(name), "after");
  }
  EXPECT_EQ(directory.read("a b.txt"), "after");
  EXPECT_TRUE(fs::is_symlink(directory.path("link")));
  EXPECT_EQ(fs::status(target).permissions(), fs::perms(0640));
  EXPECT_EQ(directory.names().size(), 3U);
}

// Pieces are gathered up to 64 KiB, larger ones go out at once.
TEST(OutputFile, keepsThePiecesInOrder) {
  const TemporaryDirectory directory;
  std::string whole;
  OutputFile file(directory.path("out"));
  for (const std::size_t size :
       {3, 65535, 1, 1, 65536, 5, 65537, 0, 40000, 40000, 40000, 65534, 2, 200000, 7}) {
    std::string piece;
    while (piece.size() < size) piece += std::to_string(whole.size() + piece.size()) + " ";
    piece.resize(size);
    file.write(piece);
    whole += piece;
  }
  file.commit();
  EXPECT_TRUE(directory.read("out") == whole);
}

TEST(Files, tellTheirTimesInUtcAndTheZoneWestOfIt) {
  const TemporaryDirectory directory;
  const std::string name = directory.write("a", "b");
  run({"touch", "-d", "2001-02-03T04:05:06Z", name});
  for (const auto& [zone, bias] : {std::pair{"XST-5:30", -330}, {"XST4", 240}}) {
    const Variable variable("TZ", zone);
    const auto times = fileTimes(name);
    ASSERT_TRUE(times);
    const auto& [year, month, day, hour, minute] = times->modified;
    EXPECT_EQ((std::array{year, month, day, hour, minute}), (std::array{2001, 2, 3, 4, 5}));
    EXPECT_EQ(timeZoneBias(), bias);
  }
}

TEST(Files, areMadeAnewWhenTheyHaveChanged) {
  const TemporaryDirectory directory;
  FileCache<char> cache;
  char made = '0';
  const auto valuesOf = [&](std::string names) {
    for (char& c : names) c = cache.valueOf(directory.path({&c, 1}), [&made] { return ++made; });
    return names;
  };
  for (const char* name : {"a", "b"}) directory.write(name, "one");
  EXPECT_EQ(valuesOf("ababnn"), "121234");
  fs::last_write_time(directory.path("a"), fs::file_time_type());
  EXPECT_EQ(valuesOf("abaa"), "5255");
}

TEST(Files, refuseWhatIsNone) {
  const TemporaryDirectory directory;
  EXPECT_THROW(OutputFile(directory.path()), FileError);
  EXPECT_THROW(OutputFile(directory.path("none/x.txt")), FileError);
  EXPECT_THROW(OutputFile("/dev/null"), FileError);
  EXPECT_THROW(InputFile(directory.path()), FileError);
  EXPECT_THROW(InputFile("/dev/zero"), FileError);
  EXPECT_FALSE(fileExists(directory.path()));
  EXPECT_FALSE(readWholeFile(directory.write("big", "12345"), 4).has_value());
}

}  // namespace
}  // namespace qor::test
