// Slices of work.
#include "windows/idle_slice.h"

#include <QElapsedTimer>

#include "windows/failure_text.h"

namespace qor {
namespace {

constexpr int kUsualLength = 12;  // ms

}  // namespace

Slice doSlice(int milliseconds, const std::function<bool(const MayGoOn&)>& work) {
  QElapsedTimer time;
  time.start();
  Slice slice;
  slice.failure =
      failureOf([&] { slice.more = work([&] { return time.elapsed() < milliseconds; }); });
  return slice;
}

Slice doSteps(const std::function<bool()>& step) {
  return doSlice(kUsualLength, [&step](const MayGoOn& mayGoOn) {
    bool more = true;
    while (more && mayGoOn()) more = step();
    return more;
  });
}

}  // namespace qor
