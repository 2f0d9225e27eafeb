// The keys of a set file: one table for reading and writing, so that both stand side by side.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace qor {

class VSet;

struct SetKey {
  std::string_view name;
  std::string_view label;  // as written, padded; empty where never written
  std::string (*write)(const VSet&);
  void (*read)(VSet&, const std::string& value);  // may throw ConversionError
};

// One part of a set; its keys in the order in which they are tried on a line.
struct SetSection {
  std::string_view name;
  std::span<const SetKey> keys;
};

std::span<const SetSection> setSections();

}  // namespace qor
