// What became of a report.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace qor {

enum class BulkResult { done, skipped, failed };

struct BulkAnswer {
  BulkResult result = BulkResult::failed;
  std::int32_t pages = 0;
  std::uint64_t bytes = 0;  // of the files
  std::size_t files = 0;
  std::string reason{};        // one line: why it failed, or what the files lack
  bool leavesNothing = false;  // the process is as good as before
};

// What several processes came to that exported shares of a report.
BulkAnswer joined(const BulkAnswer& first, const BulkAnswer& second);

// An answer as it goes from one process to another. One that is none is that of a failure.
std::string written(const BulkAnswer& answer);
BulkAnswer readAnswer(const std::string& text);

}  // namespace qor
