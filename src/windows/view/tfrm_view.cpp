// The life of the window: made, shown, closed.
#include "windows/view/tfrm_view.h"

#include <QApplication>
#include <QDropEvent>
#include <QKeyEvent>
#include <QScreen>
#include <QStyle>
#include <QTimer>
#include <QWindow>

#include "base/app_options.h"
#include "document/vdoc.h"
#include "language/language.h"
#include "platform/qt/qt_language.h"
#include "platform/qt/qt_text.h"
#include "platform/system/owner_notice.h"
#include "platform/system/user_settings.h"
#include "window_model/owner_number.h"
#include "window_model/preview_texts.h"
#include "windows/failure_text.h"
#include "windows/tqor_image_form.h"
#include "windows/view/captions.h"
#include "windows/view/view_desk.h"
#include "windows/view/view_parts.h"

namespace qor {
namespace {

constexpr QSize kSize = {1000, 760};  // pixels, on a screen that has them
constexpr int kFrame = 8;             // around a window, besides its title
constexpr int kBlinkInterval = 1700;  // ms

}  // namespace

TfrmView::TfrmView(UserSettings& settings, ViewCommands commands)
    : settings_(settings),
      parts_(std::make_unique<ViewParts>(this, std::move(commands), settings)),
      TimerDynamicBlinc_(new QTimer(this)) {
  setAcceptDrops(true);
  setWindowIcon(TQorImageForm::ImageMenuList(ImageIndex::program, IconPlace::button));
  const int title = style()->pixelMetric(QStyle::PM_TitleBarHeight) + kFrame;
  resize(kSize.boundedTo(screen()->availableSize() - QSize(kFrame, title)));
  parts_->tools = std::make_unique<ViewTools>(*this);
  parts_->menu = std::make_unique<ViewMenu>(*this);
  connectPages();
  connectParts();
  connectMenu();
  connect(TimerDynamicBlinc_, &QTimer::timeout, this, &TfrmView::TimerDynamicBlincTimer);
  if (!AppOptions.DynamicMode) return;
  parts_->desk->growth.follow();
  TimerDynamicBlinc_->start(kBlinkInterval);
}

TfrmView::~TfrmView() {
  if (!shown_) return;
  storeViewState(parts_->desk->state, settings_);
  if (!settings_.save())
    writeErrorLine(settings_.location() + ": the settings of the window can't be written");
}

void TfrmView::SetDocument(VDoc* doc, VDocPage* page) {
  parts_->find.finder().stop();
  parts_->pages.setDocument(doc, page);
  parts_->notes.stop();
}

void TfrmView::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  if (std::exchange(shown_, true)) return;
  // The window sees each key before the control that has the focus.
  windowHandle()->installEventFilter(this);
  FormShow();
}

void TfrmView::FormShow() {
  ViewParts& parts = *parts_;
  ViewDesk& desk = *parts.desk;
  desk.state = stored_ = loadViewState(settings_);
  parts.switches.applyFullWindow();
  parts.zoom.applyState();
  parts.number.showCurrent();
  parts.number.showTotal();
  desk.growth.noteFile();
  parts.pageStatus.tellDates();
  applyCaptions();
  parts.switches.cmdView_SetListViewClick();
  parts.switches.rbMultiPageViewClick(desk.state.MultipageView);
  parts.switches.cmdView_SetPreviewTypeClick(desk.state.PreviewType);
  if (!settings_.isUsable())
    parts.pageStatus.setStandingMessage(qtText(previewTexts().stateNotRead) +
                                        qtText(settings_.location()));
  parts.pages.start();
  cmbPagesChange();
  const QString failure = failureOf([&parts] { parts.lines.FormShow(); });
  if (!failure.isNull()) desk.status.setMessage(failure);
  desk.ui.pScroll->setFocus();
}

