// Captions.
#include "windows/view/captions.h"

#include <QAbstractItemView>

#include "base/app_options.h"
#include "language/language.h"
#include "platform/qt/qt_text.h"
#include "window_model/preview_texts.h"
#include "windows/view/view_desk.h"

namespace qor {

void setTitleOf(QWidget& window) {
  const std::string& caption = AppOptions.WindowCaption;
  window.setWindowTitle(
      qtText(caption.empty() ? interfaceTexts().PreviewTitle : std::string_view(caption)));
}

void nameControls(const ViewDesk& desk) {
  const PreviewTexts& texts = previewTexts();
  const Ui::TfrmView& ui = desk.ui;
  const auto name = [](QWidget* control, std::string_view text) {
    control->setAccessibleName(qtText(text));
    control->setToolTip(qtText(text));
  };
  name(ui.cmbZoom, texts.zoom);
  ui.cmbZoom->view()->setAccessibleName(qtText(texts.zoom));
  name(ui.lblPageCurrent, texts.pageNumber);
  name(ui.txtPageCurrentEdit, texts.pageNumber);
  name(ui.lblPageTotal, texts.pageCount);
  name(ui.txtZoom, texts.scale);
  ui.lstPages->setAccessibleName(qtText(texts.pageList));
  ui.pTools->setAccessibleName(qtText(texts.reportMenu));
}

}  // namespace qor
