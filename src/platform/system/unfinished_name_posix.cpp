// Names of unfinished files, on POSIX.
#include <algorithm>
#include <array>
#include <atomic>

#include <unistd.h>

#include "platform/system/unfinished_name.h"

namespace qor {
namespace {

enum class Use { none, filling, noted };

// A handler may read nothing that grows: there are so many, and no more.
struct Slot {
  std::atomic<Use> use{Use::none};
  int directory = -1;
  std::array<char, 64> name{};
};
static_assert(std::atomic<Use>::is_always_lock_free);

std::array<Slot, 32> slots;

}  // namespace

UnfinishedName::UnfinishedName(int directory, const std::string& name) {
  if (name.size() >= slots.front().name.size()) return;
  auto* const free = std::find_if(slots.begin(), slots.end(), [](Slot& slot) {
    Use none = Use::none;
    return slot.use.compare_exchange_strong(none, Use::filling);
  });
  if (free == slots.end()) return;
  free->directory = directory;
  *std::copy(name.begin(), name.end(), free->name.begin()) = '\0';
  free->use = Use::noted;
  slot_ = static_cast<int>(free - slots.begin());
}

void UnfinishedName::forget() {
  if (slot_ >= 0) slots[static_cast<std::size_t>(slot_)].use = Use::none;
  slot_ = -1;
}

void removeUnfinishedFiles() {
  for (Slot& slot : slots)
    if (slot.use == Use::noted) ::unlinkat(slot.directory, slot.name.data(), 0);
}

}  // namespace qor
