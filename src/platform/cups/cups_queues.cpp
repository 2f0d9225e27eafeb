// The queues of a CUPS scheduler.
#include <algorithm>
#include <array>
#include <chrono>
#include <mutex>
#include <span>
#include <utility>

#include "platform/cups/cups_job.h"
#include "platform/cups/ipp.h"
#include "platform/print/paper_table.h"
#include "platform/print/system_queues.h"

namespace qor {
namespace {

// Longer names are no queue's.
constexpr std::size_t kMaxName = 127;

constexpr std::array<const char*, 3> kNameAttributes = {"printer-name", "printer-make-and-model",
                                                        "device-uri"};

constexpr std::array<const char*, 14> kQueueAttributes = {"printer-name",
                                                          "printer-make-and-model",
                                                          "device-uri",
                                                          "printer-state",
                                                          "media-supported",
                                                          "media-size-supported",
                                                          "media-default",
                                                          "media-col-default",
                                                          "media-col-database",
                                                          "media-source-supported",
                                                          "printer-resolution-supported",
                                                          "printer-resolution-default",
                                                          "print-color-mode-default",
                                                          "orientation-requested-default"};

void askFor(ipp_t* request, std::span<const char* const> attributes) {
  ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                static_cast<int>(attributes.size()), nullptr, attributes.data());
}

struct SheetCollection {
  MediaSize size;
  MediaMargins margins;
};

// A media-col: a size and its margins.
SheetCollection collectionOf(ipp_t* collection) {
  SheetCollection sheet;
  ipp_attribute_t* size = ippFindAttribute(collection, "media-size", IPP_TAG_BEGIN_COLLECTION);
  if (size != nullptr) {
    ipp_t* sides = ippGetCollection(size, 0);
    sheet.size = {numberOf(sides, "x-dimension", 0), numberOf(sides, "y-dimension", 0)};
  }
  sheet.margins = {numberOf(collection, "media-left-margin", 0),
                   numberOf(collection, "media-top-margin", 0),
                   numberOf(collection, "media-right-margin", 0),
                   numberOf(collection, "media-bottom-margin", 0)};
  return sheet;
}

std::vector<SheetCollection> sheetsOf(ipp_t* answer, const char* name) {
  std::vector<SheetCollection> sheets;
  ipp_attribute_t* all = ippFindAttribute(answer, name, IPP_TAG_BEGIN_COLLECTION);
  sheets.reserve(static_cast<std::size_t>(ippGetCount(all)));
  for (int i = 0; i < ippGetCount(all); ++i)
    sheets.push_back(collectionOf(ippGetCollection(all, i)));
  return sheets;
}

// Margins are told by size. Where a size comes with several, as with and without a border, the
// sheet with the border is meant by its plain name.
MediaMargins marginsOf(MediaSize size, const std::vector<SheetCollection>& sheets,
                       const MediaMargins& otherwise) {
  const SheetCollection* found = nullptr;
  for (const SheetCollection& sheet : sheets) {
    if (!sameSize(sheet.size, size)) continue;
    if (found == nullptr || sheet.margins.left > found->margins.left) found = &sheet;
  }
  return found == nullptr ? otherwise : found->margins;
}

void addMedia(Queue& queue, ipp_t* answer) {
  const auto sheets = sheetsOf(answer, "media-col-database");
  const auto names = textsOf(answer, "media-supported");
  for (std::size_t i = 0; i < names.size(); ++i) {
    const std::string& name = names[i];
    const bool isLimit = name.starts_with("custom_min") || name.starts_with("custom_max");
    const auto size = sizeOfMedia(name);
    if (isLimit || !size) continue;
    // Most schedulers tell both lists in one order.
    const bool sameOrder = i < sheets.size() && sameSize(sheets[i].size, *size);
    queue.media.push_back(
        {name, *size,
         sameOrder ? sheets[i].margins : marginsOf(*size, sheets, queue.defaultMargins)});
  }
}

struct Range {
  int low = 0;
  int high = 0;
};

// A side that may have any length in a range, or just one.
std::optional<Range> rangeOf(ipp_t* size, const char* side) {
  ipp_attribute_t* attribute = ippFindAttribute(size, side, IPP_TAG_ZERO);
  if (ippGetValueTag(attribute) == IPP_TAG_INTEGER) {
    const int length = ippGetInteger(attribute, 0);
    return Range{length, length};
  }
  if (ippGetValueTag(attribute) != IPP_TAG_RANGE) return std::nullopt;
  Range range;
  range.low = ippGetRange(attribute, 0, &range.high);
  return range;
}

// The range of sizes that are cut from a roll or fed by hand.
void addCustomSizes(Queue& queue, ipp_t* answer) {
  ipp_attribute_t* sizes =
      ippFindAttribute(answer, "media-size-supported", IPP_TAG_BEGIN_COLLECTION);
  for (int i = 0; i < ippGetCount(sizes); ++i) {
    ipp_t* size = ippGetCollection(sizes, i);
    const auto width = rangeOf(size, "x-dimension");
    const auto length = rangeOf(size, "y-dimension");
    if (!width || !length || (width->low == width->high && length->low == length->high)) continue;
    const bool isFirst = queue.largest == MediaSize{};
    const auto least = [isFirst](int known, int low) {
      return isFirst ? low : std::min(known, low);
    };
    queue.smallest = {least(queue.smallest.width, width->low),
                      least(queue.smallest.length, length->low)};
    queue.largest = {std::max(queue.largest.width, width->high),
                     std::max(queue.largest.length, length->high)};
  }
}

void addText(QueueName& queue, ipp_attribute_t* attribute) {
  const std::string name = ippGetName(attribute);
  const char* text = ippGetString(attribute, 0, nullptr);
  if (text == nullptr) return;
  if (name == "printer-name") queue.name = text;
  if (name == "printer-make-and-model") queue.driver = text;
  if (name == "device-uri") queue.port = text;
}

QueueName nameOf(ipp_t* answer) {
  return {textOf(answer, "printer-name"), textOf(answer, "printer-make-and-model"),
          textOf(answer, "device-uri")};
}

Queue queueOf(ipp_t* answer) {
  Queue queue;
  queue.id = nameOf(answer);
  const auto usual = sheetsOf(answer, "media-col-default");
  if (!usual.empty()) queue.defaultMargins = usual.front().margins;
  addMedia(queue, answer);
  addCustomSizes(queue, answer);
  queue.defaultMedia = textOf(answer, "media-default");
  queue.sources = textsOf(answer, "media-source-supported");
  queue.resolutions = resolutionsOf(answer, "printer-resolution-supported");
  const auto resolution = resolutionsOf(answer, "printer-resolution-default");
  if (!resolution.empty()) queue.defaultResolution = resolution.front();
  queue.color = textOf(answer, "print-color-mode-default") != "monochrome";
  const int orientation = numberOf(answer, "orientation-requested-default", IPP_ORIENT_PORTRAIT);
  queue.landscape =
      orientation == IPP_ORIENT_LANDSCAPE || orientation == IPP_ORIENT_REVERSE_LANDSCAPE;
  queue.stopped = numberOf(answer, "printer-state", IPP_PSTATE_IDLE) == IPP_PSTATE_STOPPED;
  return queue;
}

// Each queue is a group of attributes, in any order.
std::vector<QueueName> namesOf(ipp_t* answer) {
  std::vector<QueueName> names;
  bool inGroup = false;
  for (ipp_attribute_t* attribute = ippFirstAttribute(answer); attribute != nullptr;
       attribute = ippNextAttribute(answer)) {
    const bool belongs = ippGetGroupTag(attribute) == IPP_TAG_PRINTER;
    if (belongs && !inGroup) names.emplace_back();
    inGroup = belongs;
    if (belongs) addText(names.back(), attribute);
  }
  std::erase_if(names, [](const QueueName& queue) { return queue.name.empty(); });
  return names;
}

// Whether the last question of this thread came to nothing because nobody answered or it wasn't
// let in; that there is no such printer is an answer.
bool wasRefused() {
  const ipp_status_t status = cupsLastError();
  return status >= IPP_STATUS_ERROR_INTERNAL || status == IPP_STATUS_ERROR_FORBIDDEN ||
         status == IPP_STATUS_ERROR_NOT_AUTHENTICATED || status == IPP_STATUS_ERROR_NOT_AUTHORIZED;
}

// The connections to the scheduler; libcups opens one anew where the scheduler has closed it.
// Threads may ask at once: each takes one that lies idle, or makes a new one. A scheduler that has
// let a question go unanswered is left alone for a while, so that a run doesn't wait for it again
// and again.
class Connections {
 public:
  // Runs the question with a connection and keeps that for the next one, where the question says
  // that it was answered. Nothing is asked where no scheduler answers.
  template <class Question>
  void use(Question question) {
    const Patience patience;
    std::optional<Connection> connection = take(patience);
    if (!connection) return;
    const bool answered = *connection && isAnswered(question, connection->get(), patience);
    const std::string reason = answered ? "" : reasonOf(patience);
    const std::lock_guard lock(mutex_);
    trouble_ = reason;
    if (answered) idle_.push_back(std::move(*connection));
    if (!answered && patience.isOver()) silent_until_ = Clock::now() + kPause;
  }

