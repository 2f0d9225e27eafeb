// The preview as the program runs it.
#include <QMessageBox>
#include <utility>

#include "base/app_options.h"
#include "document/vdoc.h"
#include "language/language.h"
#include "platform/qt/desktop.h"
#include "platform/qt/qt_text.h"
#include "platform/qt/qt_user_settings.h"
#include "platform/system/directory.h"
#include "window_model/recent_texts.h"
#include "window_model/window_module.h"
#include "windows/export/export_form.h"
#include "windows/export/mail_hand_over.h"
#include "windows/failure_text.h"
#include "windows/settings/settings_form.h"
#include "windows/start/start_window.h"
#include "windows/view/tfrm_view.h"

namespace qor {
namespace {

// The first page, or none where it can't be read: the window will tell why.
VDocPage* firstPage(VDoc& doc) {
  VDocPage* page = nullptr;
  failureOf([&] { page = doc.GetPage(1); });
  return page;
}

void showWarnings(const std::vector<std::string>& warnings) {
  for (const std::string& text : warnings)
    QMessageBox(QMessageBox::Warning, qtText(interfaceTexts().ApplicationTitle), qtText(text),
                QMessageBox::Ok)
        .exec();
}

// A report that goes when it was seen is none to come back to, also where it was one before.
void remember(UserSettings& settings) {
  if (!AppOptions.DeleteAfterPrint)
    noteRecent(settings, kRecentReports, fullPath(AppOptions.FileName));
}

void forgetSeen(UserSettings& settings) {
  if (AppOptions.DeleteAfterPrint)
    forgetRecent(settings, kRecentReports, fullPath(AppOptions.FileName));
}

}  // namespace

extern "C" {

__attribute__((visibility("default"))) bool qorRunPreview(VDoc& doc, void (*loadSettings)(VDoc&),
                                                          const std::vector<std::string>& warnings,
                                                          std::vector<std::string>& made) {
  Desktop desktop;
  showWarnings(warnings);
  if (desktop.isAskedToEnd()) return false;
  QtUserSettings settings;
  ViewCommands commands;
  commands.settings = settingsForm();
  commands.convert = showExportDialog;
  commands.mail = exportAndMail;
  TfrmView window(settings, std::move(commands));
  loadSettings(doc);
  const MessageSink messages([&window](MessageKind kind, std::string_view text) {
    window.showMessage(kind, qtText(text));
  });
  window.SetDocument(&doc, firstPage(doc));
  window.show();
  remember(settings);
  desktop.run();
  window.close();
  window.SetDocument(nullptr, nullptr);
  made = window.madeFiles();
  const bool seen = window.hasShownReport();
  if (seen) forgetSeen(settings);
  return seen;
}

__attribute__((visibility("default"))) void qorShowStart() {
  Desktop desktop(0);
  QtUserSettings settings;
  StartWindow window(settings);
  window.show();
  desktop.run();
  settings.save();
}

__attribute__((visibility("default"))) void qorShowBoxes(const std::vector<std::string>& warnings,
                                                         int exitCode) {
  const Desktop desktop(exitCode);
  showWarnings(warnings);
}

}  // extern "C"

}  // namespace qor
