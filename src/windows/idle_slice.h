// A long work that is done while nothing else is to do, a slice at a time, so that the window
// answers in between.
#pragma once

#include <QString>
#include <functional>

namespace qor {

// What became of a slice: whether there is more to do, and why not where it failed; else null.
struct Slice {
  bool more = false;
  QString failure;
};

// Does some work, which asks whether it may go on and is true while there is more of it.
using MayGoOn = std::function<bool()>;
Slice doSlice(int milliseconds, const std::function<bool(const MayGoOn&)>& work);

// The same with steps that know nothing of time, each true while there is another one, in slices of
// the usual length.
Slice doSteps(const std::function<bool()>& step);

}  // namespace qor
