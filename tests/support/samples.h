// The reports that users are shown, as reports to try things on.
#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

namespace qor::test {

const std::filesystem::path kSamples = std::filesystem::path(QOR_SOURCE_DIR) / "samples";

// The name of each, and its code page.
inline std::vector<std::pair<std::string, std::string>> samples() {
  std::vector<std::pair<std::string, std::string>> rows;
  std::ifstream list(kSamples / "samples.list");
  for (std::string report, codePage; list >> report >> codePage;)
    rows.emplace_back(report, codePage);
  return rows;
}

}  // namespace qor::test
