// What goes wrong on the way to a window. A clerk who starts a report from the suite sees no
// standard error: what it says is shown in a box as well.
#pragma once

#include <string>
#include <vector>

#include "platform/system/messages.h"

namespace qor {

// Keeps the warnings of the start for a box, and writes them on standard error as they come. Errors
// that the window itself will tell are only written.
class StartMessages {
 public:
  StartMessages();

  // Those that no box has shown yet; they are then the caller's to show.
  std::vector<std::string> take();

  // Shows them where no window came that could, and returns the exit code. Without a display the
  // process ends with that code at once.
  int showAndEnd(int exitCode);

 private:
  std::vector<std::string> warnings_;
  MessageSink sink_;
};

}  // namespace qor
