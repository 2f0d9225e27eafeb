// Recent lists.
#include "window_model/recent_texts.h"

#include <algorithm>

#include "platform/system/user_settings.h"

namespace qor {
namespace {

void store(UserSettings& settings, const RecentTexts& list, const std::vector<std::string>& texts) {
  settings.setTexts(list.key, texts);
  settings.save();
}

}  // namespace

std::vector<std::string> recentTexts(const UserSettings& settings, const RecentTexts& list) {
  std::vector<std::string> texts = settings.texts(list.key);
  texts.resize(std::min(texts.size(), list.most));
  return texts;
}

void noteRecent(UserSettings& settings, const RecentTexts& list, const std::string& text) {
  std::vector<std::string> texts = recentTexts(settings, list);
  if (text.empty() || (!texts.empty() && texts.front() == text)) return;
  std::erase(texts, text);
  texts.insert(texts.begin(), text);
  texts.resize(std::min(texts.size(), list.most));
  store(settings, list, texts);
}

void forgetRecent(UserSettings& settings, const RecentTexts& list, const std::string& text) {
  std::vector<std::string> texts = recentTexts(settings, list);
  if (std::erase(texts, text) > 0) store(settings, list, texts);
}

}  // namespace qor
