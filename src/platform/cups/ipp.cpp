// Messages and connections, by libcups.
#include "platform/cups/ipp.h"

#include <algorithm>

#include <sys/socket.h>

#include "base/units.h"

namespace qor {
namespace {

constexpr double kJobSeconds = 20;     // that a scheduler may think about a job
constexpr double kLookSeconds = 0.25;  // between looks at the clock
constexpr std::chrono::milliseconds kShutAgain{100};
constexpr int kMaxDpi = 19200;

int giveUp(http_t*, void*) {
  return 0;
}

int goOn(http_t*, void* patience) {
  return static_cast<const Patience*>(patience)->isOver() ? 0 : 1;
}

ipp_attribute_t* attributeOf(ipp_t* message, const char* name) {
  return ippFindAttribute(message, name, IPP_TAG_ZERO);
}

int perInch(int value, ipp_res_t unit) {
  return unit == IPP_RES_PER_CM ? dpiFromDotsPerCentimetre(value) : value;
}

const char* noPassword(const char*, http_t*, const char*, const char*, void*) {
  return nullptr;
}

}  // namespace

void refusePasswords() {
  cupsSetPasswordCB2(noPassword, nullptr);
}

int Patience::milliseconds() const {
  const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end_ - Clock::now());
  return std::max(1, static_cast<int>(left.count()));
}

Watch::Watch(http_t* connection, const Patience& patience)
    : thread_([this, connection, left = std::chrono::milliseconds(patience.milliseconds() + 1)] {
        std::unique_lock lock(mutex_);
        // libcups connects anew where it thinks that this helps, so once isn't enough. Between its
        // two connections the number may for a moment be another socket's: the price of an end.
        for (auto wait = left; !answered_.wait_for(lock, wait, [this] { return is_answered_; });
             wait = kShutAgain)
          ::shutdown(httpGetFd(connection), SHUT_RDWR);
      }) {
}

Watch::~Watch() {
  {
    const std::lock_guard lock(mutex_);
    is_answered_ = true;
  }
  answered_.notify_one();
  thread_.join();
}

Connection connectToScheduler(const Patience& patience) {
  refusePasswords();
  Connection connection(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(),
                                     1, patience.milliseconds(), nullptr));
  if (connection) httpSetTimeout(connection.get(), kJobSeconds, giveUp, nullptr);
  return connection;
}

void limitWaiting(http_t* connection, const Patience& patience) {
  httpSetTimeout(connection, kLookSeconds, goOn, const_cast<Patience*>(&patience));
}

Ipp queueRequest(ipp_op_t operation, const std::string& queue) {
  char address[HTTP_MAX_URI];
  httpAssembleURIf(HTTP_URI_CODING_ALL, address, sizeof address, "ipp", nullptr, "localhost",
                   ippPort(), "/printers/%s", queue.c_str());
  Ipp request(ippNewRequest(operation));
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, address);
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
               cupsUser());
  return request;
}

std::vector<std::string> textsOf(ipp_t* message, const char* name) {
  std::vector<std::string> texts;
  ipp_attribute_t* attribute = attributeOf(message, name);
  for (int i = 0; i < ippGetCount(attribute); ++i) {
    const char* text = ippGetString(attribute, i, nullptr);
    if (text != nullptr) texts.emplace_back(text);
  }
  return texts;
}

std::string textOf(ipp_t* message, const char* name) {
  const char* text = ippGetString(attributeOf(message, name), 0, nullptr);
  return text == nullptr ? "" : text;
}

int numberOf(ipp_t* message, const char* name, int otherwise) {
  ipp_attribute_t* attribute = attributeOf(message, name);
  const ipp_tag_t tag = ippGetValueTag(attribute);
  const bool isNumber = tag == IPP_TAG_INTEGER || tag == IPP_TAG_ENUM;
  return isNumber ? ippGetInteger(attribute, 0) : otherwise;
}

bool isTrue(ipp_t* message, const char* name, bool otherwise) {
  ipp_attribute_t* attribute = attributeOf(message, name);
  return attribute == nullptr ? otherwise : ippGetBoolean(attribute, 0) != 0;
}

std::vector<Dpi> resolutionsOf(ipp_t* message, const char* name) {
  std::vector<Dpi> resolutions;
  ipp_attribute_t* attribute = attributeOf(message, name);
  for (int i = 0; i < ippGetCount(attribute); ++i) {
    int y = 0;
    ipp_res_t unit = IPP_RES_PER_INCH;
    const int x = ippGetResolution(attribute, i, &y, &unit);
    const Dpi dpi = {perInch(x, unit), perInch(y, unit)};
    const bool usable = dpi.x > 0 && dpi.y > 0 && dpi.x <= kMaxDpi && dpi.y <= kMaxDpi;
    if (usable) resolutions.push_back(dpi);
  }
  return resolutions;
}

}  // namespace qor
