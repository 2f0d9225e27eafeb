// How pages are shown: kind of view, several at once, list of pages, what is hidden.
#include <QLineEdit>
#include <QListView>

#include "base/app_options.h"
#include "document/vdoc.h"
#include "platform/qt/qt_text.h"
#include "platform/system/user_settings.h"
#include "settings/print_scale.h"
#include "settings/printers.h"
#include "ui_tfrm_view.h"
#include "window_model/preview_texts.h"
#include "windows/view/page_scroll.h"
#include "windows/view/passing_hint.h"
#include "windows/view/size_line.h"
#include "windows/view/tfrm_view.h"
#include "windows/view/vpage.h"

namespace qor {

void TfrmView::cmdView_SetPreviewTypeClick(int type) {
  state_.PreviewType = type;
  ui_->cmdView_NormalView->setChecked(type == kNormalView);
  ui_->cmdView_WideView->setChecked(type == kWideView);
  ui_->pScroll->scrollToStart();
  openPrinterForView();
  ShowPage();
  ui_->txtZoom->setText("100");
  keepState();
}

// The printer as the page on view would fill its paper.
void TfrmView::openPrinterForView() {
  if (doc_ == nullptr) return;
  const VSet& settings = doc_->Settings;
  const ScaleQuestion question = {logicalDpiX(), zoomPercent(state_.ZoomID),
                                  settings.Scr.view_width};
  const std::int32_t scale =
      previewPrintScale(question, settings.Page, settings.Prn).value_or(doc_->PrintScale);
  openPrinter(scale, false);
}

void TfrmView::openPrinter(std::int32_t scale, bool flag) {
  doc_->PrintScale = scale;
  doc_->PrintScaleFlag = flag;
  UpdatePrintMetrics(AppOptions.PrinterName, doc_->Settings.Page, scale, flag);
}

void TfrmView::rbMultiPageViewClick(bool several) {
  state_.MultipageView = several;
  ui_->cmdView_SinglePage->setChecked(!several);
  ui_->cmdView_MultiPage->setChecked(several);
  if (several) cursor_.startWithCurrent();
  ui_->pScroll->scrollToStart();
  ShowPage();
  ui_->pScroll->scrollToStart();
  keepState();
}

void TfrmView::cmdView_SetListViewClick() {
  ui_->lstPages->setVisible(state_.ListView);
  ui_->pSizeLine->setVisible(state_.ListView);
  fillPageList();
  ShowPage();
  keepState();
}

void TfrmView::mnuListViewClick() {
  state_.ListView = !state_.ListView;
  cmdView_SetListViewClick();
}

void TfrmView::mnuUnprintableClick() {
  state_.ShowUnprintable = !state_.ShowUnprintable;
  ShowPage();
  keepState();
}

void TfrmView::mnuFullScreenClick() {
  state_.FlagFullWindow = !state_.FlagFullWindow;
  applyFullWindow();
  keepState();
}

void TfrmView::applyFullWindow() {
  ui_->pTools->setVisible(!state_.FlagFullWindow);
  ui_->stBar->setVisible(!state_.FlagFullWindow);
  hint_->hide();
  if (state_.FlagFullWindow) hint_->tell(qtText(previewTexts().leavesFullWindow));
}

// A run may end without a word; what its user chose is stored by then. Failures are told at the
// end.
void TfrmView::keepState() {
  if (!ready_ || state_ == stored_) return;
  stored_ = state_;
  storeViewState(state_, settings_);
  settings_.save();
}

}  // namespace qor
