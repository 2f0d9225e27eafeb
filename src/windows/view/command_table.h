// The commands of the window, a row each. Toolbar, menu, tool tips and keys come from the rows, and
// a test holds the README's table of keys to them: a new command is a row here and the function
// that it runs. Keys that only move over the page have rows in key_table.h.
#pragma once

#include <QString>
#include <array>
#include <span>
#include <string_view>

#include "windows/tqor_image_form.h"
#include "windows/view/key_table.h"

namespace qor {

struct PreviewTexts;

// A button of the toolbar: its name, and that of the control that it stands before; null: at the
// end.
struct ToolPlace {
  const char* name = nullptr;
  const char* before = nullptr;
};

// Commands of which one is chosen at any time.
enum class OneOf { none, pages, views };

// The menu has an entry for each command, in the order of the rows.
struct CommandRow {
  const char* id;  // the name of its entry
  std::string_view PreviewTexts::*text;
  ImageIndex image;
  // What it is called instead while that holds.
  std::string_view PreviewTexts::*otherText = nullptr;
  bool (*otherTextWhen)(const TfrmView&) = nullptr;
  ToolPlace button{};
  std::array<KeyUse, 2> keys{};  // the first one is told beside the text
  OneOf oneOf = OneOf::none;
  bool hidden = false;
  bool endsGroup = false;                          // the menu has a line behind it
  bool (*checkedWhen)(const TfrmView&) = nullptr;  // null: it can't be checked
  bool (*enabledWhen)(const TfrmView&) = nullptr;  // null: always
  void (*run)(TfrmView&) = nullptr;
  void (*runByKey)(TfrmView&) = nullptr;  // null: the same

  bool hasButton() const { return button.name != nullptr; }
  bool isOn(const TfrmView& form) const;

  // Such as "Ctrl+Home"; empty where the command has no key.
  QString keyText() const;
};

std::span<const CommandRow> commandTable();

}  // namespace qor
