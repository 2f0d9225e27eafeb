// The seam to print systems: what they tell of their queues, and how they take a job. Names and
// lengths are those of the Internet Printing Protocol: lengths in 1/100 mm, papers and trays by
// their registered names.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/system/byte_sink.h"

namespace qor {

struct MediaSize {
  int width = 0;  // 1/100 mm, upright
  int length = 0;

  bool operator==(const MediaSize&) const = default;
};

// What a printer can't reach at the edges of a sheet, 1/100 mm.
struct MediaMargins {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;

  bool operator==(const MediaMargins&) const = default;
};

struct Media {
  std::string name;  // such as "iso_a4_210x297mm"
  MediaSize size;
  MediaMargins margins;

  bool operator==(const Media&) const = default;
};

// Where nobody tells another one; that of the printer that makes PDF files.
inline constexpr int kUsualDpi = 600;

struct Dpi {
  int x = kUsualDpi;
  int y = kUsualDpi;

  bool operator==(const Dpi&) const = default;
};

struct QueueName {
  std::string name;
  std::string driver;
  std::string port;  // the address of the device

  bool operator==(const QueueName&) const = default;
};

// What a queue tells of itself. Empty lists where it doesn't.
struct Queue {
  QueueName id;
  std::vector<Media> media;
  std::string defaultMedia;
  MediaMargins defaultMargins;
  MediaSize smallest;  // of papers cut to any size; 0 where the queue takes none
  MediaSize largest;
  std::vector<std::string> sources;
  std::vector<Dpi> resolutions;
  std::optional<Dpi> defaultResolution;
  bool color = true;  // the queue prints in colour where nothing else is asked
  bool landscape = false;
  bool stopped = false;  // takes jobs and keeps them
};

enum class PrintQuality { draft = 3, normal = 4, high = 5 };

// What a job asks of its queue; what isn't told stays as the queue has it.
struct JobTicket {
  std::string title;
  std::string fallbackFile;  // where a printer that makes files puts one that nobody named
  std::optional<int> copies;
  bool collated = false;
  std::string media;
  MediaSize mediaSize;  // of the same sheet
  std::string source;   // of the sheet; empty where the queue chooses
  std::optional<PrintQuality> quality;
  std::optional<bool> color;
};

// A job that is being sent; its bytes are a PDF document. One that is destroyed before finish() is
// taken back.
class PrintJob : public ByteSink {
 public:
  // The file that it becomes; empty where it goes to a device.
  virtual std::string file() const { return {}; }

  // Hands the job over. Throws FileError or PrintError where it isn't taken.
  virtual void finish() = 0;
};

class PrintQueues {
 public:
  virtual ~PrintQueues() = default;

  // In the system's order. A system that doesn't answer has none.
  virtual std::vector<QueueName> list() = 0;

  // The user's default queue, else the system's; empty where there is none.
  virtual std::string defaultName() = 0;

  // Nothing where there is no such queue.
  virtual std::optional<Queue> find(const std::string& name) = 0;

  // Why the last question got no answer; empty where it got one, or none was asked.
  virtual std::string trouble() const { return {}; }

  // Starts a job. Throws FileError or PrintError.
  virtual std::unique_ptr<PrintJob> open(const std::string& name, const JobTicket& ticket) = 0;
};

}  // namespace qor
