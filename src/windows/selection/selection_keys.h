// Keys that extend what is selected.
#pragma once

class QKeyEvent;

namespace qor {

class PageSelection;
struct ViewDesk;

// Moves the end of a selection by Shift with an arrow, Home or End, PgUp or PgDown, and scrolls to
// it; false where the key is another one.
bool extendByKey(PageSelection& selection, const QKeyEvent& event, const ViewDesk& desk);

}  // namespace qor
