// Measures a program's window: how soon it shows the first page and what memory the program then
// takes, or how soon a key replaces the page. Prints lines "name value", medians of the rounds:
//   window_watch open [--rounds N] -- COMMAND ARGUMENTS...
//   window_watch keys [--size WxH] [--key NAME|HEX] [--ctrl] [--count N] -- COMMAND ARGUMENTS...
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <memory>
#include <numeric>
#include <string>
#include <thread>
#include <vector>

#include <getopt.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "watched_display.h"

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
using Values = std::map<std::string, double>;

constexpr auto kPatience = 30s;
constexpr auto kPollPause = 500us;  // leaves the X server to the program that is watched
constexpr auto kStill = 1s;         // big documents can take that long before they move again
constexpr auto kEndOfChanges =
    50ms;  // some viewers show an empty or coarse page before the real one
constexpr auto kTimeToEnd = 2s;

double secondsBetween(Clock::time_point start, Clock::time_point end) {
  return std::chrono::duration<double>(end - start).count();
}

double quantile(std::vector<double> values, double part) {
  std::ranges::sort(values);
  return values[static_cast<size_t>(part * static_cast<double>(values.size() - 1) + 0.5)];
}

/// A program that ends with this object.
class Program {
 public:
  explicit Program(char** command) : pid_(fork()) {
    if (pid_ < 0) throw Failure("can't start a process");
    if (pid_ == 0) {
      prctl(PR_SET_PDEATHSIG, SIGKILL);
      setpgid(0, 0);
      dup2(STDERR_FILENO, STDOUT_FILENO);
      execvp(command[0], command);
      _exit(127);
    }
    setpgid(pid_, pid_);
  }
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;
  ~Program() {
    kill(-pid_, SIGTERM);
    const auto start = Clock::now();
    while (!ended() && Clock::now() - start < kTimeToEnd) std::this_thread::sleep_for(1ms);
    kill(-pid_, SIGKILL);
    if (!ended()) waitpid(pid_, nullptr, 0);
  }

  /// Waits until the condition holds; one that never does is a failure.
  void waitUntil(const std::string& what, const std::function<bool()>& holds) {
    const auto start = Clock::now();
    while (!holds()) {
      if (ended()) throw Failure("the program ended before " + what);
      if (Clock::now() - start > kPatience) throw Failure("30 seconds passed before " + what);
      std::this_thread::sleep_for(kPollPause);
    }
  }

  Values memory() const {
    std::ifstream file("/proc/" + std::to_string(pid_) + "/smaps_rollup");
    std::string name;
    std::getline(file, name);
    Values kib;
    for (double size = 0; file >> name >> size; std::getline(file, name)) kib[name] = size;
    if (!kib.contains("Rss:")) throw Failure("can't read the memory of the program");
    return {{"rss_kib", kib["Rss:"]},
            {"private_kib", kib["Private_Clean:"] + kib["Private_Dirty:"]},
            {"pss_kib", kib["Pss:"]}};
  }

 private:
  bool ended() { return ended_ = ended_ || waitpid(pid_, nullptr, WNOHANG) == pid_; }

  pid_t pid_;
  bool ended_ = false;
};

/// Dark pixels with white near on both sides: strokes of letters, but not what is beside a page.
size_t inkOf(const std::vector<uint32_t>& row) {
  constexpr int kStroke = 12;
  size_t ink = 0, dark = 0;
  int length = kStroke;
  for (const uint32_t pixel : row) {
    const uint32_t luma =
        (77 * (pixel >> 16 & 255) + 150 * (pixel >> 8 & 255) + 29 * (pixel & 255)) >> 8;
    if (luma > 240) {
      if (length < kStroke) ink += dark;
      dark = 0;
      length = 0;
    } else {
      dark += luma < 100;
      ++length;
    }
  }
  return ink;
}

/// True if such rows are found nearly everywhere: some viewers paint from top to bottom, and a
/// message stands in one place only.
bool isEverywhere(size_t rows, const std::function<bool(size_t)>& isSuch) {
  std::array<bool, 8> bands{};
  for (size_t i = 0; i < rows; ++i) {
    if (isSuch(i)) bands[i * bands.size() / rows] = true;
  }
  return std::ranges::count(bands, true) >= 6;
}

/// True if it shows text on white.
bool isPage(const Picture& picture) {
  std::vector<size_t> ink;
  std::ranges::transform(picture, std::back_inserter(ink), inkOf);
  return std::accumulate(ink.begin(), ink.end(), size_t{0}) * kRowStep >= 2000 &&
         isEverywhere(ink.size(), [&](size_t i) { return ink[i] > 0; });
}

bool isReplaced(const Picture& before, const Picture& now) {
  return isEverywhere(now.size(), [&](size_t i) { return now[i] != before[i]; });
}

/// A program that shows its first page.
class Viewer {
 public:
  Viewer(Display& display, char** command) : display_(display), program_(command) {
    program_.waitUntil("a page stood in its window", [this] { return seesFirstPage(); });
    opened_ = secondsBetween(start_, Clock::now());
    waitForStill(kStill);
  }

  /// Waits until nothing has changed for some time, and gives when the last change was seen.
  Clock::time_point waitForStill(Clock::duration quiet) {
    auto last = Clock::now();
    Picture before = see();
    program_.waitUntil("its window was still", [&] {
      Picture now = see();
      if (now != before) last = Clock::now();
      before = std::move(now);
      return Clock::now() - last > quiet;
    });
    return last;
  }

