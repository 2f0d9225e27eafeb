// Taking pages.
#include "export/page_share.h"

#include "platform/system/shared_counter.h"

namespace qor {
namespace {

// Few enough that all processes end at about the same time.
constexpr std::int32_t kTaken = 4;

// Beyond what any report has, with room for the processes that still count.
constexpr std::int32_t kNone = 1 << 28;

}  // namespace

bool PageShare::has(std::int32_t page) {
  while (page >= end_) {
    first_ = counter_.next() * kTaken + 1;
    end_ = first_ + kTaken;
  }
  return page >= first_;
}

void PageShare::giveUp() {
  counter_.set(kNone);
}

}  // namespace qor
