// User settings for windows that are measured: nothing is stored, and nothing was.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/system/user_settings.h"

class NoSettings : public qor::UserSettings {
 public:
  bool isUsable() const override { return false; }
  std::optional<int> integer(std::string_view) const override { return {}; }
  std::optional<bool> flag(std::string_view) const override { return {}; }
  void setInteger(std::string_view, int) override {}
  void setFlag(std::string_view, bool) override {}
  bool save() override { return true; }
  std::string location() const override { return {}; }
};