  std::string trouble() const {
    const std::lock_guard lock(mutex_);
    return trouble_;
  }

 private:
  using Clock = std::chrono::steady_clock;
  static constexpr std::chrono::minutes kPause{1};

  template <class Question>
  static bool isAnswered(Question question, http_t* connection, const Patience& patience) {
    refusePasswords();
    limitWaiting(connection, patience);
    const Watch watch(connection, patience);
    return question(connection) && !patience.isOver();
  }

  static std::string reasonOf(const Patience& patience) {
    const std::string server = cupsServer();
    if (patience.isOver())
      return server + ": no answer in " + std::to_string(Patience::kLimit.count()) + " seconds";
    return server + ": " + cupsLastErrorString();
  }

  // Null where none can be made; nothing where none is to be tried.
  std::optional<Connection> take(const Patience& patience) {
    {
      const std::lock_guard lock(mutex_);
      if (Clock::now() < silent_until_) return std::nullopt;
      if (!idle_.empty()) {
        Connection connection = std::move(idle_.back());
        idle_.pop_back();
        return connection;
      }
    }
    return connectToScheduler(patience);
  }

  mutable std::mutex mutex_;
  std::vector<Connection> idle_;
  std::string trouble_;
  Clock::time_point silent_until_{};
};

class CupsQueues : public PrintQueues {
 public:
  std::vector<QueueName> list() override {
    Ipp request(ippNewRequest(IPP_OP_CUPS_GET_PRINTERS));
    askFor(request.get(), kNameAttributes);
    const Ipp answer = ask(std::move(request));
    return namesOf(answer.get());
  }

