// A port of this machine that takes connections and says nothing.
#pragma once

#include <stdexcept>
#include <string>

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace qor::test {

class Port {
 public:
  Port() : handle_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto* const any = reinterpret_cast<sockaddr*>(&address);
    if (::bind(handle_, any, size) != 0 || ::listen(handle_, 8) != 0 ||
        ::getsockname(handle_, any, &size) != 0)
      throw std::runtime_error("no port");
    number_ = std::to_string(ntohs(address.sin_port));
  }
  ~Port() { ::close(handle_); }
  Port(const Port&) = delete;
  Port& operator=(const Port&) = delete;

  const std::string& number() const { return number_; }

 private:
  int handle_;
  std::string number_;
};

}  // namespace qor::test
