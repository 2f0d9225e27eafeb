// Reads the commands of a page: plain text, style tags, item tags and printer control sequences.
#pragma once

#include <memory>
#include <optional>
#include <string_view>

#include "document/font_state.h"
#include "document/line_cursor.h"

namespace qor {

class VData;
class VData_BarCode;
class VSet;

// Built for each reading of a page, with the font that runs at its start. A style left open goes on
// in what is read next.
class VCommand : public VFont_List {
 public:
  // Both must live as long; the font is changed.
  VCommand(VSet& settings, FontState& font);

  // The font at the place that was read last.
  const FontState& runningFont() const { return *Font; }

  // The same as items hold it.
  const SharedFont& sharedFont();

  // What the page has too much of to be read on, "items" or "tags"; null as long as it hasn't.
  const char* excess() const;

  // The next item of the line, or null where the cursor stood at a command without an item. Always
  // moves the cursor on, unless it is at the end.
  std::unique_ptr<VData> NextItem(LineCursor& cursor);

  // For readers that keep no items: those that were read are gone, and no barcode leans on them.
  void forgetItems() { barcode_before_ = nullptr; }

 private:
  // The ways to write a style tag: <b/>, <b>, <b x="1"/>, <b x="1">.
  enum class TagForm { closing, plain, empty, opening };

  // A tag as it stands in the line.
  struct Tag {
    bool style = false;  // else an item tag
    int key = 0;         // its place among the style keys or the item keys
    TagForm form = TagForm::empty;
    std::string_view attributes;
    std::size_t end = 0;  // the place behind it
  };

  // The tag at the place, if it is one that can be read. Anything else is text.
  static std::optional<Tag> tagAt(LineCursor& cursor, std::size_t place);
  static std::optional<Tag> styleTagAt(LineCursor& cursor, std::size_t place, int key);
  static std::optional<Tag> itemTagAt(LineCursor& cursor, std::size_t place, int key);
  static std::size_t endOfRun(LineCursor& cursor);

  std::unique_ptr<VData> ParseTag(LineCursor& cursor, const Tag& tag);
  void ApplyStyleCommand(const Tag& tag);
  void applyPlainStyle(int key);
  std::unique_ptr<VData> MakeItem(const Tag& tag);
  std::unique_ptr<VData> makeBarcode(const Tag& tag);
  std::unique_ptr<VData> takeTextRun(LineCursor& cursor);
  void closeStyle(int key);
  void openStyle(int key);
  // The running font, to be changed.
  FontState& changedFont();

  FontState* Font;
  VSet* Settings;
  SharedFont shared_font_;
  bool is_shared_ = false;  // shared_font_ is the running font
  std::size_t items_ = 0;
  std::size_t tags_ = 0;
  const VData_BarCode* barcode_before_ = nullptr;
};

}  // namespace qor
