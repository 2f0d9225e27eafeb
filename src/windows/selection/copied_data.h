// What a selection puts onto the clipboard.
#pragma once

#include <QString>

class QMimeData;

namespace qor {

class TextMap;
class TextSelection;

// As plain text; a rectangle also as a table, separated by tabs and in HTML. The caller's.
QMimeData* copiedData(const TextMap& map, const TextSelection& selection);

// Its plain text alone.
QString copiedPlain(const TextMap& map, const TextSelection& selection);

}  // namespace qor
