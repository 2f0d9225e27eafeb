// The process: from its arguments to its exit code.

#include "app/command_line.h"
#include "app/win_main.h"
#include "platform/system/process.h"

int main(int argc, char** argv) {
  qor::prepareProcess();
  return qor::WinMain(qor::parameterString(argc, argv));
}
