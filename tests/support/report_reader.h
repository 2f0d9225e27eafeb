// Reports in memory, for tests of what their lines hold.
#pragma once

#include <string>
#include <string_view>

#include "base/app_options.h"
#include "document/vdoc.h"
#include "support/temporary_directory.h"

namespace qor::test {

// Puts the options of the process back when a test ends.
class OptionsGuard {
 public:
  OptionsGuard() : before_(AppOptions) {}
  ~OptionsGuard() { AppOptions = before_; }
  OptionsGuard(const OptionsGuard&) = delete;
  OptionsGuard& operator=(const OptionsGuard&) = delete;

 private:
  AppOptionsRecord before_;
};

// What differs from a plain font of 10 points, such as " height=12 italic=1".
std::string differences(const FontState& font);

// A document on these bytes, scanned.
class TestReport {
 public:
  explicit TestReport(std::string_view bytes, int codePage = 1251);

  VDoc& doc() { return doc_; }

  // The loaded page.
  VDocPage& page(int number = 1, PageMode mode = PageMode::plain) {
    return *doc_.GetPage(number, mode);
  }

  // The lines and items of a page, one line of text for each.
  std::string dump(int number = 1, PageMode mode = PageMode::plain);

  // What stands beside it.
  std::string path(std::string_view name) const { return directory_.path(name); }
  std::vector<std::string> names() const { return directory_.names(); }

 private:
  OptionsGuard guard_;
  TemporaryDirectory directory_;
  std::string prepare(std::string_view bytes, int codePage);
  std::string name_;
  VDoc doc_;
};

}  // namespace qor::test
