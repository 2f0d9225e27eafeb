// Compression on another processor: texts are added and come back compressed, in their order, while
// whoever adds them goes on.
#pragma once

#include <array>
#include <condition_variable>
#include <cstddef>
#include <exception>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>

#include "platform/system/compressor.h"

namespace qor {

class BackgroundCompressor {
 public:
  // The level is that of a Compressor. Throws system_error where there is no room for a thread.
  explicit BackgroundCompressor(int level);
  ~BackgroundCompressor();
  BackgroundCompressor(const BackgroundCompressor&) = delete;
  BackgroundCompressor& operator=(const BackgroundCompressor&) = delete;

  // No more texts may be added before some are taken: how many wait is bounded, and their bytes.
  bool isFull() const;
  bool isEmpty() const { return taken_ == added_; }
  void add(std::string_view bytes);

  // True where the oldest text that wasn't taken has been compressed.
  bool isReady();
  // Waits for it; in the frame of zlib, good until the next call. There must be one. Throws
  // bad_alloc.
  std::string_view take();

 private:
  static constexpr std::size_t kTexts = 64;

  struct Text {
    std::string bytes;
    std::string packed;
    std::exception_ptr failure;
  };

  Text& text(std::size_t number) { return texts_[number % kTexts]; }
  void work();
  void compress(Text& text);

  std::array<Text, kTexts> texts_;
  std::size_t added_ = 0;  // texts in all; those of the thread that adds
  std::size_t taken_ = 0;
  std::size_t waiting_bytes_ = 0;

  Compressor compressor_;
  std::mutex mutex_;
  std::condition_variable more_;
  std::condition_variable done_;
  std::size_t given_ = 0;   // the compressing thread may take so many
  std::size_t packed_ = 0;  // and so many are compressed
  bool ends_ = false;
  std::thread thread_;
};

}  // namespace qor