  void resize(const Area& area) {
    display_.place(window_.id, area);
    window_.area = area;
    program_.waitUntil("a page stood in its resized window", [this] { return isPage(see()); });
    waitForStill(kStill);
    display_.focus(window_.id);
  }

  void pressAndSeeNewPage(const Keys& keys) {
    const Picture before = see();
    display_.press(keys);
    program_.waitUntil("the key replaced the page", [&] {
      const Picture now = see();
      return isReplaced(before, now) && isPage(now);
    });
  }

  double opened() const { return opened_; }
  Values memory() const { return program_.memory(); }

 private:
  Picture see() { return display_.centre(window_.area); }

  bool seesFirstPage() {
    const Window found = display_.window();
    if (found.id == XCB_NONE) return false;
    if (found.id != window_.id) display_.focus(found.id);  // as a window manager would
    window_ = found;
    return isPage(see());
  }

  const Clock::time_point start_ = Clock::now();
  Display& display_;
  Program program_;
  Window window_;
  double opened_ = 0;
};

struct Options {
  int rounds = 1, count = 100;
  Area area{0, 0, 1920, 1080};
  uint32_t key = 0xff56;
  bool ctrl = false;
  char** command = nullptr;
};

Values measureOpening(Display& display, const Options& options) {
  std::map<std::string, std::vector<double>> rounds;
  for (int i = 0; i < options.rounds; ++i) {
    const Viewer viewer(display, options.command);
    rounds["open_seconds"].push_back(viewer.opened());
    for (const auto& [name, value] : viewer.memory()) rounds[name].push_back(value);
  }
  Values medians;
  for (const auto& [name, values] : rounds) medians[name] = quantile(values, 0.5);
  return medians;
}

double secondsOfKey(Viewer& viewer, const Keys& keys) {
  const auto start = Clock::now();
  viewer.pressAndSeeNewPage(keys);
  return secondsBetween(start, viewer.waitForStill(kEndOfChanges));
}

Values measureKeys(Display& display, const Options& options) {
  Keys keys{display.keycode(options.key)};
  if (options.ctrl) keys.insert(keys.begin(), display.keycode(0xffe3));
  Viewer viewer(display, options.command);
  viewer.resize(options.area);
  std::vector<double> seconds;
  for (int i = 0; i < options.count; ++i) seconds.push_back(secondsOfKey(viewer, keys));
  const auto start = Clock::now();
  for (int i = 0; i < options.count; ++i) viewer.pressAndSeeNewPage(keys);
  return {{"held_per_second", options.count / secondsBetween(start, Clock::now())},
          {"key_median_seconds", quantile(seconds, 0.5)},
          {"key_p95_seconds", quantile(seconds, 0.95)},
          {"key_worst_seconds", quantile(seconds, 1)},
          {"per_second", 1 / quantile(seconds, 0.5)}};
}

uint32_t keysymOf(const std::string& name) {
  static const std::map<std::string, uint32_t> kNames = {
      {"Home", 0xff50}, {"Left", 0xff51},    {"Up", 0xff52},        {"Right", 0xff53},
      {"Down", 0xff54}, {"Page_Up", 0xff55}, {"Page_Down", 0xff56}, {"End", 0xff57}};
  const auto found = kNames.find(name);
  if (found != kNames.end()) return found->second;
  return static_cast<uint32_t>(std::strtoul(name.c_str(), nullptr, 16));
}

Options parsed(int argc, char** argv) {
  static const std::array<option, 6> kNames = {{{"rounds", required_argument, nullptr, 'r'},
                                                {"size", required_argument, nullptr, 's'},
                                                {"key", required_argument, nullptr, 'k'},
                                                {"ctrl", no_argument, nullptr, 'c'},
                                                {"count", required_argument, nullptr, 'n'},
                                                {}}};
  opterr = 0;
  Options options;
  for (int name = 0; (name = getopt_long(argc, argv, "+", kNames.data(), nullptr)) != -1;) {
    auto& [x, y, width, height] = options.area;
    if (name == 'r') options.rounds = std::atoi(optarg);
    if (name == 's') std::sscanf(optarg, "%hux%hu", &width, &height);
    if (name == 'k') options.key = keysymOf(optarg);
    if (name == 'c') options.ctrl = true;
    if (name == 'n') options.count = std::atoi(optarg);
    if (name == '?') throw Failure("can't understand the options");
  }
  if (optind >= argc) throw Failure("the command is missing");
  if (options.rounds < 1 || options.count < 1) throw Failure("there is nothing to count");
  options.command = argv + optind;
  return options;
}

}  // namespace

int main(int argc, char** argv) try {
  const std::string what = argc > 1 ? argv[1] : "";
  if (what != "open" && what != "keys") throw Failure("the first argument is 'open' or 'keys'");
  const Options options = parsed(argc - 1, argv + 1);
  Display display;
  const Values values =
      what == "open" ? measureOpening(display, options) : measureKeys(display, options);
  for (const auto& [name, value] : values) std::printf("%s %.6g\n", name.c_str(), value);
} catch (const Failure& failure) {
  std::fprintf(stderr, "window_watch: %s\n", failure.what());
  return 1;
}
