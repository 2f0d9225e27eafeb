// Samples of files.
#include "platform/system/file_sample.h"

#include <algorithm>

#include "platform/system/input_file.h"

namespace qor {
namespace {

constexpr std::uint64_t kBlocks = 8;
constexpr std::uint64_t kBlockSize = 256;  // bytes

}  // namespace

std::string sampleOf(const InputFile& file, std::uint64_t size) {
  const std::uint64_t block = std::min(kBlockSize, size);
  std::string sample(kBlocks * block, '\0');
  std::size_t filled = 0;
  // The first block starts where the file does, and the last one ends there.
  for (std::uint64_t i = 0; i < kBlocks; ++i) {
    const std::uint64_t place = i + 1 == kBlocks ? size - block : (size - block) / kBlocks * i;
    filled += file.readAt(place, sample.data() + filled, block);
  }
  sample.resize(filled);
  return sample;
}

}  // namespace qor
