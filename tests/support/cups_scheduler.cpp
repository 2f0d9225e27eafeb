#include "support/cups_scheduler.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <stdexcept>
#include <thread>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include "support/rows.h"

namespace qor::test {
namespace {

namespace fs = std::filesystem;

constexpr std::chrono::milliseconds kPause(50);
constexpr int kMaxPauses = 1200;  // a minute, on a machine with much else to do

sockaddr_in loopback(int port) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(static_cast<std::uint16_t>(port));
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  return address;
}

int freePort() {
  const int socket = ::socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in address = loopback(0);
  socklen_t size = sizeof address;
  ::bind(socket, reinterpret_cast<sockaddr*>(&address), size);
  ::getsockname(socket, reinterpret_cast<sockaddr*>(&address), &size);
  ::close(socket);
  return ntohs(address.sin_port);
}

template <class Condition>
void waitUntil(const char* what, Condition holds) {
  for (int i = 0; i < kMaxPauses; ++i) {
    if (holds()) return;
    std::this_thread::sleep_for(kPause);
  }
  throw std::runtime_error(std::string("the print scheduler: ") + what);
}

}  // namespace

CupsScheduler::CupsScheduler(const std::string& directives)
    : server_("127.0.0.1:" + std::to_string(freePort())) {
  writeFiles(directives);
  process_.emplace(std::vector<std::string>{"/usr/sbin/cupsd", "-f", "-c",
                                            place_.path("cupsd.conf"), "-s",
                                            place_.path("cups-files.conf")});
  waitUntil("doesn't start", [this] { return answers(); });
}

void CupsScheduler::writeFiles(const std::string& directives) {
  for (const char* name : {"spool/tmp", "cache", "run/certs", "ppd", "out"}) {
    fs::create_directories(place_.path(name));
  }
  const std::string allowed = "  Order allow,deny\n  Allow all\n";
  place_.write("cupsd.conf",
               "Listen " + server_ +
                   "\nLogLevel warn\nAccessLogLevel all\nBrowsing Off\nWebInterface No\n"
                   "DefaultAuthType None\nJobKillDelay 1\nPreserveJobFiles Yes\n"
                   "PageLogFormat %p|%{job-name}|%{copies}|%{multiple-document-handling}|%{media}|"
                   "%{print-quality}|%{print-color-mode}\n"
                   "<Location />\n" +
                   allowed + "</Location>\n<Location /admin>\n" + allowed +
                   "</Location>\n<Policy default>\n<Limit All>\n" + allowed +
                   "</Limit>\n</Policy>\n" + directives);
  std::string files = "FileDevice Yes\nUser lp\nGroup lp\nSystemGroup root\nSandboxing relaxed\n";
  static constexpr std::pair<const char*, const char*> kPlaces[] = {
      {"ServerRoot", ""},        {"RequestRoot", "spool"}, {"TempDir", "spool/tmp"},
      {"CacheDir", "cache"},     {"StateDir", "run"},      {"AccessLog", "access_log"},
      {"ErrorLog", "error_log"}, {"PageLog", "page_log"}};
  for (const auto& [key, name] : kPlaces) {
    files += std::string(key) + " " + place_.path(name) + "\n";
  }
  place_.write("cups-files.conf", files);
  // The scheduler's filters run as another user.
  for (const auto& entry : fs::recursive_directory_iterator(place_.path())) {
    fs::permissions(entry.path(), entry.is_directory() ? fs::perms(0777) : fs::perms(0644));
  }
  fs::permissions(place_.path(), fs::perms(0777));
}

bool CupsScheduler::answers() const {
  const auto port = std::stoi(server_.substr(server_.find(':') + 1));
  const int socket = ::socket(AF_INET, SOCK_STREAM, 0);
  const sockaddr_in address = loopback(port);
  const bool connected =
      ::connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
  ::close(socket);
  return connected;
}

Surroundings CupsScheduler::surroundings(const TemporaryDirectory& place) const {
  return {place.path(), {{"CUPS_SERVER", server_}}, 0};
}

std::string CupsScheduler::command(std::vector<std::string> line) const {
  const Outcome outcome = run(line, surroundings(place_));
  if (outcome.exitCode != 0) throw std::runtime_error(line.front() + ": " + outcome.errors);
  return outcome.output;
}

void CupsScheduler::addQueue(const std::string& name, const std::string& driver,
                             const std::vector<std::string>& options) {
  std::vector<std::string> line = {"lpadmin",
                                   "-p",
                                   name,
                                   "-E",
                                   "-v",
                                   "file:" + output(name),
                                   driver.starts_with('/') ? "-P" : "-m",
                                   driver};
  for (const std::string& option : options) line.insert(line.end(), {"-o", option});
  command(line);
}

void CupsScheduler::finishJobs() const {
  waitUntil("doesn't finish its jobs", [this] {
    return command({"lpstat", "-W", "not-completed", "-o"}).empty();
  });
}

std::vector<std::string> CupsScheduler::jobs() const {
  auto lines = linesOf(place_.read("page_log"));
  std::sort(lines.begin(), lines.end());
  lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
  return lines;
}

std::string CupsScheduler::document(int job) const {
  const std::string number = std::to_string(job);
  return place_.path("spool/d" + std::string(5 - number.size(), '0') + number + "-001");
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
