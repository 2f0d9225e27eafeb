// A report in its window, for programs that measure windows from inside.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/app_options.h"
#include "document/vdoc.h"
#include "platform/system/user_settings.h"
#include "settings/printers.h"
#include "windows/view/tfrm_view.h"

// Nothing is stored, and nothing was.
class NoSettings : public qor::UserSettings {
 public:
  bool isUsable() const override { return false; }
  std::optional<int> integer(std::string_view) const override { return {}; }
  std::optional<bool> flag(std::string_view) const override { return {}; }
  std::vector<std::string> texts(std::string_view) const override { return {}; }
  void setInteger(std::string_view, int) override {}
  void setFlag(std::string_view, bool) override {}
  void setTexts(std::string_view, const std::vector<std::string>&) override {}
  bool save() override { return true; }
  std::string location() const override { return {}; }
};

// The window holds the first page; whoever measures shows it.
class ShownReport {
 public:
  explicit ShownReport(const char* path) {
    qor::AppOptions.FileName = path;
    qor::InitPrinters();
    doc_.SelectPrinter({});
    doc_.ScanPages(false);
    window_.SetDocument(&doc_, doc_.findPage(1));
  }
  ~ShownReport() { window_.SetDocument(nullptr, nullptr); }
  ShownReport(const ShownReport&) = delete;
  ShownReport& operator=(const ShownReport&) = delete;

  qor::VDoc& doc() { return doc_; }
  qor::TfrmView& window() { return window_; }

 private:
  NoSettings settings_;
  qor::VDoc doc_;
  qor::TfrmView window_{settings_, {}};
};
