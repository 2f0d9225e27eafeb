// The texts of items in the order in which they are read: those on their lines, line by line, then
// those with places of their own, row by row. Whoever finds, marks, copies or reads a page aloud
// counts its lines so. A barcode reads as its value, a picture as nothing.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "document/item_visitor.h"

namespace qor {

class DocumentLetters;
class VData;

// A text in twips of its page.
struct PlacedText {
  std::int32_t left = 0;
  std::int32_t top = 0;
  std::int32_t height = 0;  // of its letters, roughly
  std::u32string text;
  VData* item = nullptr;  // whose text it is: gone where its line was read for its texts alone
};

// What a text reads as.
void appendText(const VData_Text& item, const DocumentLetters& letters, std::u32string& text);

// Told the items of a page, line by line, it collects their texts.
class ItemTexts : public ItemVisitor {
 public:
  explicit ItemTexts(const DocumentLetters& letters) : letters_(letters) {}

  void text(VData_Text& item) override;
  void barcode(VData_BarCode& item) override;

  std::u32string line;             // whoever has taken it clears it before the next one
  std::vector<PlacedText> placed;  // of the whole page

 private:
  const DocumentLetters& letters_;
};

// Puts texts in rows from the top, each from the left, and tells the rows. A row has the texts
// whose tops are nearer to that of its first one than half its height.
std::vector<std::span<PlacedText>> orderInRows(std::vector<PlacedText>& placed);

// What stands between two texts of a row.
inline constexpr char32_t kBetweenTexts = U' ';

}  // namespace qor