  std::string defaultName() override {
    std::string name;
    connections_.use([&name](http_t* connection) {
      cups_dest_t* found = cupsGetNamedDest(connection, nullptr, nullptr);
      if (found == nullptr) return !wasRefused();
      name = found->name;
      cupsFreeDests(1, found);
      return true;
    });
    return name;
  }

  std::optional<Queue> find(const std::string& name) override {
    if (name.empty() || name.size() > kMaxName) return std::nullopt;
    Ipp request = queueRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, name);
    askFor(request.get(), kQueueAttributes);
    const Ipp answer = ask(std::move(request));
    if (!answer || textOf(answer.get(), "printer-name").empty()) return std::nullopt;
    return queueOf(answer.get());
  }

  std::string trouble() const override { return connections_.trouble(); }

  std::unique_ptr<PrintJob> open(const std::string& name, const JobTicket& ticket) override {
    auto job = std::make_unique<CupsJob>(name);
    job->start(ticket);
    return job;
  }

 private:
  Ipp ask(Ipp request) {
    Ipp answer;
    connections_.use([&](http_t* connection) {
      answer.reset(cupsDoRequest(connection, request.release(), "/"));
      return answer != nullptr && !wasRefused();
    });
    return answer;
  }

  Connections connections_;
};

}  // namespace
}  // namespace qor

extern "C" __attribute__((visibility("default"))) qor::PrintQueues* qorMakeSystemQueues() {
  return new qor::CupsQueues;
}

extern "C" __attribute__((visibility("default"))) void qorTellScheduler(
    qor::SchedulerAddress& address) {
  address = {cupsServer(), ippPort()};
}
