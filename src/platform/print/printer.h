// A printer in the terms of the Windows print system, made of what its queue tells: numbered papers
// and bins, device modes, and the measurements of the device under a mode.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "platform/print/device_mode.h"
#include "platform/print/print_queues.h"
#include "platform/print/sheet_measures.h"

namespace qor {

struct Paper {
  int number = 0;  // Windows paper number; from 257 on the printer's own
  std::string name;
  Media media;

  bool operator==(const Paper&) const = default;
};

struct Bin {
  int number = 0;  // Windows bin number; from 257 on the printer's own
  std::string name;
  std::string source;  // as the queue names it; empty where it chooses

  bool operator==(const Bin&) const = default;
};

struct Printer {
  std::string name;
  std::string driver;
  std::string port;
  std::string processor;  // what turns documents into pages
  std::vector<Paper> papers;
  std::vector<Bin> bins;
  std::vector<Dpi> resolutions;
  Dpi resolution;
  MediaMargins margins;  // of papers that tell none
  MediaSize smallest;    // of papers cut to size
  MediaSize largest;
  DeviceMode mode;  // as the printer has it, dmFields 0
  bool stopped = false;

  bool operator==(const Printer&) const = default;
};

// What a device context tells.
struct DeviceCaps : SheetMeasures {
  std::int32_t scalingFactorX = 0;
  std::int32_t scalingFactorY = 0;
  std::int32_t aspectX = 0;  // relative width and height of a dot, as dots per inch
  std::int32_t aspectY = 0;
};

// Tenths of a millimetre, rounded, as the Windows print system tells papers.
constexpr int tenthsOf(int hundredths) {
  return (hundredths + 5) / 10;
}

Printer printerOf(const Queue& queue);

// The smallest and the largest sheet that the printer takes, of a size of one's own or of its
// papers.
std::pair<MediaSize, MediaSize> sizeLimits(const Printer& printer);

// The sheet that a job of this mode gets: the paper of that number; else one of the same name or
// size; else the printer's own. Never empty.
Media mediaOf(const Printer& printer, const DeviceMode& mode);

DeviceCaps deviceCaps(const Printer& printer, const DeviceMode& mode);

// The job's wishes, without its title.
JobTicket ticketOf(const Printer& printer, const DeviceMode& mode);

}  // namespace qor
