// What a user's programs remember from run to run: named values under the program's own key.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qor {

class UserSettings {
 public:
  virtual ~UserSettings() = default;

  // False where the place of the values can't be opened or holds something else.
  virtual bool isUsable() const = 0;

  // A value; nothing where there is none or it is of another kind.
  virtual std::optional<int> integer(std::string_view name) const = 0;
  virtual std::optional<bool> flag(std::string_view name) const = 0;

  // As it is stored now, with what was set here; empty where there is no such list. The texts come
  // back byte for byte, also where they are no UTF-8.
  virtual std::vector<std::string> texts(std::string_view name) const = 0;

  virtual void setInteger(std::string_view name, int value) = 0;
  virtual void setFlag(std::string_view name, bool value) = 0;
  virtual void setTexts(std::string_view name, const std::vector<std::string>& values) = 0;

  // Writes what was set. False where that fails.
  virtual bool save() = 0;

  // Where they are kept, for messages.
  virtual std::string location() const = 0;
};

}  // namespace qor
