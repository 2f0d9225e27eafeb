// One line of a page: the items that one line of the report's text holds.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "base/chain.h"
#include "document/vdata.h"

namespace qor {

class VCommand;

class VDocStr {
 public:
  // Reads the items of the text. An empty text gives one empty text item in the running font, so
  // that it has a height.
  VDocStr(std::string_view text, VCommand& commands);
  ~VDocStr();
  VDocStr(const VDocStr&) = delete;
  VDocStr& operator=(const VDocStr&) = delete;

  // Appends the item, unless it is null.
  void AddItem(std::unique_ptr<VData> item);

  // Tells the items, in their order.
  void tell(ItemVisitor& visitor) const {
    for (VData& item : items()) item.tell(visitor);
  }

  ChainView<&VData::NextItem, VData> items() const {
    return ChainView<&VData::NextItem, VData>(FirstItem);
  }

  VDocStr* Next = nullptr;     // the next line, owned
  VData* FirstItem = nullptr;  // owned
  VData* LastItem = nullptr;
  bool AfterFormFeed = false;  // the line before ended in a form feed
  std::int32_t Height = 0;     // twips, worked out when the line is drawn
  std::int32_t RowHeight = 0;  // twips, of an empty line where the report sets it, else 0
  std::int32_t Overprint = 0;  // 1 if the line before ended in a bare CR
  std::int32_t LineFeeds = 1;  // 0 if the line before ended in a bare CR
};

}  // namespace qor
