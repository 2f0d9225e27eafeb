// What went wrong in the document code, as a text for the user.
#pragma once

#include <QString>
#include <functional>

namespace qor {

// Runs the step; a null string if it succeeds, else one line of reason.
QString failureOf(const std::function<void()>& step);

}  // namespace qor
