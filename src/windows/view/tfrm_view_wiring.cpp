// How the parts of the window work together.
#include <QKeyEvent>
#include <QTimer>

#include "document/vdoc.h"
#include "platform/qt/qt_text.h"
#include "platform/system/failure.h"
#include "windows/failure_text.h"
#include "windows/view/focus_keys.h"
#include "windows/view/key_table.h"
#include "windows/view/tfrm_view.h"
#include "windows/view/view_desk.h"
#include "windows/view/view_parts.h"

namespace qor {

void TfrmView::run(const std::function<void()>& command) {
  try {
    command();
  } catch (...) {
    const Failure failure = caughtFailure();
    failureOf([this] { ShowPage(); });
    updateCommands();
    if (!failure.wasTold()) showMessage(MessageKind::error, qtText(failure.text));
  }
  if (close_wanted_) close();
}

void TfrmView::run(void (*command)(TfrmView&)) {
  run([this, command] { command(*this); });
}

// Pages are changed once the control that asks for it has done with its event.
void TfrmView::connectPages() {
  ViewParts& parts = *parts_;
  VPage* pages = parts.desk->page_control;
  PageScroll* area = parts.desk->ui.pScroll;
  connect(pages, &VPage::laidOut, area, &PageScroll::putControl);
  connect(
      pages, &VPage::pageClicked, this,
      [this, &parts](int number) { run([&] { parts.turner.markPage(number); }); },
      Qt::QueuedConnection);
  connect(
      pages, &VPage::pageDoubleClicked, this,
      [this, &parts](int number) {
        run([&] {
          parts.turner.markPage(number);
          parts.switches.rbMultiPageViewClick(false);
        });
      },
      Qt::QueuedConnection);
  connect(pages, &VPage::drawingFailed, this,
          [&parts](const QString& reason) { parts.desk->status.setMessage(reason); });
  connect(area, &PageScroll::resized, this, [this] { run([this] { FormResize(); }); });
  connect(area, &PageScroll::wheelZoomed, this, [this, &parts](int direction, const QPoint& seen) {
    run([&] { parts.zoom.zoomFromView(direction, seen); });
  });
  connect(area, &PageScroll::wheelBeyondEnd, this,
          [this, &parts](int direction) { run([&] { parts.turner.turnPage(direction); }); });
  const ViewDesk& desk = *parts.desk;
  connect(desk.ui.cmbZoom, &QComboBox::activated, this,
          [this, &parts] { run([&] { parts.zoom.cmbZoomChange(); }); });
  connect(desk.ui.txtZoom, &QLineEdit::returnPressed, this,
          [this, &parts] { run([&] { parts.scale.ShowPageScale(); }); });
  connect(desk.ui.UpDown1, &QScrollBar::valueChanged, this,
          [this, &parts] { run([&] { parts.scale.UpDown1Click(); }); });
}

void TfrmView::connectParts() {
  ViewParts& parts = *parts_;
  const auto tellOfPage = [&parts] {
    parts.pageStatus.tellFileState();
    parts.notes.lookCloser();
  };
  connect(&parts.pages, &PageShow::aboutToShow, this, [this, &parts] {
    parts.pageStatus.startPage();
    updateCommands();
  });
  connect(&parts.pages, &PageShow::roomCounted, this, &TfrmView::updateCommands);
  connect(&parts.pages, &PageShow::pageShown, this, tellOfPage);
  connect(&parts.pages, &PageShow::shown, this, [&parts] {
    parts.pageStatus.describeView();
    parts.pageNews.tellPage();
    parts.lines.rebuild();
    parts.textTool.showPointer();
    parts.selection.followPage();
  });
  connect(&parts.selection, &PageSelection::changed, this, &TfrmView::updateCommands);
  connect(&parts.textTool, &TextTool::toggled, this, &TfrmView::updateCommands);
  connect(parts.desk->ui.pScroll->verticalScrollBar(), &QScrollBar::valueChanged, &parts.lines,
          &AlignmentLines::rebuild);
  connect(&parts.switches, &ViewSwitches::kindChanged, &parts.lines, &AlignmentLines::nearToTop);
  connect(&parts.lines, &AlignmentLines::toggled, this, &TfrmView::updateCommands);
  connect(&parts.lines, &AlignmentLines::left, this,
          [&parts] { parts.desk->ui.pScroll->setFocus(); });
  connect(&parts.turner, &PageTurner::moved, this, &TfrmView::cmbPagesChange);
  connect(&parts.turner, &PageTurner::marked, this, &TfrmView::tellMarked);
  const auto goTo = [this, &parts](int number) { run([&] { parts.turner.goToPage(number); }); };
  connect(&parts.number, &PageNumberEdit::pageChosen, this, goTo);
  connect(&parts.list, &PageListPane::pageChosen, this, goTo);
  connect(&parts.find, &FindPanel::pageWanted, this, [this, &parts](int number) {
    run([&] {
      parts.turner.showPage(number);
      parts.find.scrollToPresent();
    });
  });
  connect(&parts.zoom, &PageZoom::pageWanted, this, &TfrmView::ShowPage);
  connect(&parts.zoom, &PageZoom::stateChanged, this, &TfrmView::keepState);
  connect(&parts.switches, &ViewSwitches::stateChanged, this, &TfrmView::keepState);
  connect(&parts.notes, &PageNotesWatch::pageWanted, this, [this] { run([this] { ShowPage(); }); });
  connect(&parts.notes, &PageNotesWatch::wideViewWanted, this,
          [this, &parts] { run([&] { parts.switches.cmdView_SetPreviewTypeClick(kWideView); }); });
  connect(&parts.forms, &FormCalls::stateChanged, this, &TfrmView::keepState);
  connect(&parts.forms, &FormCalls::told, this,
          [&parts](const QString& message) { parts.desk->status.setMessage(message); });
  const auto tellFailure = [this](const QString& reason) {
    showMessage(MessageKind::error, reason);
  };
  connect(&parts.forms, &FormCalls::failed, this, tellFailure);
  connect(&parts.opening, &ReportOpening::failed, this, tellFailure);
  connect(&parts.forms, &FormCalls::pagesIndexed, this, [this, &parts] {
    showTotal();
    parts.list.fill();
    cmbPagesChange();
    parts.find.finder().restart();
  });
  connect(&parts.forms, &FormCalls::viewKept, this, [&parts, tellOfPage] {
    parts.pageStatus.startPage();
    tellOfPage();
    parts.selection.followPage();
  });
}

void TfrmView::connectMenu() {
  ViewParts& parts = *parts_;
  const ViewMenu* menu = parts.menu.get();
  connect(menu, &ViewMenu::zoomChosen, this,
          [this, &parts](int entry) { run([&] { parts.zoom.mnuZoomListClick(entry); }); });
  connect(menu, &ViewMenu::codePageChosen, this,
          [this, &parts](int codePage) { run([&] { parts.notes.mnuCodePageClick(codePage); }); });
  connect(menu, &ViewMenu::recentChosen, this,
          [this, &parts](const std::string& path) { run([&] { parts.opening.open({path}); }); });
  connect(menu, &ViewMenu::languageChosen, this,
          [this](const Language& language) { run([&] { chooseLanguage(language); }); });
  PageScroll* area = parts.desk->ui.pScroll;
  area->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(area, &QWidget::customContextMenuRequested, this,
          [this, &parts](const QPoint& spot) { run([&] { parts.menu->popup(spot); }); });
}

void TfrmView::updateCommands() {
  parts_->tools->update();
  parts_->menu->update();
}

void TfrmView::cmbPagesChange() {
  PageCursor& cursor = parts_->desk->cursor;
  cursor.goTo(cursor.current());
  parts_->number.showCurrent();
  parts_->list.select();
  ShowPage();
}

// Another one of the pages on view is the current one.
void TfrmView::tellMarked() {
  parts_->number.showCurrent();
  parts_->list.select();
  parts_->pageStatus.tellNumber();
  parts_->pageStatus.describeView();
  parts_->pageNews.tellPage();
  updateCommands();
}

void TfrmView::showTotal() {
  parts_->pages.countPages();
  parts_->number.showTotal();
}

void TfrmView::TimerDynamicBlincTimer() {
  if (parts_->desk->busy) return;
  GrowthWatch& growth = parts_->desk->growth;
  VDoc* doc = parts_->pages.document();
  const QString failure = failureOf([&] {
    const Growth grown = growth.tick(doc);
    if (grown == Growth::complete) TimerDynamicBlinc_->stop();
    if (grown != Growth::none) followGrowth();
  });
  if (!failure.isNull()) {
    parts_->pages.forget();
    parts_->notes.stop();
    doc->Clear();
    run([this] { followGrowth(); });
    showMessage(MessageKind::error, failure);
  }
  parts_->number.setBlinking(growth.blinks());
}

// The page on show stays; the first one appears by itself.
void TfrmView::followGrowth() {
  ViewParts& parts = *parts_;
  const PageCursor& cursor = parts.desk->cursor;
  showTotal();
  if (cursor.current() > cursor.total()) {
    parts.pages.forget();
    cmbPagesChange();
  } else if (!parts.desk->page_control->showsPages()) {
    cmbPagesChange();
  }
  parts.pageStatus.tellNumber();
  parts.pageStatus.describeView();
  updateCommands();
  parts.list.fill();
  parts.find.finder().follow();
}

// True if the key was one of the window's: nobody else gets it then.
bool TfrmView::FormKeyDown(const QKeyEvent& event) {
  if (focusKeeps(event)) return false;
  if (parts_->textTool.takesKey(event)) return true;
  const KeyAction action = actionOfKey(event);
  if (action == nullptr) return false;
  run(action);
  return true;
}

}  // namespace qor
