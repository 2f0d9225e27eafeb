// The rows of the commands.
#include "windows/view/command_table.h"

#include "window_model/preview_texts.h"
#include "windows/selection/page_picture.h"
#include "windows/start/key_help.h"
#include "windows/view/tfrm_view.h"
#include "windows/view/view_desk.h"
#include "windows/view/view_parts.h"

namespace qor {
namespace {

using Form = TfrmView;
using Texts = PreviewTexts;

constexpr auto kCtrl = Qt::ControlModifier;
constexpr auto kShift = Qt::ShiftModifier;

template <PageMove move>
bool leads(const Form& form) {
  return form.parts().desk->cursor.leads(move);
}

template <PageMove move>
void moveTo(Form& form) {
  form.parts().turner.cmdView_PageMoveTo(move);
}

template <PageMove move, PageSide side>
void moveToSide(Form& form) {
  moveTo<move>(form);
  form.parts().turner.scrollTo(side);
}

template <bool several>
bool showsSeveral(const Form& form) {
  return form.parts().desk->state.MultipageView == several;
}

template <PreviewKind kind>
bool isKind(const Form& form) {
  return form.parts().desk->state.PreviewType == kind;
}

template <bool ViewState::*flag>
bool isSet(const Form& form) {
  return form.parts().desk->state.*flag;
}

// Commands of forms that nobody offers are there and off.
template <auto form>
bool isOffered(const Form& window) {
  return static_cast<bool>(window.parts().forms.offered().*form);
}

template <LineKind kind>
bool showsLine(const Form& form) {
  return form.parts().lines.isShown(kind);
}

template <int direction>
void findOn(Form& form) {
  form.parts().find.move(direction);
}

// A page whose text and picture can be copied.
bool showsOne(const Form& form) {
  return hasPagePicture(*form.parts().desk, form.parts().pages);
}

void escape(Form& form) {
  PageNumberEdit& number = form.parts().number;
  if (number.isVisible()) return number.cancel();
  if (!form.parts().find.close()) form.close();
}

constexpr CommandRow kCommands[] = {
    {.id = "mnuOpen",
     .text = &Texts::openReport,
     .image = ImageIndex::open,
     .keys = {{{Qt::Key_O, kCtrl}}},
     .endsGroup = true,
     .run = [](Form& form) { form.parts().opening.mnuOpenClick(); }},
    {.id = "mnuFind",
     .text = &Texts::find,
     .image = ImageIndex::find,
     .button = {"cmdView_Find", "linePages"},
     .keys = {{{Qt::Key_F, kCtrl}}},
     .run = [](Form& form) { form.parts().find.mnuFindClick(); }},
    {.id = "mnuFindNext",
     .text = &Texts::findNext,
     .image = ImageIndex::next,
     .keys = {{{Qt::Key_F3, {}, kShift}}},
     .run = findOn<1>},
    {.id = "mnuFindPrevious",
     .text = &Texts::findPrevious,
     .image = ImageIndex::previous,
     .keys = {{{Qt::Key_F3, kShift}}},
     .endsGroup = true,
     .run = findOn<-1>},
    {.id = "mnuFirst",
     .text = &Texts::firstPage,
     .image = ImageIndex::first,
     .button = {"cmdView_First", "lblPageCurrent"},
     .keys = {{{Qt::Key_Home, kCtrl}}},
     .enabledWhen = leads<PageMove::first>,
     .run = moveTo<PageMove::first>,
     .runByKey = moveToSide<PageMove::first, PageSide::top>},
    {.id = "mnuPrev",
     .text = &Texts::previousPage,
     .image = ImageIndex::previous,
     .button = {"cmdView_Prev", "lblPageCurrent"},
     .keys = {{{Qt::Key_PageUp, {}, kCtrl}}},
     .enabledWhen = leads<PageMove::previous>,
     .run = moveTo<PageMove::previous>},
    {.id = "mnuNext",
     .text = &Texts::nextPage,
     .image = ImageIndex::next,
     .button = {"cmdView_Next", "lineMoves"},
     .keys = {{{Qt::Key_PageDown, {}, kCtrl}}},
     .enabledWhen = leads<PageMove::next>,
     .run = moveTo<PageMove::next>},
    {.id = "mnuLast",
     .text = &Texts::lastPage,
     .image = ImageIndex::last,
     .button = {"cmdView_Last", "lineMoves"},
     .keys = {{{Qt::Key_End, kCtrl}}},
     .endsGroup = true,
     .enabledWhen = leads<PageMove::last>,
     .run = moveTo<PageMove::last>,
     .runByKey = moveToSide<PageMove::last, PageSide::bottom>},
    {.id = "mnuZoomPlus",
     .text = &Texts::zoomIn,
     .image = ImageIndex::zoomIn,
     .button = {"cmdView_ZoomIn", "lineZoom"},
     // Ctrl+= is the plus of many keyboards, without Shift.
     .keys = {{{Qt::Key_Plus, kCtrl}, {Qt::Key_Equal, kCtrl}}},
     .run = [](Form& form) { form.parts().zoom.cmdView_ZoomInClick(); }},
    {.id = "mnuZoomMinus",
     .text = &Texts::zoomOut,
     .image = ImageIndex::zoomOut,
     .button = {"cmdView_ZoomOut", "cmbZoom"},
     .keys = {{{Qt::Key_Minus, kCtrl}}},
     .run = [](Form& form) { form.parts().zoom.cmdView_ZoomOutClick(); }},
    {.id = "mnuActualSize",
     .text = &Texts::actualSize,
     .image = ImageIndex::actualSize,
     .keys = {{{Qt::Key_0, kCtrl}}},
     .run = [](Form& form) { form.parts().zoom.mnuActualSizeClick(); }},
    {.id = "mnuFitWidth",
     .text = &Texts::fitWidth,
     .image = ImageIndex::fitWidth,
     .keys = {{{Qt::Key_1, kCtrl}}},
     .run = [](Form& form) { form.parts().zoom.mnuFitWidthClick(); }},
    {.id = "mnuFitPage",
     .text = &Texts::fitPage,
     .image = ImageIndex::fitPage,
     .keys = {{{Qt::Key_2, kCtrl}}},
     .endsGroup = true,
     .run = [](Form& form) { form.parts().zoom.mnuFitPageClick(); }},
    {.id = "mnuTextTool",
     .text = &Texts::textTool,
     .image = ImageIndex::textTool,
     .button = {"cmdView_TextTool", "lineZoom"},
     .keys = {{{Qt::Key_T, kCtrl}}},
     .checkedWhen = [](const Form& form) { return form.parts().textTool.isChosen(); },
     .run = [](Form& form) { form.parts().textTool.mnuTextToolClick(); }},
    {.id = "mnuSelectPage",
     .text = &Texts::selectPage,
     .image = ImageIndex::selectPage,
     .keys = {{{Qt::Key_A, kCtrl}}},
     .enabledWhen = showsOne,
     .run = [](Form& form) { form.parts().selection.mnuSelectPageClick(); }},
    {.id = "mnuCopy",
     .text = &Texts::copyText,
     .image = ImageIndex::copyText,
     .keys = {{{Qt::Key_C, kCtrl}}},
     .enabledWhen = [](const Form& form) { return !form.parts().selection.isEmpty(); },
     .run = [](Form& form) { form.parts().selection.mnuCopyClick(); }},
    {.id = "mnuCopyPicture",
     .text = &Texts::copyPicture,
     .image = ImageIndex::copyPicture,
     .endsGroup = true,
     .enabledWhen = showsOne,
     .run = [](Form& form) { mnuCopyPictureClick(*form.parts().desk, form.parts().pages); }},
    {.id = "mnuSinglePage",
     .text = &Texts::singlePage,
     .image = ImageIndex::singlePage,
     .button = {"cmdView_SinglePage", "linePages"},
     .oneOf = OneOf::pages,
     .checkedWhen = showsSeveral<false>,
     .run = [](Form& form) { form.parts().switches.rbMultiPageViewClick(false); }},
    {.id = "mnuMultiPage",
     .text = &Texts::multiPage,
     .image = ImageIndex::multiPage,
     .button = {"cmdView_MultiPage", "linePages"},
     .oneOf = OneOf::pages,
     .checkedWhen = showsSeveral<true>,
     .run = [](Form& form) { form.parts().switches.rbMultiPageViewClick(true); }},
    {.id = "mnuNormalView",
     .text = &Texts::normalView,
     .image = ImageIndex::normalView,
     .button = {"cmdView_NormalView", "lineViews"},
     .oneOf = OneOf::views,
     .checkedWhen = isKind<kNormalView>,
     .run = [](Form& form) { form.parts().switches.cmdView_SetPreviewTypeClick(kNormalView); }},
    {.id = "mnuWideView",
     .text = &Texts::wideView,
     .image = ImageIndex::wideView,
     .button = {"cmdView_WideView", "lineViews"},
     .oneOf = OneOf::views,
     .endsGroup = true,
     .checkedWhen = isKind<kWideView>,
     .run = [](Form& form) { form.parts().switches.cmdView_SetPreviewTypeClick(kWideView); }},
    {.id = "mnuListView",
     .text = &Texts::pageList,
     .image = ImageIndex::pageList,
     .checkedWhen = isSet<&ViewState::ListView>,
     .run = [](Form& form) { form.parts().switches.mnuListViewClick(); }},
    {.id = "mnuUnprintable",
     .text = &Texts::unprintable,
     .image = ImageIndex::margins,
     .checkedWhen = isSet<&ViewState::ShowUnprintable>,
     .run = [](Form& form) { form.parts().switches.mnuUnprintableClick(); }},
    {.id = "mnuFullScreen",
     .text = &Texts::fullWindow,
     .image = ImageIndex::fullScreen,
     .keys = {{{Qt::Key_F11}}},
     .endsGroup = true,
     .checkedWhen = isSet<&ViewState::FlagFullWindow>,
     .run = [](Form& form) { form.parts().switches.mnuFullScreenClick(); }},
    {.id = "mnuRowLine",
     .text = &Texts::showRowLine,
     .image = ImageIndex::alignmentLine,
     .otherText = &Texts::hideRowLine,
     .otherTextWhen = showsLine<LineKind::row>,
     .keys = {{{Qt::Key_R, kCtrl}}},
     .hidden = true,
     .run = [](Form& form) { form.parts().lines.mnuRowLineClick(); }},
    {.id = "mnuShapeLine",
     .text = &Texts::showShapeLine,
     .image = ImageIndex::alignmentLine,
     .otherText = &Texts::hideShapeLine,
     .otherTextWhen = showsLine<LineKind::shape>,
     .keys = {{{Qt::Key_L, kCtrl}}},
     .run = [](Form& form) { form.parts().lines.mnuShapeLineClick(); }},
    {.id = "mnuProperties",
     .text = &Texts::lineProperties,
     .image = ImageIndex::properties,
     .endsGroup = true,
     .enabledWhen = [](const Form& form) { return form.parts().lines.isAnyShown(); },
     .run = [](Form& form) { form.parts().lines.mnuPropertiesClick(); }},
    {.id = "mnuSettings",
     .text = &Texts::settings,
     .image = ImageIndex::print,
     .button = {"cmdView_SetPrinter"},
     .keys = {{{Qt::Key_F4}}},
     .enabledWhen = isOffered<&ViewCommands::settings>,
     .run = [](Form& form) { form.parts().forms.cmdSettings_Click(); }},
    {.id = "mnuMail",
     .text = &Texts::mail,
     .image = ImageIndex::mail,
     .button = {"cmdView_Mail"},
     .keys = {{{Qt::Key_F5}}},
     .enabledWhen = isOffered<&ViewCommands::mail>,
     .run = [](Form& form) { form.parts().forms.cmdView_MailClick(); }},
    {.id = "mnuConvert",
     .text = &Texts::convert,
     .image = ImageIndex::convert,
     .button = {"cmdView_Convert"},
     .keys = {{{Qt::Key_F6}}},
     .endsGroup = true,
     .enabledWhen = isOffered<&ViewCommands::convert>,
     .run = [](Form& form) { form.parts().forms.cmdView_ConvertClick(); }},
    {.id = "mnuHelp",
     .text = &Texts::keysAndGuide,
     .image = ImageIndex::help,
     .keys = {{{Qt::Key_F1}}},
     .run = [](Form& form) { showKeyHelp(form); }},
    {.id = "mnuClose",
     .text = &Texts::close,
     .image = ImageIndex::close,
     .button = {"cmdView_Esc", "lineClose"},
     .keys = {{{Qt::Key_Escape}}},
     .run = [](Form& form) { form.close(); },
     .runByKey = escape}};

}  // namespace

std::span<const CommandRow> commandTable() {
  return kCommands;
}

bool CommandRow::isOn(const TfrmView& form) const {
  return enabledWhen == nullptr || enabledWhen(form);
}

QString CommandRow::keyText() const {
  return keys[0].isNone() ? QString() : keys[0].text();
}

}  // namespace qor
