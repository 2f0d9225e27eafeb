// An environment variable for the length of a test; a null value unsets it.
#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace qor::test {

class Variable {
 public:
  Variable(const char* name, const char* value) : name_(name) {
    if (const char* before = std::getenv(name)) before_ = before;
    set(value);
  }
  ~Variable() { set(before_ ? before_->c_str() : nullptr); }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;

  void set(const char* value) const {
    value != nullptr ? ::setenv(name_, value, 1) : ::unsetenv(name_);
  }

 private:
  const char* name_;
  std::optional<std::string> before_;
};

}  // namespace qor::test
