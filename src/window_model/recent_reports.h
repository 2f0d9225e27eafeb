// The reports that the user has opened last, in the user's settings.
#pragma once

#include <string>
#include <vector>

namespace qor {

class UserSettings;

inline constexpr std::size_t kMostRecentReports = 10;

// Full paths, the last one first.
std::vector<std::string> recentReports(const UserSettings& settings);

// The report is the last one. This and the next one store the settings at once, before other
// windows do.
void noteReport(UserSettings& settings, const std::string& path);

// It is none of them any more.
void forgetReport(UserSettings& settings, const std::string& path);

}  // namespace qor
