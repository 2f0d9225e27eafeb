// The keys of the window: those that move over a page, a row each, and those of its commands.
#pragma once

#include <QString>
#include <span>
#include <string_view>

class QKeyEvent;

namespace qor {

struct PreviewTexts;
class TfrmView;

// A key with modifiers that it needs and others that it must not have; the rest may be as they are.
struct KeyUse {
  Qt::Key key = Qt::Key_unknown;
  Qt::KeyboardModifiers with = Qt::NoModifier;
  Qt::KeyboardModifiers without = Qt::NoModifier;

  bool isNone() const { return key == Qt::Key_unknown; }
  bool fits(const QKeyEvent& event) const;
  QString text() const;  // such as "Ctrl+Home"
};

struct KeyRow {
  KeyUse key;
  std::string_view PreviewTexts::*does;
  void (*run)(TfrmView&);
};

std::span<const KeyRow> keyTable();

// What a key runs, of both tables; null where it is none of the window's. It does so also where the
// command is off: a move that leads nowhere still shows the top of its page.
using KeyAction = void (*)(TfrmView&);
KeyAction actionOfKey(const QKeyEvent& event);

}  // namespace qor
