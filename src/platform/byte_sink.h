// Where encoders and exporters put their bytes.
#pragma once

#include <string>
#include <string_view>

namespace qor {

class ByteSink {
 public:
  virtual ~ByteSink() = default;
  // Appends the bytes. Throws FileError where they can't be taken.
  virtual void write(std::string_view bytes) = 0;
};

// Keeps what is written in memory.
class StringSink : public ByteSink {
 public:
  void write(std::string_view bytes) override { text_.append(bytes); }
  const std::string& text() const { return text_; }

 private:
  std::string text_;
};

}  // namespace qor
