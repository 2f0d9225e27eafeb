// The life of the window: made, shown, closed.
#include "windows/view/tfrm_view.h"

#include <QCloseEvent>
#include <QListView>
#include <QScreen>
#include <QStyle>
#include <QTimer>
#include <QWindow>

#include "base/app_options.h"
#include "base/interface_texts.h"
#include "base/text.h"
#include "document/vdoc.h"
#include "platform/qt/qt_text.h"
#include "platform/system/owner_notice.h"
#include "platform/system/user_settings.h"
#include "ui_tfrm_view.h"
#include "window_model/file_dates.h"
#include "window_model/owner_number.h"
#include "window_model/preview_texts.h"
#include "windows/tqor_image_form.h"
#include "windows/view/gap_reader.h"
#include "windows/view/note_bar.h"
#include "windows/view/page_list_model.h"
#include "windows/view/page_scroll.h"
#include "windows/view/passing_hint.h"
#include "windows/view/size_line.h"
#include "windows/view/view_menu.h"
#include "windows/view/vpage.h"

namespace qor {
namespace {

constexpr QSize kSize = {1000, 760};  // pixels, on a screen that has them
constexpr int kFrame = 8;             // around a window, besides its title
constexpr int kBlinkInterval = 1700;  // ms
constexpr int kListWidth = 150;       // pixels
constexpr int kSmallestList = 60;
constexpr int kLargestList = 600;

std::unique_ptr<Ui::TfrmView> createForm(QMainWindow* window) {
  auto form = std::make_unique<Ui::TfrmView>();
  form->setupUi(window);
  return form;
}

}  // namespace

TfrmView::TfrmView(UserSettings& settings, ViewCommands commands)
    : ui_(createForm(this)),
      settings_(settings),
      commands_(std::move(commands)),
      page_control_(new VPage(this)),
      pageList_(new PageListModel(this)),
      status_(*ui_->stBar),
      hint_(new PassingHint(ui_->pScroll)),
      notes_(new NoteBar(ui_->form)),
      TimerDynamicBlinc_(new QTimer(this)),
      gap_(new GapReader(this)) {
  setWindowIcon(TQorImageForm::ImageMenuList(ImageIndex::program, IconPlace::button));
  const int title = style()->pixelMetric(QStyle::PM_TitleBarHeight) + kFrame;
  resize(kSize.boundedTo(screen()->availableSize() - QSize(kFrame, title)));
  page_control_->setObjectName("page_control");
  ui_->rows->insertWidget(1, notes_);
  ui_->pScroll->setControl(page_control_);
  ui_->lstPages->setModel(pageList_);
  ui_->lstPages->setFixedWidth(kListWidth);
  ui_->pSizeLine->setSized(ui_->lstPages, kSmallestList, kLargestList);
  createMenu();
  connectTools();
  connectEdits();
  connectPages();
  connect(TimerDynamicBlinc_, &QTimer::timeout, this, &TfrmView::TimerDynamicBlincTimer);
  if (!AppOptions.DynamicMode) return;
  growth_.follow();
  TimerDynamicBlinc_->start(kBlinkInterval);
}

TfrmView::~TfrmView() {
  if (!shown_) return;
  storeViewState(state_, settings_);
  if (!settings_.save())
    writeErrorLine(settings_.place() + ": the settings of the window can't be written");
}

void TfrmView::SetDocument(VDoc* doc, VDocPage* page) {
  doc_ = doc;
  page_ = page;
  cursor_.setTotal(doc == nullptr ? 0 : doc->PageCount);
  firstPageShown_ = false;
  if (page == nullptr) page_control_->usePage(nullptr);
  gap_->stop();
}

void TfrmView::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  if (std::exchange(shown_, true)) return;
  // The window sees each key before the control that has the focus.
  windowHandle()->installEventFilter(this);
  FormShow();
}

void TfrmView::FormShow() {
  state_ = stored_ = loadViewState(settings_);
  applyFullWindow();
  ui_->cmbZoom->setCurrentIndex(state_.ZoomID);
  showCurrentPage();
  setPageTotal(cursor_.total());
  growth_.noteFile();
  showDates();
  applyCaptions();
  cmdView_SetListViewClick();
  rbMultiPageViewClick(state_.MultipageView);
  cmdView_SetPreviewTypeClick(state_.PreviewType);
  if (!settings_.isUsable())
    standingMessage_ = qtText(previewTexts().stateNotRead) + qtText(settings_.place());
  ready_ = true;
  cmbPagesChange();
  ui_->pScroll->setFocus();
}

void TfrmView::showDates() {
  const auto times = fileTimes(AppOptions.FileName);
  if (!times) return;
  const int bias = timeZoneBias();
  status_.setDates(qtText(fileDateText(times->created, bias)) + "   " +
                   qtText(fileDateText(times->modified, bias)));
}

void TfrmView::closeEvent(QCloseEvent* event) {
  FormClose();
  QMainWindow::closeEvent(event);
}

void TfrmView::FormClose() {
  if (std::exchange(closed_, true)) return;
  TimerDynamicBlinc_->stop();
  growth_.stop();
  const std::int32_t number = ownerNumber(AppOptions.FileName);
  if (AppOptions.OwnerWindow != 0 && number != 0)
    notifyOwner(AppOptions.OwnerWindow, kViewerClosed, number);
}

// Moves count anew how many pages there is room for.
void TfrmView::FormResize() {
  cursor_.countAnew();
  ShowPage();
  centreErrorBox();
}

// The window manager places a window while it is shown, and boxes stay over it.
void TfrmView::moveEvent(QMoveEvent* event) {
  QMainWindow::moveEvent(event);
  centreErrorBox();
}

void TfrmView::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  // The controls in the window learn of their colours after it.
  if (event->type() == QEvent::PaletteChange) QTimer::singleShot(0, this, &TfrmView::ShowPage);
}

}  // namespace qor
