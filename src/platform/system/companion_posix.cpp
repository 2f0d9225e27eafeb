// Companions, on POSIX.
#include <fcntl.h>
#include <spawn.h>
#include <unistd.h>

#include "platform/system/companion.h"

extern char** environ;

namespace qor {
namespace {

// A session of its own, and none of the viewer's streams.
class Detached {
 public:
  Detached() {
    ::posix_spawn_file_actions_init(&actions_);
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
      ::posix_spawn_file_actions_addopen(&actions_, stream, "/dev/null", O_RDWR, 0);
    ::posix_spawnattr_init(&attributes_);
    ::posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSID);
  }
  ~Detached() {
    ::posix_spawnattr_destroy(&attributes_);
    ::posix_spawn_file_actions_destroy(&actions_);
  }
  Detached(const Detached&) = delete;
  Detached& operator=(const Detached&) = delete;

  const posix_spawn_file_actions_t* actions() const { return &actions_; }
  const posix_spawnattr_t* attributes() const { return &attributes_; }

 private:
  posix_spawn_file_actions_t actions_{};
  posix_spawnattr_t attributes_{};
};

}  // namespace

bool startCompanion(const std::string& program, const std::vector<std::string>& arguments) {
  std::vector<std::string> words = {program};
  words.insert(words.end(), arguments.begin(), arguments.end());
  std::vector<char*> argv;
  argv.reserve(words.size() + 1);
  for (std::string& word : words) argv.push_back(word.data());
  argv.push_back(nullptr);
  const Detached detached;
  // Nobody waits for its end: the system does when the viewer ends.
  pid_t child = 0;
  return ::posix_spawnp(&child, program.c_str(), detached.actions(), detached.attributes(),
                        argv.data(), environ) == 0;
}

}  // namespace qor
