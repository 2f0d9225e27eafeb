// Streams of a file on their way to being compressed. They leave in the order in which they came,
// at once or, in long documents, as they come back from another processor: the same bytes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/system/background_compressor.h"
#include "platform/system/compressor.h"

namespace qor {

class StreamPacker {
 public:
  // What is done with a compressed stream.
  using Use =
      std::function<void(std::int32_t id, std::string_view entries, std::string_view packed)>;

  explicit StreamPacker(Use use);

  // Takes another processor to it once there are many.
  void allowBackground() { may_use_background_ = true; }

  void add(std::int32_t id, std::string_view entries, std::string_view bytes);
  // Whatever has not left leaves.
  void flush();

 private:
  struct Stream {
    std::int32_t id;
    std::string entries;
  };

  bool startBackground();
  void leave();

  Use use_;
  Compressor compressor_;
  std::size_t count_ = 0;
  bool may_use_background_ = false;
  std::unique_ptr<BackgroundCompressor> background_;
  std::deque<Stream> waiting_;
};

}  // namespace qor
