// Places, by the loader, the environment and the standard of file systems.
#include <cstdlib>
#include <filesystem>
#include <initializer_list>
#include <string_view>
#include <system_error>

#include <arpa/inet.h>
#include <dlfcn.h>

#include "base/errors.h"
#include "platform/system/file_place.h"
#include "platform/walls/places.h"

namespace qor {
namespace fs = std::filesystem;

namespace {

std::string environment(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string() : value;
}

void addVariables(Places& places, std::initializer_list<const char*> names) {
  for (const char* name : names) {
    const Places told = placesIn(environment(name));
    places.insert(places.end(), told.begin(), told.end());
  }
}

// Where the loader looks for those that are still to come.
void addSearched(Places& places) {
  void* program = ::dlopen(nullptr, RTLD_LAZY);
  Dl_serinfo size{};
  if (program == nullptr || ::dlinfo(program, RTLD_DI_SERINFOSIZE, &size) != 0) return;
  std::vector<char> memory(size.dls_size);
  auto* const found = reinterpret_cast<Dl_serinfo*>(memory.data());
  if (::dlinfo(program, RTLD_DI_SERINFOSIZE, found) != 0 ||
      ::dlinfo(program, RTLD_DI_SERINFO, found) != 0)
    return;
  const Dl_serpath* const paths = &found->dls_serpath[0];
  for (unsigned i = 0; i < found->dls_cnt; ++i) places.emplace_back(paths[i].dls_name);
}

// The user's own directory, which is not this run's business where the environment tells none.
void addAtHome(Places& places, std::initializer_list<const char*> names) {
  const std::string home = environment("HOME");
  if (home.empty()) return;
  for (const char* name : names) places.push_back(home + "/" + name);
}

}  // namespace

Places placesIn(std::string_view list) {
  Places places;
  while (!list.empty()) {
    const auto colon = list.find(':');
    const std::string_view entry = list.substr(0, colon);
    if (!entry.empty()) places.emplace_back(entry);
    list.remove_prefix(colon == std::string_view::npos ? list.size() : colon + 1);
  }
  return places;
}

std::string placeOf(const std::string& file) {
  const std::string place = fs::path(file).parent_path().string();
  return place.empty() ? "." : place;
}

std::string placeBehindLink(const std::string& file) {
  try {
    const std::string target = endOfLinks(file);
    return target == file ? std::string() : placeOf(target);
  } catch (const FileError&) {
    return {};
  }
}

Places placesOfLibraries() {
  Places places = {"/etc/ld.so.cache",    "/etc/ld.so.preload", "/usr/local/lib",
                   "/usr/lib/locale",     "/usr/share/locale",  "/usr/share/locale-langpack",
                   "/usr/share/zoneinfo", "/etc/localtime",     "/etc/timezone",
                   "/dev/null",           "/dev/urandom",       "/sys/devices/system/cpu",
                   "/proc/cpuinfo",       "/proc/meminfo",      "/proc/sys/crypto"};
  addVariables(places, {"GCONV_PATH", "LOCPATH", "TZDIR"});
  addSearched(places);
  return places;
}

bool mustBeLookedUp(std::string_view host) {
  if (host.starts_with('[')) host = host.substr(1, host.find(']') - 1);
  const std::string address(host.substr(0, host.find('%')));
  in6_addr bytes{};
  const bool isAddress = ::inet_pton(AF_INET, address.c_str(), &bytes) == 1 ||
                         ::inet_pton(AF_INET6, address.c_str(), &bytes) == 1;
  return !isAddress && host != "localhost";
}

Places placesOfPrinting() {
  Places places = {"/etc/cups/client.conf",
                   "/etc/cups/lpoptions",
                   "/etc/cups/ssl",
                   "/usr/share/cups",
                   "/etc/passwd",
                   "/etc/group",
                   "/etc/nsswitch.conf",
                   "/etc/hosts",
                   "/etc/host.conf",
                   "/etc/resolv.conf",
                   "/etc/gai.conf",
                   "/etc/services",
                   "/etc/ssl",
                   "/etc/gnutls",
                   "/usr/share/ca-certificates",
                   "/usr/local/share/ca-certificates",
                   "/etc/pki",
                   "/etc/krb5.conf",
                   "/etc/krb5.conf.d"};
  addVariables(places, {"CUPS_SERVERROOT", "CUPS_DATADIR"});
  addAtHome(places, {".cups"});
  return places;
}

}  // namespace qor
