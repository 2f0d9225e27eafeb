// The rows of the keys.
#include "windows/view/key_table.h"

#include <QKeyEvent>
#include <QKeySequence>

#include "platform/qt/qt_text.h"
#include "platform/system/companion.h"
#include "window_model/preview_texts.h"
#include "windows/view/command_table.h"
#include "windows/view/tfrm_view.h"
#include "windows/view/view_desk.h"
#include "windows/view/view_parts.h"

namespace qor {
namespace {

using Form = TfrmView;
using Texts = PreviewTexts;

constexpr auto kCtrl = Qt::ControlModifier;
constexpr auto kShift = Qt::ShiftModifier;
constexpr Qt::KeyboardModifiers kNone = Qt::NoModifier;

constexpr const char* kCalculator = "QorUtlCalc";
constexpr int kFar = 8;  // steps of a bar with Ctrl

template <PageMove move>
void leap(Form& form) {
  form.parts().turner.leap(move);
}

template <PageSide side>
void scrollTo(Form& form) {
  form.parts().turner.scrollTo(side);
}

template <int steps>
void walk(Form& form) {
  form.parts().turner.scrollVertically(steps);
}

template <int steps>
void slide(Form& form) {
  form.parts().turner.scrollHorizontally(steps);
}

template <int direction>
void zoomInList(Form& form) {
  form.parts().zoom.zoomInList(direction);
}

void showPopup(Form& form) {
  form.parts().menu->popup(form.parts().desk->ui.pScroll->rect().center());
}

void startCalculator(Form& form) {
  if (!startCompanion(kCalculator))
    form.parts().desk->status.setMessage(kCalculator + qtText(previewTexts().companionMissing));
}

constexpr KeyRow kKeys[] = {
    {{Qt::Key_PageUp, kCtrl}, &Texts::keyLeapBack, leap<PageMove::previous>},
    {{Qt::Key_PageDown, kCtrl}, &Texts::keyLeapOn, leap<PageMove::next>},
    {{Qt::Key_Home, kNone, kCtrl | kShift}, &Texts::keyTop, scrollTo<PageSide::top>},
    {{Qt::Key_End, kNone, kCtrl | kShift}, &Texts::keyEnd, scrollTo<PageSide::bottom>},
    {{Qt::Key_Home, kShift, kCtrl}, &Texts::keyLeftEnd, scrollTo<PageSide::left>},
    {{Qt::Key_End, kShift, kCtrl}, &Texts::keyRightEnd, scrollTo<PageSide::right>},
    {{Qt::Key_Up, kNone, kCtrl}, &Texts::keyUp, walk<-1>},
    {{Qt::Key_Down, kNone, kCtrl}, &Texts::keyDown, walk<1>},
    {{Qt::Key_Left, kNone, kCtrl}, &Texts::keyLeft, slide<-1>},
    {{Qt::Key_Right, kNone, kCtrl}, &Texts::keyRight, slide<1>},
    {{Qt::Key_Up, kCtrl}, &Texts::keyFarUp, walk<-kFar>},
    {{Qt::Key_Down, kCtrl}, &Texts::keyFarDown, walk<kFar>},
    {{Qt::Key_Left, kCtrl}, &Texts::keyFarLeft, slide<-kFar>},
    {{Qt::Key_Right, kCtrl}, &Texts::keyFarRight, slide<kFar>},
    {{Qt::Key_Plus, kNone, kCtrl}, &Texts::keyZoomAbove, zoomInList<1>},
    {{Qt::Key_Minus, kNone, kCtrl}, &Texts::keyZoomBelow, zoomInList<-1>},
    {{Qt::Key_F10, kShift}, &Texts::keyMenu, showPopup},
    {{Qt::Key_F9, kShift}, &Texts::keyCalculator, startCalculator}};

}  // namespace

bool KeyUse::fits(const QKeyEvent& event) const {
  return event.key() == key && (event.modifiers() & with) == with &&
         (event.modifiers() & without) == Qt::NoModifier;
}

QString KeyUse::text() const {
  return QKeySequence(QKeyCombination(with, key)).toString(QKeySequence::PortableText);
}

std::span<const KeyRow> keyTable() {
  return kKeys;
}

KeyAction actionOfKey(const QKeyEvent& event) {
  for (const CommandRow& row : commandTable()) {
    for (const KeyUse& key : row.keys) {
      if (key.fits(event)) return row.runByKey != nullptr ? row.runByKey : row.run;
    }
  }
  for (const KeyRow& row : kKeys) {
    if (row.key.fits(event)) return row.run;
  }
  return nullptr;
}

}  // namespace qor
