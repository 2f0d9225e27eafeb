// Building lines.
#include "document/vdocstr.h"

#include <algorithm>

#include "base/units.h"
#include "document/vcommand.h"

namespace qor {

VData_Text& EmptyTexts::of(const SharedFont& font) {
  if (last_ == nullptr || &*last_->Font != &*font) {
    auto& text = texts_[&*font];
    if (!text) text = std::make_unique<VData_Text>("", font);
    last_ = text.get();
  }
  return *last_;
}

void EmptyTexts::clear() {
  last_ = nullptr;
  texts_.clear();
}

VDocStr::VDocStr(std::string_view text, VCommand& commands, EmptyTexts& empty)
    : is_empty_(text.empty()) {
  if (is_empty_) {
    FirstItem = LastItem = &empty.of(commands.sharedFont());
    RowHeight = std::max(0, twipsFromRowUnits(commands.runningFont().RowHeight));
  }
  for (LineCursor cursor(text); !cursor.atEnd() && !commands.excess();)
    AddItem(commands.NextItem(cursor));
}

VDocStr::~VDocStr() {
  if (!is_empty_) deleteChain<&VData::NextItem>(FirstItem);
  deleteChain<&VDocStr::Next>(Next);
}

void VDocStr::AddItem(std::unique_ptr<VData> item) {
  if (!item) return;
  VData*& link = LastItem == nullptr ? FirstItem : LastItem->NextItem;
  link = LastItem = item.release();
}

}  // namespace qor
