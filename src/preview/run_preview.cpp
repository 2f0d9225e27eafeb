// The preview as the program runs it.
#include "preview/run_preview.h"

#include "document/vdoc.h"
#include "platform/qt/desktop.h"
#include "platform/qt/qt_text.h"
#include "platform/qt/qt_user_settings.h"
#include "preview/tfrm_view.h"

namespace qor {
namespace {

// The first page, or none where it can't be read: the window tells why.
VDocPage* firstPage(VDoc& doc) {
  return doc.PageCount == 0 ? nullptr : doc.findPage(1);
}

}  // namespace

extern "C" __attribute__((visibility("default"))) bool qorRunPreview(VDoc& doc,
                                                                     void (*loadSettings)(VDoc&)) {
  Desktop desktop;
  QtUserSettings settings;
  TfrmView window(settings, {});
  setMessageSink([&window](MessageKind kind, std::string_view text) {
    window.showMessage(kind, qtText(text));
  });
  loadSettings(doc);
  window.SetDocument(&doc, firstPage(doc));
  window.show();
  desktop.run();
  window.SetDocument(nullptr, nullptr);
  setMessageSink({});
  return true;
}

}  // namespace qor
