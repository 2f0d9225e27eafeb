// One line of a page: the items that one line of the report's text holds.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "base/chain.h"
#include "document/vdata.h"

namespace qor {

class VCommand;

// The items of a page's empty lines, one for each font: a page may have millions of these lines.
class EmptyTexts {
 public:
  VData_Text& of(const SharedFont& font);

  void clear();

 private:
  VData_Text* last_ = nullptr;
  std::map<const FontState*, std::unique_ptr<VData_Text>> texts_;
};

class VDocStr {
 public:
  // Reads the items of the text. An empty text gives one empty text item in the running font, so
  // that it has a height: one of those given, which must live as long.
  VDocStr(std::string_view text, VCommand& commands, EmptyTexts& empty);
  ~VDocStr();
  VDocStr(const VDocStr&) = delete;
  VDocStr& operator=(const VDocStr&) = delete;

  // Tells the items, in their order.
  void tell(ItemVisitor& visitor) const {
    for (VData& item : items()) item.tell(visitor);
  }

  ChainView<&VData::NextItem, VData> items() const {
    return ChainView<&VData::NextItem, VData>(FirstItem);
  }

  VDocStr* Next = nullptr;     // the next line, owned
  VData* FirstItem = nullptr;  // owned, but for an empty line
  VData* LastItem = nullptr;
  std::int32_t Height = 0;     // twips, worked out when the line is drawn
  std::int32_t RowHeight = 0;  // twips, of an empty line where the report sets it, else 0
  std::int16_t Overprint = 0;  // 1 if the line before ended in a bare CR
  std::int16_t LineFeeds = 1;  // 0 if the line before ended in a bare CR
  bool AfterFormFeed = false;  // the line before ended in a form feed

 private:
  // Appends the item, unless it is null.
  void AddItem(std::unique_ptr<VData> item);

  bool is_empty_;
};

}  // namespace qor
