// Texts as they are read.
#include "document/item_texts.h"

#include <algorithm>

#include "base/units.h"
#include "document/document_letters.h"
#include "document/vdata.h"
#include "platform/system/text_encoding.h"

namespace qor {

void appendText(const VData_Text& item, const DocumentLetters& letters, std::u32string& text) {
  if (item.inBox()) {
    text += codePointsFromCodePage(item.Text, codePageOfCharset(item.Font->LogFont.CharSet));
  } else {
    letters.append(item.Text, text);
  }
}

void ItemTexts::text(VData_Text& item) {
  if (!item.HasPosition) return appendText(item, letters_, line);
  if (item.Text.empty()) return;
  placed.push_back({item.Left, item.Top, twipsFromPoints(item.Font->Height), {}, &item});
  appendText(item, letters_, placed.back().text);
}

void ItemTexts::barcode(VData_BarCode& item) {
  if (item.Value.empty()) return;
  placed.push_back(
      {std::min(item.Left, item.Right), std::min(item.Top, item.Bottom), 0, {}, &item});
  letters_.append(item.Value, placed.back().text);
}

std::vector<std::span<PlacedText>> orderInRows(std::vector<PlacedText>& placed) {
  std::stable_sort(placed.begin(), placed.end(),
                   [](const PlacedText& a, const PlacedText& b) { return a.top < b.top; });
  std::vector<std::span<PlacedText>> rows;
  for (auto row = placed.begin(); row != placed.end();) {
    const std::int64_t reach = std::int64_t{row->top} + row->height / 2;
    const auto end = std::find_if(row + 1, placed.end(),
                                  [reach](const PlacedText& text) { return text.top > reach; });
    std::stable_sort(row, end,
                     [](const PlacedText& a, const PlacedText& b) { return a.left < b.left; });
    rows.emplace_back(row, end);
    row = end;
  }
  return rows;
}

}  // namespace qor
