// Building lines.
#include "document/vdocstr.h"

#include <algorithm>

#include "base/units.h"
#include "document/vcommand.h"

namespace qor {

VDocStr::VDocStr(std::string_view text, VCommand& commands) {
  if (text.empty()) {
    const FontState& font = commands.runningFont();
    AddItem(std::make_unique<VData_Text>("", &font));
    RowHeight = std::max(0, twipsFromRowUnits(font.RowHeight));
  }
  for (LineCursor cursor(text); !cursor.atEnd();) AddItem(commands.NextItem(cursor));
}

VDocStr::~VDocStr() {
  deleteChain<&VData::NextItem>(FirstItem);
  deleteChain<&VDocStr::Next>(Next);
}

void VDocStr::AddItem(std::unique_ptr<VData> item) {
  if (!item) return;
  VData*& link = LastItem == nullptr ? FirstItem : LastItem->NextItem;
  link = LastItem = item.release();
}

}  // namespace qor
