// A thread that compresses.
#include "platform/system/background_compressor.h"

namespace qor {
namespace {

constexpr std::size_t kMostBytes = 4 << 20;

// Waking a thread costs a part of what a page does: it is woken for some of them.
constexpr std::size_t kGivenAtOnce = 16;

}  // namespace

BackgroundCompressor::BackgroundCompressor(int level)
    : compressor_(level), thread_([this] { work(); }) {
}

BackgroundCompressor::~BackgroundCompressor() {
  {
    const std::lock_guard lock(mutex_);
    ends_ = true;
  }
  more_.notify_one();
  thread_.join();
}

bool BackgroundCompressor::isFull() const {
  return added_ - taken_ == kTexts || waiting_bytes_ > kMostBytes;
}

void BackgroundCompressor::add(std::string_view bytes) {
  text(added_++).bytes = bytes;
  waiting_bytes_ += bytes.size();
  if (added_ % kGivenAtOnce != 0) return;
  const std::lock_guard lock(mutex_);
  given_ = added_;
  more_.notify_one();
}

bool BackgroundCompressor::isReady() {
  const std::lock_guard lock(mutex_);
  return packed_ > taken_;
}

std::string_view BackgroundCompressor::take() {
  Text& oldest = text(taken_);
  std::unique_lock lock(mutex_);
  if (packed_ == taken_) {
    given_ = added_;
    more_.notify_one();
    done_.wait(lock, [this] { return packed_ > taken_; });
  }
  ++taken_;
  waiting_bytes_ -= oldest.bytes.size();
  if (oldest.failure) std::rethrow_exception(oldest.failure);
  return oldest.packed;
}

void BackgroundCompressor::compress(Text& text) {
  try {
    text.packed = compressor_.zlib(text.bytes);
  } catch (...) {
    text.failure = std::current_exception();
  }
}

void BackgroundCompressor::work() {
  std::unique_lock lock(mutex_);
  while (true) {
    more_.wait(lock, [this] { return ends_ || packed_ < given_; });
    if (ends_) return;
    lock.unlock();
    compress(text(packed_));
    lock.lock();
    ++packed_;
    done_.notify_one();
  }
}

}  // namespace qor
