// A sink in memory.
#pragma once

#include <string>
#include <string_view>

#include "platform/system/byte_sink.h"

namespace qor::test {

// Keeps what is written in memory.
class StringSink : public ByteSink {
 public:
  void write(std::string_view bytes) override { text_.append(bytes); }
  const std::string& text() const { return text_; }

 private:
  std::string text_;
};

}  // namespace qor::test
