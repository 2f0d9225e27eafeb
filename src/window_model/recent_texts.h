// Lists of what the user has taken last, in the user's settings: the last one first, each once.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace qor {

class UserSettings;

// The name of a list in the settings, and how many texts it holds at most.
struct RecentTexts {
  const char* key;
  std::size_t most;
};

inline constexpr RecentTexts kRecentReports = {"RecentReports", 10};  // full paths
inline constexpr RecentTexts kRecentSearches = {"RecentSearches", 20};

std::vector<std::string> recentTexts(const UserSettings& settings, const RecentTexts& list);

// The text is the last one, unless it is empty. This and the next one store the settings at once,
// before other windows do.
void noteRecent(UserSettings& settings, const RecentTexts& list, const std::string& text);

// It is none of them any more.
void forgetRecent(UserSettings& settings, const RecentTexts& list, const std::string& text);

}  // namespace qor
