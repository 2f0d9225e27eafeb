// A wall around the process: what it may still reach of the machine, whatever a decoder is made to
// do by the file that it reads. It can be raised once more, narrower, and never be taken down.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace qor {

// A way out to one port of the network, by TCP.
struct NetworkGate {
  std::uint16_t port = 0;
  bool resolves = false;  // a name must be looked up first
};

struct WallPlan {
  // Directories: in them and below, files may be made, replaced, deleted and listed.
  std::vector<std::string> writable;
  // Files, and directories with all that is below them, that may be read; nothing where all may.
  std::optional<std::vector<std::string>> readable;
  // What sockets there may be: of this machine, and to the network.
  bool localSockets = false;
  std::optional<NetworkGate> network;
};

// Raises it for the process, which must have one thread and no open file of its own: descriptors
// behind the three streams, which a parent has left open, are closed. No program can be started
// any more. Paths that aren't there are left out. A kernel that lacks the means leaves the process
// as it is. Gives why a part doesn't stand that the kernel has; empty where all does.
std::string raiseWall(const WallPlan& plan);

}  // namespace qor
