// Window tests run on no screen, with settings and printers of nobody.
#include <QApplication>
#include <cstdlib>
#include <fstream>
#include <string_view>

#include <gtest/gtest.h>

#include "support/temporary_directory.h"

int main(int argc, char** argv) {
  // Reports are opened by starting the program anew: here it notes the one that it is to show.
  if (argc == 3 && std::string_view(argv[1]) == "--open") {
    std::ofstream(std::getenv("QOR_OPENED"), std::ios::app) << argv[2] << std::endl;
    return 0;
  }
  const qor::test::TemporaryDirectory home;
  ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
  ::setenv("XDG_CONFIG_HOME", home.path().c_str(), 1);
  ::setenv("CUPS_SERVER", "/nowhere", 1);
  ::setenv("LC_ALL", "C.UTF-8", 1);
  for (const char* name : {"PRINTER", "LPDEST"}) ::unsetenv(name);
  testing::InitGoogleTest(&argc, argv);
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
