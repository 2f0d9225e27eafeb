// Links, pipes, dead runs and closed streams in the way of a run.
#include <csignal>
#include <thread>

#include "barcode/barcode_picture.h"
#include "platform/print/pdf_file_printer.h"
#include "support/test.h"

namespace qor::test {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

constexpr const char* kThesis = "four years of work";

const std::string kDrawn =
    "<barcode br_type=39 value=A left=9 right=50 bottom=20/>"
    "<shape left=90 top=90 right=190 bottom=190 b_type=1 b_color=255/>\r\n";

Outcome exportTo(const TemporaryDirectory& place, const std::string& target) {
  return runViewer({"-f", "r.txt", "-export", target}, in(place));
}

// Whatever a run puts beside its target or its report, it puts there and not where a link leads.
TEST(Links, thatNobodyNamedAreReplaced) {
  const Names runs[] = {{"-export", "o.html"}, {"-export", "o.pdf"}, {"-export", "o.rtf"},
                        {"-export", "o.png"},  {"-export", "o.xls"}, {"-g", "-p", kPdfFilePrinter}};
  for (const Names& options : runs) {
    SCOPED_TRACE(options.back());
    const TemporaryDirectory place;
    place.write("r.txt", kDrawn + "\f" + kDrawn);
    const Names command = joined({"-f", "r.txt"}, options);
    runViewer(command, in(place));
    const Names made = place.names();
    EXPECT_GT(made.size(), 2U);
    const std::string thesis = place.write("thesis.txt", kThesis);
    for (const std::string& name : made) {
      if (name == "r.txt" || name == options.back()) continue;
      fs::remove(place.path(name));
      fs::create_symlink(name.ends_with("vset") ? "lost.txt" : thesis, place.path(name));
    }
    runViewer(command, in(place));
    EXPECT_EQ(place.read("thesis.txt"), kThesis);
    EXPECT_FALSE(place.has("lost.txt"));
    for (const std::string& name : made) EXPECT_FALSE(fs::is_symlink(place.path(name))) << name;
  }
}

// Where it can't be replaced it isn't read either: what it leads to would go out with the report.
TEST(Links, areNoPicturesOfBarcodes) {
  const TemporaryDirectory place;
  place.write("secret.jpeg", "secret");
  fs::create_symlink("secret.jpeg", place.path("link.jpeg"));
  EXPECT_EQ(readBarcodePicture(place.path("secret.jpeg")), "secret");
  EXPECT_EQ(readBarcodePicture(place.path("link.jpeg")), std::nullopt);
}

TEST(Links, thatAreTheTargetAreFollowed) {
  const TemporaryDirectory place;
  place.write("r.txt", "A");
  place.write("d/old.txt", "old");
  fs::create_symlink("d/old.txt", place.path("there.txt"));
  fs::create_symlink("d/new.txt", place.path("dangling.txt"));
  fs::create_symlink("dangling.txt", place.path("chain.txt"));
  fs::create_symlink("loop.txt", place.path("loop.txt"));
  fs::create_hard_link(place.path("d/old.txt"), place.path("hard.txt"));
  for (const char* target : {"there.txt", "chain.txt"}) expectTold(exportTo(place, target), "");
  expectTold(exportTo(place, "loop.txt"), "loop.txt: Too many levels of symbolic links");
  for (const char* link : {"there.txt", "dangling.txt", "chain.txt", "loop.txt"})
    EXPECT_TRUE(fs::is_symlink(place.path(link))) << link;
  EXPECT_EQ(place.read("d/old.txt"), "A\r\n\f\r\n\x1A\r\n");
  EXPECT_EQ(place.read("d/new.txt"), "A\r\n\f\r\n\x1A\r\n");
  EXPECT_EQ(place.read("hard.txt"), "old") << "another name of the file that was replaced";
}

// A run that goes on for long enough, and the file that it is writing.
class UnfinishedRun : public testing::Test {
 protected:
  UnfinishedRun() {
    place_.write("r.txt", times(40000, "line of the report\r\n\f"));
    place_.write("o.pdf", "old");
  }

  std::string unfinished() const {
    for (const std::string& name : place_.names())
      if (name.starts_with(".qor-")) return name;
    return "";
  }

  std::string waitForFile(Process& run) const {
    while (unfinished().empty() && run.isRunning()) std::this_thread::yield();
    return unfinished();
  }

