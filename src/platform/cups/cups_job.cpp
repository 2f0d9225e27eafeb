// Create-Job and Send-Document.
#include "platform/cups/cups_job.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/errors.h"

namespace qor {
namespace {

constexpr std::size_t kBufferSize = std::size_t{64} * 1024;
constexpr const char* kDocumentFormat = "application/pdf";
constexpr const char* kUpright = "3";  // pages lie as they are to be read already

// Options as names and values, in libcups' own list.
class Options {
 public:
  Options() = default;
  ~Options() { cupsFreeOptions(count_, options_); }
  Options(const Options&) = delete;
  Options& operator=(const Options&) = delete;

  void add(const char* name, const std::string& value) {
    count_ = cupsAddOption(name, value.c_str(), count_, &options_);
  }

  void encode(ipp_t* request) const { cupsEncodeOptions2(request, count_, options_, IPP_TAG_JOB); }

 private:
  int count_ = 0;
  cups_option_t* options_ = nullptr;
};

struct DestinationDeleter {
  void operator()(cups_dest_t* destination) const { cupsFreeDests(1, destination); }
};

// Options that speak of the sheet, the colours or the quality, by the names of drivers and of the
// protocol: a job has them from its ticket, with which its pages were made.
constexpr std::array<std::string_view, 17> kTicketOptions = {
    "PageSize",   "PageRegion",    "media",      "media-col",        "orientation-requested",
    "landscape",  "fit-to-page",   "scaling",    "natural-scaling",  "print-scaling",
    "fitplot",    "print-quality", "OutputMode", "cupsPrintQuality", "print-color-mode",
    "ColorModel", "Resolution"};

bool tellsSource(std::string_view option) {
  return option.ends_with("InputSlot") || option == "media-source" || option == "HPPaperSource";
}

bool isTicketOption(std::string_view option, const JobTicket& ticket) {
  const auto* end = kTicketOptions.end();
  return std::find(kTicketOptions.begin(), end, option) != end ||
         (!ticket.source.empty() && tellsSource(option));
}

// What else the user has set for the queue with lpoptions.
void addUserOptions(Options& options, http_t* connection, const std::string& queue,
                    const JobTicket& ticket) {
  const std::unique_ptr<cups_dest_t, DestinationDeleter> destination(
      cupsGetNamedDest(connection, queue.c_str(), nullptr));
  if (!destination) return;
  for (int i = 0; i < destination->num_options; ++i) {
    const cups_option_t& option = destination->options[i];
    if (!isTicketOption(option.name, ticket)) options.add(option.name, option.value);
  }
}

void addTicket(Options& options, const JobTicket& ticket) {
  // Pages have the size of the sheet and keep clear of its edges: nothing is to be fitted.
  options.add("print-scaling", "none");
  options.add("orientation-requested", kUpright);
  options.add("media", ticket.media);
  if (ticket.copies) options.add("copies", std::to_string(*ticket.copies));
  if (ticket.collated) {
    options.add("multiple-document-handling", "separate-documents-collated-copies");
  }
  if (ticket.quality) {
    options.add("print-quality", std::to_string(static_cast<int>(*ticket.quality)));
  }
  if (ticket.color) options.add("print-color-mode", *ticket.color ? "color" : "monochrome");
}

// The sheet again, with its tray. Its name stays beside it: without one the scheduler would put in
// the paper that the queue has as its default.
void addTray(ipp_t* request, const JobTicket& ticket) {
  const Ipp size(ippNew());
  ippAddInteger(size.get(), IPP_TAG_ZERO, IPP_TAG_INTEGER, "x-dimension", ticket.mediaSize.width);
  ippAddInteger(size.get(), IPP_TAG_ZERO, IPP_TAG_INTEGER, "y-dimension", ticket.mediaSize.length);
  const Ipp sheet(ippNew());
  ippAddCollection(sheet.get(), IPP_TAG_ZERO, "media-size", size.get());
  ippAddString(sheet.get(), IPP_TAG_ZERO, IPP_TAG_KEYWORD, "media-source", nullptr,
               ticket.source.c_str());
  ippAddCollection(request, IPP_TAG_JOB, "media-col", sheet.get());
}

}  // namespace

CupsJob::CupsJob(std::string queue) : queue_(std::move(queue)), connection_(connectToScheduler()) {
  if (!connection_) fail();
  buffer_.reserve(kBufferSize);
}

void CupsJob::start(const JobTicket& ticket) {
  create(ticket);
  startDocument(ticket);
}

CupsJob::~CupsJob() {
  if (finished_ || number_ == 0) return;
  // The document in between makes the old connection useless.
  connection_ = connectToScheduler();
  if (connection_) cupsCancelJob2(connection_.get(), queue_.c_str(), number_, 0);
}

void CupsJob::create(const JobTicket& ticket) {
  Options options;
  addUserOptions(options, connection_.get(), queue_, ticket);
  addTicket(options, ticket);
  Ipp request = queueRequest(IPP_OP_CREATE_JOB, queue_);
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr,
               ticket.title.c_str());
  options.encode(request.get());
  if (!ticket.source.empty()) addTray(request.get(), ticket);
  const std::string resource = "/printers/" + queue_;
  const Ipp answer(cupsDoRequest(connection_.get(), request.release(), resource.c_str()));
  number_ = numberOf(answer.get(), "job-id", 0);
  if (number_ == 0) fail();
}

void CupsJob::startDocument(const JobTicket& ticket) {
  const http_status_t status = cupsStartDocument(connection_.get(), queue_.c_str(), number_,
                                                 ticket.title.c_str(), kDocumentFormat, 1);
  if (status != HTTP_STATUS_CONTINUE) fail();
}

void CupsJob::write(std::string_view bytes) {
  buffer_.append(bytes);
  if (buffer_.size() >= kBufferSize) flush();
}

void CupsJob::flush() {
  const http_status_t status =
      cupsWriteRequestData(connection_.get(), buffer_.data(), buffer_.size());
  if (status != HTTP_STATUS_CONTINUE) fail();
  buffer_.clear();
}

void CupsJob::finish() {
  flush();
  if (cupsFinishDocument(connection_.get(), queue_.c_str()) > IPP_STATUS_OK_EVENTS_COMPLETE) {
    fail();
  }
  finished_ = true;
}

void CupsJob::fail() const {
  throw PrintError(queue_ + ": " + cupsLastErrorString());
}

}  // namespace qor
