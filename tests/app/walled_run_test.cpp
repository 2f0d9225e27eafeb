// Runs behind the wall do what runs without it do.
#include "platform/print/pdf_file_printer.h"
#include "support/cups_scheduler.h"
#include "support/samples.h"
#include "support/test.h"

namespace qor::test {
namespace {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

// The files of a directory with their bytes, but for the directory that links hold.
std::map<std::string, std::string> filesOf(const TemporaryDirectory& place) {
  std::map<std::string, std::string> files;
  for (const std::string& name : place.names()) {
    if (name.ends_with('/')) continue;
    files[name] = without(place.path(), place.read(name));
  }
  return files;
}

struct Left {
  std::string told;
  std::map<std::string, std::string> files;
};

// What a run leaves of a sample and says. Its pictures are copies: links would lead out of the
// report's directory.
Left leftBy(const Texts& program, const std::string& sample, const Texts& arguments) {
  const TemporaryDirectory place;
  fs::copy(kSamples / "pictures", place.path("pictures"), fs::copy_options::recursive);
  fs::copy(kSamples / sample, place.path(sample));
  fs::create_directory(place.path("out"));
  Surroundings around = in(place);
  around.environment = {{"SOURCE_DATE_EPOCH", "1"},
                        {"QOR_ANSI_CODEPAGE", "1251"},
                        {"QOR_PICTURE_PATH", place.path("pictures")}};
  Left done;
  done.told =
      without(place.path(), run(joined(program, arguments), withoutLeakCheck(around)).told());
  done.files = filesOf(place);
  return done;
}

TEST(WalledRun, putsOutTheSameBytes) {
  constexpr std::size_t kBefore = 9;  // the report and eight pictures
  for (const auto& [sample, codePage] : samples()) {
    std::vector<Texts> ends = {{"-g", "-p", kPdfFilePrinter}, {"-g"}};
    for (const std::string& extension :
         wordsOf("txt html rtf doc pdf xls xlsx csv bmp jpeg gif ico png"))
      ends.push_back({"-export", "out/r." + extension});
    for (const Texts& end : ends) {
      const Texts arguments = joined({"-f", sample, "-codepage", codePage}, end);
      SCOPED_TRACE(sample + " " + end.back());
      const Left walled = leftBy({QOR_PROGRAM}, sample, arguments);
      const Left bare = leftBy({QOR_WALL_PROBE, "run"}, sample, arguments);
      EXPECT_EQ(walled.told, bare.told);
      EXPECT_GT(walled.files.size(), kBefore);
      EXPECT_TRUE(walled.files == bare.files);
    }
  }
}

// Of the process itself, as the kernel tells it.
TEST(WalledRun, standsInTheProgramAndNotInItsTwin) {
  const TemporaryDirectory place;
  {
    std::ofstream report(place.path("r.txt"), std::ios::binary);
    for (int i = 0; i < 3000000; ++i) report << "Alpha and Beta and Gamma\r\n";
  }
  const Texts arguments = wordsOf("-f r.txt -export r.pdf");
  for (const auto& [program, mark] :
       {std::pair{Texts{QOR_PROGRAM}, "2"}, {{QOR_WALL_PROBE, "run"}, "0"}}) {
    Process process(joined(program, arguments), in(place));
    // What it writes stands beside its target by then.
    std::string seen;
    bool reads = false;
    while (process.isRunning() && !reads) {
      const std::string entry = "/proc/" + std::to_string(process.id());
      reads = place.names().size() > 1;
      const std::string status = readFile(entry + "/status");
      const auto at = status.find("Seccomp:\t");
      seen = at == std::string::npos ? "" : status.substr(at + 9, 1);
    }
    EXPECT_TRUE(reads);
    EXPECT_EQ(seen, mark);
  }
}

// The wall opens the way by socket for one and by port for the other.
TEST(WalledRun, reachesTheSchedulerWhereverItIs) {
  const CupsScheduler scheduler;
  scheduler.addQueue("queue", "raw");
  int jobs = 0;
  for (const std::string& server :
       {scheduler.socket(), "127.0.0.1:" + scheduler.port(), "localhost:" + scheduler.port()}) {
    SCOPED_TRACE(server);
    for (const char* pictures : {"", "/nowhere"}) {
      const TemporaryDirectory place;
      place.write("r.txt", "Alpha\r\n");
      Surroundings around = scheduler.surroundings(place);
      around.environment["CUPS_SERVER"] = server;
      if (*pictures != '\0') around.environment["QOR_PICTURE_PATH"] = pictures;
      expectTold(runViewer({"-g", "-f", "r.txt", "-p", "queue"}, withoutLeakCheck(around)), "");
      EXPECT_EQ(readPdf(scheduler.document(++jobs)).pages, 1);
    }
  }
}

// A picture elsewhere is a picture that is not there.
TEST(WalledRun, drawsNoPictureFromOutsideItsPath) {
  const TemporaryDirectory place;
  fs::copy(kSamples / "pictures", place.path("pictures"), fs::copy_options::recursive);
  const std::string tag = " imgSS=1 left=0 top=0 right=40 bottom=40/>\r\n";
  place.write("in/near.txt", "<img image=\"missing.png\"" + tag);
  place.write("in/far.txt", "<img image=\"" + place.path("pictures/logo.png") + "\"" + tag);
  const auto picture = [&](const char* report, const char* path) {
    Surroundings around = in(place);
    if (path != nullptr) around.environment["QOR_PICTURE_PATH"] = path;
    const std::string target = place.path("out.png");
    expectTold(runViewer({"-f", report, "-export", target}, withoutLeakCheck(around)), "");
    return readFile(target);
  };
  const std::string shown = picture("in/far.txt", nullptr);
  EXPECT_EQ(picture("in/far.txt", place.path("pictures").c_str()), shown);
  EXPECT_NE(picture("in/far.txt", place.path("in").c_str()), shown);
  EXPECT_NE(picture("in/far.txt", ""), shown);
}

}  // namespace
}  // namespace qor::test
