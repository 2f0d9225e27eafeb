// What the window finds out about pages once they are shown.
#include <QActionGroup>
#include <QTimer>

#include "document/vdoc.h"
#include "platform/qt/qt_text.h"
#include "window_model/page_notes.h"
#include "window_model/preview_texts.h"
#include "windows/failure_text.h"
#include "windows/view/gap_reader.h"
#include "windows/view/note_bar.h"
#include "windows/view/tfrm_view.h"
#include "windows/view/view_menu.h"
#include "windows/view/vpage.h"

namespace qor {

// Told after the page is on view, which must not wait for it.
void TfrmView::lookCloser() {
  gap_->watch(*doc_, cursor_.firstOnView(), cursor_.lastOnView());
  QTimer::singleShot(0, this, &TfrmView::tellNotes);
}

// What belongs to the report stands above its pages, what belongs to a page in the status bar.
void TfrmView::tellNotes() {
  if (page_ == nullptr || !page_->Loaded) return;
  QString report;
  PageNotes notes;
  failureOf([&] {
    const TextKind kind = kindOfFirstPage(*doc_);
    report = qtText(reportNote(*doc_, kind));
    notes = notesOf(*page_);
    // No code page of one byte a character helps there.
    if (kind.utf8) notes.lettersLeftOut = 0;
  });
  notes_->tell(report);
  // A wide view shows all, and small pages are not to be read.
  if (state_.PreviewType == kWideView || cursor_.showsSeveral()) notes.overflow = {};
  overflows_ = false;
  if (!status_.message().isEmpty()) return;
  overflows_ = notes.hasOverflow();
  status_.setMessage(qtText(textOf(notes)));
  status_.setClickable(overflows_);
}

// A click on what tells of text outside the sheet shows that text.
void TfrmView::stBarMessageClick() {
  if (overflows_) cmdView_SetPreviewTypeClick(kWideView);
}

// For this view, at once; no set is changed.
void TfrmView::mnuCodePageClick(int codePage) {
  if (doc_ == nullptr) return;
  doc_->Settings.Page.BaseCodePage = codePage;
  doc_->ForgetFonts();
  firstPageShown_ = true;
  ShowPage();
}

// The code page at hand is ticked; one that is not offered stands first.
void TfrmView::fillCodePageMenu() {
  QMenu& menu = *menu_->mnuCodePage;
  menu.clear();
  if (doc_ == nullptr) return;
  const int current = doc_->Settings.Page.BaseCodePage;
  std::vector<int> codePages = offeredCodePages();
  if (std::find(codePages.begin(), codePages.end(), current) == codePages.end())
    codePages.insert(codePages.begin(), current);
  for (const int codePage : codePages) {
    QAction* entry = menu.addAction(qtText(codePageName(codePage)));
    entry->setData(codePage);
    entry->setCheckable(true);
    entry->setChecked(codePage == current);
  }
}

bool TfrmView::hasShownReport() const {
  return seen_ && growth_.fileState() == FileState::asIndexed;
}

}  // namespace qor
