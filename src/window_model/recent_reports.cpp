// The list of recent reports.
#include "window_model/recent_reports.h"

#include "platform/system/user_settings.h"

namespace qor {
namespace {

constexpr const char* kKey = "RecentReports";

}  // namespace

std::vector<std::string> recentReports(const UserSettings& settings) {
  std::vector<std::string> reports = settings.texts(kKey);
  if (reports.size() > kMostRecentReports) reports.resize(kMostRecentReports);
  return reports;
}

void noteReport(UserSettings& settings, const std::string& path) {
  std::vector<std::string> reports = recentReports(settings);
  std::erase(reports, path);
  reports.insert(reports.begin(), path);
  if (reports.size() > kMostRecentReports) reports.pop_back();
  settings.setTexts(kKey, reports);
  settings.save();
}

void forgetReport(UserSettings& settings, const std::string& path) {
  std::vector<std::string> reports = recentReports(settings);
  if (std::erase(reports, path) == 0) return;
  settings.setTexts(kKey, reports);
  settings.save();
}

}  // namespace qor
