// The entry: options, one of the ways of running, and the last catch for every failure.
#include "app/win_main.h"

#include "app/batch.h"
#include "app/command_line.h"
#include "app/preview_report.h"
#include "app/program_start.h"
#include "app/run_wall.h"
#include "app/start_messages.h"
#include "base/app_options.h"
#include "base/errors.h"
#include "base/path.h"
#include "document/vdoc.h"
#include "export/export_formats.h"
#include "language/language.h"
#include "platform/system/directory.h"
#include "platform/system/failure.h"
#include "platform/system/input_file.h"
#include "platform/system/messages.h"

namespace qor {
namespace {

constexpr int kExitDone = 0;
constexpr int kExitNothingDone = -1;
constexpr int kExitPrintFailed = -2;

// The user has been told where the error arose, or is not to be told: nothing more is shown.
void ShowErrorNumber() {
}

int printReport() {
  const int result = PrintWithoutInterface();
  if (result == 0) {
    showWarning(interfaceTexts().NoFileSelected);
    return kExitNothingDone;
  }
  return result < 0 ? kExitPrintFailed : kExitDone;
}

// The switches that other programs of this system have; the rest of the parameters has its own
// rules.
bool answersSwitch(const std::string& parameters) {
  if (parameters == "--help") {
    showInformation(HelpText(extensionsInHelp()));
  } else if (parameters == "--version") {
    showInformation(AppOptions.ProgramName + " " + AppOptions.ProgramVersion);
  } else {
    return false;
  }
  return true;
}

int run(const std::string& parameters, Walls walls, StartMessages* messages) {
  if (answersSwitch(parameters)) return kExitDone;
  const RunMode mode = ParseCommandLine(parameters);
  const auto raiseWall = [walls, mode] {
    if (walls == Walls::raised) raiseRunWall(mode);
  };
  switch (mode) {
    case kRunStop: return kExitNothingDone;
    case kRunPrint: raiseWall(); return printReport();
    case kRunExport: ExportWithoutInterface(raiseWall); return kExitDone;
    default: PreviewReport(messages); return kExitDone;
  }
}

// A report that the user has opened by himself: nobody has said what becomes of it, and it bears
// its own name.
int previewOpened(const std::string& file, StartMessages* messages) {
  ParseCommandLine({});
  AppOptions.OpenedByUser = true;
  AppOptions.FileName = fullPath(file);
  AppOptions.WindowCaption = fileNameOf(file);
  if (!fileExists(AppOptions.FileName)) {
    showWarning(file + "\n" + std::string(interfaceTexts().FileNotExists));
    return kExitNothingDone;
  }
  PreviewReport(messages);
  return kExitDone;
}

template <class Run>
int guarded(Run run) {
  try {
    return run();
  } catch (const NumberedError&) {
    ShowErrorNumber();
  } catch (...) {
    tellFailure();
  }
  return kExitDone;
}

}  // namespace

int WinMain(const std::string& parameters, Walls walls) {
  startProgram();
  if (parameters.empty()) {
    return guarded([] {
      ShowStart();
      return kExitDone;
    });
  }
  if (!asksForWindow(parameters)) return guarded([&] { return run(parameters, walls, nullptr); });
  StartMessages messages;
  return messages.showAndEnd(guarded([&] { return run(parameters, walls, &messages); }));
}

int OpenReport(const std::string& file) {
  startProgram();
  StartMessages messages;
  return messages.showAndEnd(guarded([&] { return previewOpened(file, &messages); }));
}

}  // namespace qor
