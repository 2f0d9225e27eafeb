// Lays out the texts of items and keeps where their characters stand.
#pragma once

#include <span>

#include "platform/canvas/canvas.h"
#include "render/text_stretch.h"

namespace qor {

class DocumentLetters;
class VData;
class VDocStr;

// The texts of a line of the report that starts at that spot, twips.
TextLine layOutLine(const VDocStr& line, Point corner, const DocumentLetters& letters);

// The texts of items with places of their own, a row, with a blank between them.
TextLine layOutRow(std::span<VData* const> items, const DocumentLetters& letters);

}  // namespace qor
