// The list of recent searches.
#include "window_model/recent_searches.h"

#include "platform/system/user_settings.h"

namespace qor {
namespace {

constexpr const char* kKey = "RecentSearches";

}  // namespace

std::vector<std::string> recentSearches(const UserSettings& settings) {
  std::vector<std::string> searches = settings.texts(kKey);
  if (searches.size() > kMostRecentSearches) searches.resize(kMostRecentSearches);
  return searches;
}

void noteSearch(UserSettings& settings, const std::string& text) {
  std::vector<std::string> searches = recentSearches(settings);
  if (text.empty() || (!searches.empty() && searches.front() == text)) return;
  std::erase(searches, text);
  searches.insert(searches.begin(), text);
  if (searches.size() > kMostRecentSearches) searches.pop_back();
  settings.setTexts(kKey, searches);
  settings.save();
}

}  // namespace qor
