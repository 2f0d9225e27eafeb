// Messages and connections, by libcups.
#include "platform/cups/ipp.h"

#include "base/units.h"

namespace qor {
namespace {

constexpr int kConnectMilliseconds = 5000;
constexpr int kMaxDpi = 19200;

int giveUp(http_t*, void*) {
  return 0;
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

Connection connectToScheduler() {
  refusePasswords();
  Connection connection(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(),
                                     1, kConnectMilliseconds, nullptr));
  if (connection) httpSetTimeout(connection.get(), kAnswerSeconds, giveUp, nullptr);
  return connection;
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
