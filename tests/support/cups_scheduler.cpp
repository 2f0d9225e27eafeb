#include "support/cups_scheduler.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <stdexcept>
#include <thread>

#include "support/rows.h"

namespace qor::test {
namespace {

namespace fs = std::filesystem;

constexpr std::chrono::milliseconds kPause(50);
constexpr int kMaxPauses = 1200;  // a minute, on a machine with much else to do

template <class Condition>
void waitUntil(const char* what, Condition holds) {
  for (int i = 0; i < kMaxPauses; ++i) {
    if (holds()) return;
    std::this_thread::sleep_for(kPause);
  }
  throw std::runtime_error(std::string("the print scheduler: ") + what);
}

const char* const kConfiguration =
    "LogLevel warn\nAccessLogLevel all\nBrowsing Off\nWebInterface No\nDefaultAuthType None\n"
    "JobKillDelay 1\nPreserveJobFiles Yes\n"
    "PageLogFormat %p|%{job-name}|%{copies}|%{multiple-document-handling}|%{media}|"
    "%{print-quality}|%{print-color-mode}\n"
    "<Location />\nAllow all\n</Location>\n<Location /admin>\nAllow all\n</Location>\n"
    "<Policy default>\n<Limit All>\nAllow all\n</Limit>\n</Policy>\n";

}  // namespace

CupsScheduler::CupsScheduler(Filters filters) {
  writeFiles(filters);
  process_.emplace(std::vector<std::string>{"/usr/sbin/cupsd", "-f", "-c",
                                            place_.path("cupsd.conf"), "-s",
                                            place_.path("cups-files.conf")});
  waitUntil("doesn't start", [this] {
    return run({"lpstat", "-r"}, surroundings(place_)).output == "scheduler is running\n";
  });
}

// The machine's programs by links, and among the filters ours with what it needs.
std::string CupsScheduler::addFilter() const {
  const fs::path system = "/usr/lib/cups";
  const fs::path own = programs_.path();
  fs::permissions(own, fs::perms(0755));
  fs::create_directory(own / "filter");
  for (const auto& entry : fs::directory_iterator(system))
    if (entry.path().filename() != "filter")
      fs::create_symlink(entry.path(), own / entry.path().filename());
  for (const auto& entry : fs::directory_iterator(system / "filter"))
    fs::create_symlink(entry.path(), own / "filter" / entry.path().filename());
  const fs::path built = fs::path(QOR_PROGRAM).parent_path();
  for (const char* name : {"qorreporttopdf", "qor_harfbuzz.so", "pdflib.upr"})
    fs::copy_file(built / name, own / "filter" / name);
  for (const char* name : {"qorutlview.types", "qorutlview.convs"})
    place_.write(name, readFile(std::string(QOR_SOURCE_DIR "/packaging/cups/") + name));
  return "ServerBin " + own.string() + "\nSetEnv ASAN_OPTIONS detect_leaks=0\n" +
         "SetEnv QOR_SERVER_DIRECTORY " + path("server") + "\n";
}

void CupsScheduler::writeFiles(Filters filters) const {
  for (const char* name : {"spool/tmp", "cache", "run/certs", "ppd", "out", "server"})
    fs::create_directories(place_.path(name));
  place_.write("cupsd.conf",
               "Listen " + socket() + "\nListen 127.0.0.1:" + port_ + "\n" + kConfiguration);
  std::string files = "FileDevice Yes\nUser lp\nGroup lp\nSystemGroup root\nSandboxing relaxed\n";
  for (const auto& [key, name] :
       rowsOf("ServerRoot|RequestRoot spool|TempDir spool/tmp|CacheDir cache|StateDir run|"
              "AccessLog access_log|ErrorLog error_log|PageLog page_log"))
    files += key + " " + place_.path(name) + "\n";
  if (filters == Filters::withReports) files += addFilter();
  place_.write("cups-files.conf", files);
  // The scheduler's filters run as another user.
  for (const auto& entry : fs::recursive_directory_iterator(place_.path()))
    fs::permissions(entry.path(), entry.is_directory() ? fs::perms(0777) : fs::perms(0644));
  fs::permissions(place_.path(), fs::perms(0777));
}

Surroundings CupsScheduler::surroundings(const TemporaryDirectory& place) const {
  return {place.path(), {{"CUPS_SERVER", socket()}}, 0};
}

std::string CupsScheduler::command(const std::vector<std::string>& line) const {
  const Outcome outcome = run(line, surroundings(place_));
  if (outcome.exitCode != 0) throw std::runtime_error(line.front() + ": " + outcome.errors);
  return outcome.output;
}

void CupsScheduler::addQueue(const std::string& name, const std::string& driver,
                             const std::string& option) const {
  const char* kind = driver.starts_with('/') ? "-P" : "-m";
  command({"lpadmin", "-p", name, "-E", "-v", "file:" + output(name), kind, driver, "-o", option});
}

void CupsScheduler::finishJobs(std::size_t failed) const {
  waitUntil("doesn't finish its jobs", [this, failed] {
    return linesOf(command({"lpstat", "-W", "not-completed", "-o"})).size() == failed;
  });
}

std::set<std::string> CupsScheduler::jobs() const {
  const auto lines = linesOf(place_.read("page_log"));
  return {lines.begin(), lines.end()};
}

std::string CupsScheduler::document(int job) const {
  return place_.path("spool/d0000" + std::to_string(job) + "-001");
}

std::uintmax_t CupsScheduler::received() const {
  std::uintmax_t bytes = 0;
  for (const auto& entry : fs::directory_iterator(place_.path("spool"))) {
    std::error_code gone;
    const auto size = entry.is_regular_file(gone) ? entry.file_size(gone) : 0;
    if (!gone) bytes = std::max(bytes, size);
  }
  return bytes;
}

}  // namespace qor::test
