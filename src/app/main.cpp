// The process: from its arguments to its exit code.

#include <string_view>

#include "app/command_line.h"
#include "app/win_main.h"
#include "platform/system/process.h"

int main(int argc, char** argv) {
  qor::prepareProcess();
  // Desktops open files by this: in a string of options a name could be taken for one.
  if (argc == 3 && std::string_view(argv[1]) == "--open") return qor::OpenReport(argv[2]);
  return qor::WinMain(qor::parameterString(argc, argv));
}