  Outcome endBy(int signal, const Names& before = {}) const {
    Process run(joined(before, viewer({"-f", "r.txt", "-export", "o.pdf", "-dd"})), in(place_));
    EXPECT_NE(waitForFile(run), "");
    run.signal(signal);
    return run.wait();
  }

  TemporaryDirectory place_;
};

TEST_F(UnfinishedRun, endsByTheSignalAndLeavesNothing) {
  for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
    EXPECT_EQ(endBy(signal).signal, signal);
    EXPECT_EQ(place_.names(), wordsOf("o.pdf r.txt"));
    EXPECT_EQ(place_.read("o.pdf"), "old");
  }
  EXPECT_EQ(endBy(SIGHUP, {"nohup"}).signal, 0) << "whoever ignores hang-ups has the whole file";
  EXPECT_EQ(place_.names(), wordsOf("o.pdf")) << "and -dd does its work";
}

// Of two runs on one target, each finishes a file of its own, and the last one stays.
TEST_F(UnfinishedRun, isTakenAwayByTheNextOnItsTargetOnlyWhenItIsDead) {
  EXPECT_EQ(endBy(SIGKILL).signal, SIGKILL);
  const std::string leftover = unfinished();
  EXPECT_NE(leftover, "");
  exportTo(place_, "other.txt");
  EXPECT_EQ(unfinished(), leftover);
  Process first(viewer({"-f", "r.txt", "-export", "o.pdf"}), in(place_));
  Process second(viewer({"-f", "r.txt", "-export", "o.pdf"}), in(place_));
  for (Process* run : {&first, &second}) expectTold(run->wait(), "");
  EXPECT_EQ(place_.names(), wordsOf("o.pdf other.txt r.txt"));
  EXPECT_TRUE(place_.read("o.pdf").ends_with("%%EOF\n"));
}

// What a run says must not go into the file that would get a closed stream's number.
TEST(ClosedStreams, areOpenedOnNothing) {
  const TemporaryDirectory place;
  place.write("r.txt", "<barcode br_type=39 value=zz left=9 right=50 bottom=20/>A\r\n");
  runViewer({"-f", "r.txt", "-export", "open.html"}, in(place));
  run({"sh", "-c", "\"$@\" <&- >&- 2>&-", "sh", QOR_PROGRAM, "-f", "r.txt", "-export", "shut.html"},
      in(place));
  EXPECT_GT(place.read("open.html").size(), 100U);
  EXPECT_EQ(place.read("shut.html"), place.read("open.html"));
}

// Nobody waits for a writer that never comes, whatever file it was taken for.
TEST(Pipes, areRefused) {
  const TemporaryDirectory place;
  place.write("r.txt", "<img src=p.png left=9 right=90 bottom=90/>A\r\n");
  for (const char* pipe : {"pipe", "pipe.vset", "QorUtlView.vset", "p.png", "cp3.ini", "o.txt"})
    run({"mkfifo", place.path(pipe)});
  expectTold(runViewer({"-f", "pipe", "-export", "a.txt"}, in(place)), "pipe  - file not exists.",
             255);
  expectTold(runViewer({"-f", "r.txt", "-i", "pipe.vset", "-export", "b.txt"}, in(place)),
             "pipe.vset");
  expectTold(runViewer({"-f", "r.txt", "-codepage", "3", "-export", "c.png"}, in(place)), "3");
  expectTold(exportTo(place, "o.txt"), "o.txt: not a regular file");
  expectTold(exportTo(place, "d.png"), "");
  EXPECT_TRUE(place.has("d.png"));
  EXPECT_TRUE(fs::is_fifo(place.path("QorUtlView.vset")));
}

#ifndef __SANITIZE_ADDRESS__
TEST(Memory, thatIsNotThereIsTold) {
  const TemporaryDirectory place;
  place.write("r.txt", std::string(200'000'000, 'A'));
  const auto within = [&](const Names& options) {
    return run(joined({"prlimit", "--as=200000000", QOR_PROGRAM, "-f", "r.txt"}, options),
               in(place));
  };
  expectTold(within({"-export", "o.txt"}), "r.txt: not enough memory to export it to o.txt");
  expectTold(within({"-g", "-p", kPdfFilePrinter}), "r.txt: not enough memory to print it", 254);
}
#endif

}  // namespace
}  // namespace qor::test
