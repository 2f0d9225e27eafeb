// The preview as the program runs it.
#include "preview/run_preview.h"

#include "document/vdoc.h"
#include "platform/qt/desktop.h"
#include "platform/qt/qt_text.h"
#include "platform/qt/qt_user_settings.h"
#include "preview/failure_text.h"
#include "preview/tfrm_view.h"

namespace qor {
namespace {

// The first page, or none where it can't be read: the window will tell why.
VDocPage* firstPage(VDoc& doc) {
  VDocPage* page = nullptr;
  failureOf([&] { page = doc.GetPage(1, 0); });
  return page;
}

}  // namespace

extern "C" __attribute__((visibility("default"))) void qorRunPreview(VDoc& doc,
                                                                     void (*loadSettings)(VDoc&)) {
  Desktop desktop;
  QtUserSettings settings;
  TfrmView window(settings, {});
  loadSettings(doc);
  const MessageSink messages([&window](MessageKind kind, std::string_view text) {
    window.showMessage(kind, qtText(text));
  });
  window.SetDocument(&doc, firstPage(doc));
  window.show();
  desktop.run();
  window.SetDocument(nullptr, nullptr);
}

}  // namespace qor
