// From queues to printers, and from device modes to sheets.
#include "platform/print/printer.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "base/units.h"
#include "platform/print/paper_table.h"

namespace qor {
namespace {

constexpr int kFirstOwnNumber = kUserPaper + 1;
constexpr int kOwnNumbers = 30000;
constexpr int kMostCopies = 9999;
constexpr std::string_view kUsualMedia = "iso_a4_210x297mm";

// The table's paper, or null. Sizes count last.
const PaperRow* rowOf(const Media& media) {
  const bool lies = media.size.width > media.size.length;
  const auto rows = paperTable();
  auto row = std::find_if(rows.begin(), rows.end(), [&](const PaperRow& candidate) {
    return candidate.media == media.name && candidate.turned == lies;
  });
  if (row == rows.end()) {
    row = std::find_if(rows.begin(), rows.end(), [&](const PaperRow& candidate) {
      return sameSize(sizeOf(candidate), media.size);
    });
  }
  return row == rows.end() ? nullptr : &*row;
}

// Whether one of the papers or bins has the number.
template <class Numbered>
bool isTaken(const std::vector<Numbered>& all, int number) {
  return std::any_of(all.begin(), all.end(),
                     [number](const Numbered& one) { return one.number == number; });
}

// A number for what Windows has none for: the same whatever else the queue has, so that settings
// don't mean another paper or bin at another printer.
template <class Numbered>
int ownNumber(const std::vector<Numbered>& all, std::string_view name) {
  std::uint32_t hash = 2166136261U;
  for (const char c : name) hash = (hash ^ static_cast<unsigned char>(c)) * 16777619U;
  int number = kFirstOwnNumber + static_cast<int>(hash % kOwnNumbers);
  while (isTaken(all, number)) ++number;
  return number;
}

// Papers in the queue's order. Of two with one Windows number the first has it.
std::vector<Paper> papersOf(const Queue& queue) {
  std::vector<Paper> papers;
  for (const Media& media : queue.media) {
    const PaperRow* row = rowOf(media);
    if (row == nullptr || isTaken(papers, row->number)) {
      papers.push_back({ownNumber(papers, media.name), media.name, media});
    } else {
      papers.push_back({row->number, std::string(row->name), media});
    }
  }
  return papers;
}

// A queue that passes documents on as they are tells no papers: every known sheet may be in it.
std::vector<Media> usualMedia() {
  std::vector<Media> media = {{std::string(kUsualMedia), *sizeOfMedia(kUsualMedia), {}}};
  for (const PaperRow& row : paperTable()) {
    const bool known = std::any_of(media.begin(), media.end(), [&row](const Media& candidate) {
      return candidate.size == sizeOf(row);
    });
    if (!known) media.push_back({std::string(row.media), sizeOf(row), {}});
  }
  return media;
}

// Bins in the queue's order. Of two with one Windows number the first has it.
std::vector<Bin> binsOf(const std::vector<std::string>& sources) {
  std::vector<Bin> bins = {{kFormSource, "Automatically Select", {}}};
  const auto rows = binTable();
  for (const std::string& source : sources) {
    const auto row = std::find_if(rows.begin(), rows.end(),
                                  [&](const BinRow& bin) { return bin.source == source; });
    const std::string name(row == rows.end() ? source : row->name);
    const bool isOwn = row == rows.end() || isTaken(bins, row->number);
    bins.push_back({isOwn ? ownNumber(bins, source) : row->number, name, source});
  }
  return bins;
}

const Paper& defaultPaper(const std::vector<Paper>& papers, const std::string& media) {
  const auto found = std::find_if(papers.begin(), papers.end(), [&media](const Paper& paper) {
    return paper.media.name == media;
  });
  return found == papers.end() ? papers.front() : *found;
}

DeviceMode modeOf(const Queue& queue, const Paper& paper, Dpi resolution) {
  DeviceMode mode;
  mode.dmOrientation = queue.landscape ? kLandscape : kPortrait;
  mode.dmPaperSize = paper.number;
  mode.dmPaperWidth = tenthsOf(paper.media.size.width);
  mode.dmPaperLength = tenthsOf(paper.media.size.length);
  mode.dmPrintQuality = resolution.x;
  mode.dmColor = queue.color ? kInColor : kMonochrome;
  return mode;
}

const Paper* paperOf(const Printer& printer, int number) {
  const auto& papers = printer.papers;
  const auto first = [&papers](auto&& fits) -> const Paper* {
    const auto found = std::find_if(papers.begin(), papers.end(), fits);
    return found == papers.end() ? nullptr : &*found;
  };
  if (const Paper* same = first([&](const Paper& paper) { return paper.number == number; })) {
    return same;
  }
  const auto rows = paperTable();
  const auto row = std::find_if(rows.begin(), rows.end(),
                                [number](const PaperRow& paper) { return paper.number == number; });
  if (row == rows.end()) return nullptr;
  const MediaSize size = sizeOf(*row);
  return first([&](const Paper& paper) { return sameSize(paper.media.size, size); });
}

// Empty where the printer has no such bin, or chooses by itself.
std::string sourceOf(const Printer& printer, int number) {
  const auto bin = std::find_if(printer.bins.begin(), printer.bins.end(),
                                [number](const Bin& each) { return each.number == number; });
  return bin == printer.bins.end() ? std::string() : bin->source;
}

bool takesCustomSizes(const Printer& printer) {
  return printer.smallest.width > 0 && printer.smallest.width <= printer.largest.width &&
         printer.smallest.length > 0 && printer.smallest.length <= printer.largest.length;
}

bool tellsSize(const DeviceMode& mode) {
  return mode.has(DM_PAPERLENGTH) && mode.has(DM_PAPERWIDTH);
}

// A length of 1/100 mm that is a whole number of tenths.
std::string millimetresText(int hundredths) {
  const int tenth = hundredths / 10 % 10;
  return std::to_string(hundredths / 100) + (tenth == 0 ? "" : "." + std::to_string(tenth));
}

// The nearest sheet that the printer takes.
Media customMedia(const Printer& printer, const DeviceMode& mode) {
  const auto near = [](int asked, int low, int high) {
    return static_cast<int>(std::clamp<std::int64_t>(std::int64_t{asked} * 10, low, high));
  };
  const MediaSize size = {
      near(mode.dmPaperWidth, printer.smallest.width, printer.largest.width),
      near(mode.dmPaperLength, printer.smallest.length, printer.largest.length)};
  const std::string sides = millimetresText(size.width) + "x" + millimetresText(size.length) + "mm";
  return {"custom_" + sides + "_" + sides, size, printer.margins};
}

// A sheet fed upright whose content is turned by a quarter, counter-clockwise: its left edge
// becomes the bottom of the content's right side and so on.
Media turned(const Media& upright) {
  const MediaMargins& edges = upright.margins;
  return {upright.name,
          {upright.size.length, upright.size.width},
          {edges.bottom, edges.left, edges.top, edges.right}};
}

}  // namespace

Printer printerOf(const Queue& queue) {
  Queue known = queue;
  if (known.media.empty()) {
    known.media = usualMedia();
    known.smallest = {100, 100};
    known.largest = {1000000, 1000000};
  }
  Printer printer;
  printer.name = queue.id.name;
  printer.driver = queue.id.driver;
  printer.port = queue.id.port;
  printer.processor = "PDF";
  printer.papers = papersOf(known);
  printer.bins = binsOf(queue.sources);
  printer.resolutions = queue.resolutions;
  printer.resolution = queue.defaultResolution.value_or(
      queue.resolutions.empty() ? Dpi{} : queue.resolutions.front());
  printer.margins = queue.defaultMargins;
  printer.smallest = known.smallest;
  printer.largest = known.largest;
  printer.stopped = queue.stopped;
  printer.mode =
      modeOf(queue, defaultPaper(printer.papers, queue.defaultMedia), printer.resolution);
  return printer;
}

std::pair<MediaSize, MediaSize> sizeLimits(const Printer& printer) {
  if (takesCustomSizes(printer)) return {printer.smallest, printer.largest};
  MediaSize smallest = printer.papers.front().media.size;
  MediaSize largest = smallest;
  for (const Paper& paper : printer.papers) {
    const MediaSize size = paper.media.size;
    smallest = {std::min(smallest.width, size.width), std::min(smallest.length, size.length)};
    largest = {std::max(largest.width, size.width), std::max(largest.length, size.length)};
  }
  return {smallest, largest};
}

Media mediaOf(const Printer& printer, const DeviceMode& mode) {
  const Paper* paper = paperOf(printer, mode.dmPaperSize);
  if (paper == nullptr && tellsSize(mode) && takesCustomSizes(printer)) {
    return customMedia(printer, mode);
  }
  if (paper == nullptr) paper = paperOf(printer, printer.mode.dmPaperSize);
  return paper->media;
}

DeviceCaps deviceCaps(const Printer& printer, const DeviceMode& mode) {
  const Media upright = mediaOf(printer, mode);
  const Media sheet = mode.dmOrientation == kLandscape ? turned(upright) : upright;
  const MediaMargins& edges = sheet.margins;
  const Dpi dpi = printer.resolution;
  DeviceCaps caps;
  caps.LogPixelsX = caps.aspectX = dpi.x;
  caps.LogPixelsY = caps.aspectY = dpi.y;
  caps.scalingFactorX = caps.scalingFactorY = 1;
  caps.PhysicalWidth = std::max(1, dotsFromHundredths(sheet.size.width, dpi.x));
  caps.PhysicalHeight = std::max(1, dotsFromHundredths(sheet.size.length, dpi.y));
  caps.PhysicalOffsetX = dotsToClearHundredths(edges.left, dpi.x);
  caps.PhysicalOffsetY = dotsToClearHundredths(edges.top, dpi.y);
  const int right = dotsToClearHundredths(edges.right, dpi.x);
  const int bottom = dotsToClearHundredths(edges.bottom, dpi.y);
  caps.HorzRes = std::max(1, caps.PhysicalWidth - caps.PhysicalOffsetX - right);
  caps.VertRes = std::max(1, caps.PhysicalHeight - caps.PhysicalOffsetY - bottom);
  caps.HorzSize = millimetresFromHundredths(sheet.size.width - edges.left - edges.right);
  caps.VertSize = millimetresFromHundredths(sheet.size.length - edges.top - edges.bottom);
  return caps;
}

JobTicket ticketOf(const Printer& printer, const DeviceMode& mode) {
  JobTicket ticket;
  const Media sheet = mediaOf(printer, mode);
  ticket.media = sheet.name;
  ticket.mediaSize = sheet.size;
  if (mode.has(DM_DEFAULTSOURCE)) ticket.source = sourceOf(printer, mode.dmDefaultSource);
  if (mode.has(DM_COPIES)) ticket.copies = std::clamp(mode.dmCopies, 1, kMostCopies);
  ticket.collated = mode.has(DM_COLLATE) && mode.dmCollate != 0;
  if (mode.has(DM_PRINTQUALITY)) {
    constexpr PrintQuality kQualities[] = {PrintQuality::draft, PrintQuality::draft,
                                           PrintQuality::normal, PrintQuality::high};
    const int place = std::clamp(-mode.dmPrintQuality, 1, 4) - 1;
    ticket.quality = kQualities[place];
  }
  if (mode.has(DM_COLOR)) ticket.color = mode.dmColor != kMonochrome;
  return ticket;
}

}  // namespace qor
