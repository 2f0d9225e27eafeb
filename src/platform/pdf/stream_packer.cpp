// Compressing streams.
#include "platform/pdf/stream_packer.h"

#include <system_error>
#include <utility>

namespace qor {
namespace {

constexpr int kCompressionLevel = 5;

// Pages that are as fast without a thread as with one and its start.
constexpr std::size_t kFew = 200;

}  // namespace

StreamPacker::StreamPacker(Use use) : use_(std::move(use)), compressor_(kCompressionLevel) {
}

// Where the system gives no thread, the work is done without.
bool StreamPacker::startBackground() {
  if (background_) return true;
  if (!may_use_background_ || ++count_ <= kFew) return false;
  try {
    background_ = std::make_unique<BackgroundCompressor>(kCompressionLevel);
  } catch (const std::system_error&) {
    may_use_background_ = false;
  }
  return background_ != nullptr;
}

void StreamPacker::add(std::int32_t id, std::string_view entries, std::string_view bytes) {
  if (!startBackground()) {
    use_(id, entries, compressor_.zlib(bytes));
    return;
  }
  background_->add(bytes);
  waiting_.push_back({id, std::string(entries)});
  while (!background_->isEmpty() && (background_->isFull() || background_->isReady())) leave();
}

void StreamPacker::leave() {
  const Stream stream = std::move(waiting_.front());
  waiting_.pop_front();
  use_(stream.id, stream.entries, background_->take());
}

void StreamPacker::flush() {
  while (!waiting_.empty()) leave();
}

}  // namespace qor
