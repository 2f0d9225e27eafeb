// What a run needs of the machine, from its options.
#include "app/run_wall.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <iterator>
#include <optional>
#include <utility>

#include "app/command_line.h"
#include "base/app_options.h"
#include "export/export_formats.h"
#include "platform/fonts/font_places.h"
#include "platform/print/pdf_file_printer.h"
#include "platform/print/system_queues.h"
#include "platform/system/directory.h"
#include "platform/system/input_file.h"
#include "platform/system/messages.h"
#include "platform/system/write_obstacle.h"
#include "platform/walls/places.h"
#include "platform/walls/wall.h"
#include "settings/default_set_file.h"

namespace qor {
namespace {

constexpr const char* kPicturePath = "QOR_PICTURE_PATH";

void add(Places& places, const Places& more) {
  places.insert(places.end(), more.begin(), more.end());
}

// The module of the machine's printers, and with it whom it asks, is no business of the printer
// that makes files.
bool asksScheduler(RunMode mode) {
  return mode == kRunPrint && !isPdfFilePrinter(AppOptions.PrinterName);
}

const ExportFormat* formatOfRun(RunMode mode) {
  return mode == kRunExport ? formatOf(AppOptions.ExportTarget) : nullptr;
}

Places placesOfTarget() {
  Places places = {placeOf(AppOptions.ExportTarget)};
  if (const std::string behind = placeBehindLink(AppOptions.ExportTarget); !behind.empty())
    places.push_back(behind);
  return places;
}

// Prints that find no default set make it.
bool makesSet(RunMode mode) {
  const std::string set = defaultSetFile();
  return mode == kRunPrint && AppOptions.IniFileName.empty() && !fileExists(set) &&
         obstacleTo(set) == WriteObstacle::none;
}

// Side pictures and the file of a job stand beside the report.
Places writablePlaces(RunMode mode) {
  Places places = {placeOf(AppOptions.FileName)};
  if (formatOfRun(mode) != nullptr) add(places, placesOfTarget());
  if (makesSet(mode)) places.push_back(AppOptions.WorkDir);
  return places;
}

bool isCodePageFile(const std::string& name) {
  constexpr std::string_view kStart = "cp";
  const std::string_view number = std::string_view(name).substr(kStart.size());
  const auto end = std::find_if_not(number.begin(), number.end(),
                                    [](unsigned char c) { return std::isdigit(c) != 0; });
  return end != number.begin() && std::string_view(end, number.end()) == ".ini";
}

// The settings, which may name any code page of the current directory.
Places placesOfSettings() {
  const std::string& named = AppOptions.IniFileName;
  Places places = {named.empty() ? defaultSetFile() : named};
  const Places files = filesStartingWith("", "cp");
  std::copy_if(files.begin(), files.end(), std::back_inserter(places), isCodePageFile);
  return places;
}

Places placesOfProgram() {
  const std::string directory = programDirectory();
  return {directory + "pdflib.upr", directory + "qor_cups.so", directory + "qor_harfbuzz.so",
          directory + "qor_gsf.so"};
}

Places readablePlaces(RunMode mode, const Places& pictures) {
  Places places = pictures;
  add(places, {AppOptions.FileName, placeOf(AppOptions.FileName)});
  add(places, placesOfSettings());
  add(places, placesOfProgram());
  add(places, placesOfLibraries());
  const ExportFormat* format = formatOfRun(mode);
  if (format != nullptr && format->has(kReadsBack)) add(places, placesOfTarget());
  if (mode == kRunPrint || (format != nullptr && !format->has(kDrawsNothing)))
    add(places, fontPlaces());
  if (asksScheduler(mode)) add(places, placesOfPrinting());
  return places;
}

// The scheduler is found by its socket, or by the host that it is told to be on.
void openScheduler(WallPlan& plan) {
  const auto address = schedulerAddress();
  if (!address) return;
  plan.localSockets = true;
  if (address->server.starts_with('/')) return;
  plan.network =
      NetworkGate{static_cast<std::uint16_t>(address->port), mustBeLookedUp(address->server)};
}

// As the program was told, or else its environment; nothing where all files may be read.
std::optional<Places> picturePlaces() {
  const char* told = std::getenv(kPicturePath);
  if (AppOptions.PicturePlaces || told == nullptr) return AppOptions.PicturePlaces;
  return placesIn(told);
}

WallPlan planOf(RunMode mode) {
  WallPlan plan;
  plan.writable = writablePlaces(mode);
  if (const auto pictures = picturePlaces()) plan.readable = readablePlaces(mode, *pictures);
  if (asksScheduler(mode)) openScheduler(plan);
  return plan;
}

}  // namespace

void raiseRunWall(RunMode mode) {
  const std::string missing = raiseWall(planOf(mode));
  if (!missing.empty())
    showWarning(AppOptions.FileName + ": the run goes on without its wall: " + missing);
}

}  // namespace qor
