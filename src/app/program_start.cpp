// The start of a program.
#include "app/program_start.h"

#include "base/app_options.h"
#include "language/language.h"
#include "platform/system/directory.h"
#include "platform/system/locale.h"

namespace qor {

void startProgram() {
  AppOptions.ProgramName = "QorUtlView";
  AppOptions.ProgramVersion = QOR_VERSION;
  AppOptions.WorkDir = currentDirectory();
  const int codePage = systemAnsiCodePage();
  SelectErrorTexts(codePage);
  SelectInterfaceTexts(codePage);
}

}  // namespace qor
