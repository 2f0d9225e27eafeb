// What the user has looked for last, in the user's settings.
#pragma once

#include <string>
#include <vector>

namespace qor {

class UserSettings;

inline constexpr std::size_t kMostRecentSearches = 20;

// The last one first.
std::vector<std::string> recentSearches(const UserSettings& settings);

// The text is the last one, stored at once.
void noteSearch(UserSettings& settings, const std::string& text);

}  // namespace qor
