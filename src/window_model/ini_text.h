// The text of an INI file: sections of keys. What isn't changed stays as it is, comments and
// foreign keys among it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qor {

class IniText {
 public:
  explicit IniText(std::string_view text);

  // Whether blanks between a key and its "=" belong to the key.
  enum class Blanks { left, kept };

  // The value, without the blanks around it; nothing where there is none. Letters' case doesn't
  // count in sections and keys.
  std::optional<std::string> value(std::string_view section, std::string_view key,
                                   Blanks blanks = Blanks::left) const;

  // Sets it in its place, or at the section's end.
  void set(std::string_view section, std::string_view key, std::string_view value,
           Blanks blanks = Blanks::left);

  // Lines that end with CR LF.
  std::string text() const;

 private:
  struct Part {
    std::size_t start = 0;  // behind the section's head
    std::size_t end = 0;    // behind its last line that isn't empty
  };
  std::optional<Part> partOf(std::string_view section) const;
  std::optional<std::size_t> lineOf(const Part& part, std::string_view key, Blanks blanks) const;

  std::vector<std::string> lines_;
};

}  // namespace qor
