// Where encoders and exporters put their bytes.
#pragma once

#include <string_view>

namespace qor {

class ByteSink {
 public:
  virtual ~ByteSink() = default;
  // Appends the bytes. Throws FileError where they can't be taken.
  virtual void write(std::string_view bytes) = 0;
};

}  // namespace qor
