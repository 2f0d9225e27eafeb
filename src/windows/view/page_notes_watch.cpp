// Looking closer at pages.
#include "windows/view/page_notes_watch.h"

#include <QTimer>

#include "document/vdoc.h"
#include "platform/qt/qt_text.h"
#include "window_model/page_notes.h"
#include "window_model/preview_texts.h"
#include "windows/failure_text.h"
#include "windows/view/gap_reader.h"
#include "windows/view/note_bar.h"
#include "windows/view/page_show.h"
#include "windows/view/view_desk.h"

namespace qor {

PageNotesWatch::PageNotesWatch(ViewDesk& desk, PageShow& pages)
    : desk_(desk), pages_(pages), bar_(new NoteBar(desk.ui.form)), gap_(new GapReader(this)) {
  desk.ui.rows->insertWidget(1, bar_);
  connect(gap_, &GapReader::startsChanged, this, &PageNotesWatch::pageWanted);
  connect(desk.page_control, &VPage::drawn, this, [this] { seen_ = true; });
  desk.status.onClick([this] { stBarMessageClick(); });
}

// The page is on view by then, which must not wait for it.
void PageNotesWatch::lookCloser() {
  gap_->watch(*pages_.document(), desk_.cursor.firstOnView(), desk_.cursor.lastOnView());
  QTimer::singleShot(0, this, &PageNotesWatch::tellNotes);
}

void PageNotesWatch::stop() {
  gap_->stop();
}

// What belongs to the report stands above its pages, what belongs to a page in the status bar.
void PageNotesWatch::tellNotes() {
  VDocPage* page = pages_.loadedPage();
  if (page == nullptr) return;
  QString report;
  PageNotes notes;
  failureOf([&] {
    const TextKind kind = kindOfFirstPage(*pages_.document());
    report = qtText(reportNote(*pages_.document(), kind));
    notes = notesOf(*page);
    // No code page of one byte a character helps there.
    if (kind.utf8) notes.lettersLeftOut = 0;
  });
  bar_->tell(report);
  // A wide view shows all, and small pages are not to be read.
  if (desk_.state.PreviewType == kWideView || desk_.cursor.showsSeveral()) notes.overflow = {};
  overflows_ = false;
  if (!desk_.status.message().isEmpty()) return;
  overflows_ = notes.hasOverflow();
  desk_.status.setMessage(qtText(textOf(notes)));
  desk_.status.setClickable(overflows_);
}

// A click on what tells of text outside the sheet shows that text.
void PageNotesWatch::stBarMessageClick() {
  if (overflows_) emit wideViewWanted();
}

bool PageNotesWatch::hasShownReport() const {
  return seen_ && desk_.growth.isThere();
}

void PageNotesWatch::mnuCodePageClick(int codePage) {
  VDoc* doc = pages_.document();
  if (doc == nullptr) return;
  doc->Settings.Page.BaseCodePage = codePage;
  doc->ForgetFonts();
  pages_.dropFirstPage();
  pages_.ShowPage();
}

void PageNotesWatch::retranslate() {
  bar_->setCloseText(qtText(previewTexts().close));
}

}  // namespace qor
