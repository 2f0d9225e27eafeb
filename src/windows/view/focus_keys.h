// Keys that the window leaves to the control that has the focus.
#pragma once

class QKeyEvent;

namespace qor {

// An edit moves in what is typed, a list over its lines; both copy.
bool focusKeeps(const QKeyEvent& event);

}  // namespace qor
