// The user's settings in an INI file of the user's configuration directory.
#pragma once

#include <QSettings>

#include "platform/system/user_settings.h"

namespace qor {

class QtUserSettings : public UserSettings {
 public:
  // The file of the program: QOR/QorUtlView.ini.
  QtUserSettings();

  bool isUsable() const override { return settings_.status() == QSettings::NoError; }
  std::optional<int> integer(std::string_view name) const override;
  std::optional<bool> flag(std::string_view name) const override;
  std::vector<std::string> texts(std::string_view name) const override;
  void setInteger(std::string_view name, int value) override;
  void setFlag(std::string_view name, bool value) override;
  void setTexts(std::string_view name, const std::vector<std::string>& values) override;
  bool save() override;
  std::string location() const override;

 private:
  mutable QSettings settings_;
};

}  // namespace qor