void TfrmView::closeEvent(QCloseEvent* event) {
  close_wanted_ = parts_->desk->busy;
  if (close_wanted_) return event->ignore();
  FormClose();
  QMainWindow::closeEvent(event);
}

void TfrmView::FormClose() {
  if (std::exchange(closed_, true)) return;
  TimerDynamicBlinc_->stop();
  parts_->desk->growth.stop();
  const QString failure = failureOf([this] { parts_->lines.FormClose(); });
  if (!failure.isNull()) writeErrorLine(failure.toStdString());
  const std::int32_t number = ownerNumber(AppOptions.FileName);
  if (AppOptions.OwnerWindow != 0 && number != 0)
    notifyOwner(AppOptions.OwnerWindow, kViewerClosed, number);
}

// Moves count anew how many pages there is room for.
void TfrmView::FormResize() {
  parts_->desk->cursor.countAnew();
  ShowPage();
  parts_->errors.centre();
}

// The window manager places a window while it is shown, and boxes stay over it.
void TfrmView::moveEvent(QMoveEvent* event) {
  QMainWindow::moveEvent(event);
  parts_->errors.centre();
}

void TfrmView::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  // The controls in the window learn of their colours after it.
  if (event->type() == QEvent::PaletteChange)
    QTimer::singleShot(0, this, [this] { run([this] { ShowPage(); }); });
}

void TfrmView::dragEnterEvent(QDragEnterEvent* event) {
  if (ReportOpening::holdsFiles(*event->mimeData())) ReportOpening::acceptCopy(*event);
}

void TfrmView::dropEvent(QDropEvent* event) {
  ReportOpening::acceptCopy(*event);
  run([this, event] { parts_->opening.openDropped(*event->mimeData()); });
}

bool TfrmView::eventFilter(QObject* watched, QEvent* event) {
  if (watched != windowHandle()) return QMainWindow::eventFilter(watched, event);
  if (event->type() == QEvent::Expose) parts_->errors.windowIsOnScreen();
  // Keys for an open menu or list come by here, too.
  if (event->type() != QEvent::KeyPress || QApplication::activePopupWidget() != nullptr)
    return QMainWindow::eventFilter(watched, event);
  // A key that is to come again comes before this one.
  QCoreApplication::sendPostedEvents(watched, QEvent::KeyPress);
  return FormKeyDown(*static_cast<QKeyEvent*>(event));
}

void TfrmView::showMessage(MessageKind kind, const QString& text) {
  parts_->desk->status.setMessage(text);
  if (kind == MessageKind::error) parts_->errors.tell(text);
}

void TfrmView::ShowPage() {
  parts_->pages.ShowPage();
}

bool TfrmView::hasShownReport() const {
  return parts_->notes.hasShownReport();
}

const std::vector<std::string>& TfrmView::madeFiles() const {
  return parts_->desk->made;
}

void TfrmView::chooseLanguage(const Language& language) {
  // The report stays in the code page that it was opened with.
  const int documentCodePage = AppOptions.DocCodePage;
  selectLanguage(language);
  AppOptions.DocCodePage = documentCodePage;
  translateQt(language.id);
  applyCaptions();
  // ESC E brings back the character set of the interface.
  if (VDoc* doc = parts_->pages.document()) doc->ForgetFonts();
  ShowPage();
}

void TfrmView::applyCaptions() {
  setTitleOf(*this);
  nameControls(*parts_->desk);
  parts_->tools->retranslate();
  parts_->menu->retranslate();
  parts_->notes.retranslate();
  parts_->list.retranslate();
  parts_->find.retranslate();
  parts_->lines.rebuild();
}

// A run may end without a word; what its user chose is stored by then. Failures are told at the
// end.
void TfrmView::keepState() {
  updateCommands();
  const ViewState& state = parts_->desk->state;
  if (!parts_->pages.isStarted() || state == stored_) return;
  stored_ = state;
  storeViewState(state, settings_);
  settings_.save();
}

}  // namespace qor
