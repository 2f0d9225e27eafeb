// Slices of work.
#include "windows/idle_slice.h"

#include <QElapsedTimer>

#include "windows/failure_text.h"

namespace qor {
namespace {

constexpr qint64 kSlice = 12;  // ms, before the window answers again

}  // namespace

bool doSlice(const std::function<bool()>& step) {
  QElapsedTimer time;
  time.start();
  bool more = true;
  const QString failure = failureOf([&] {
    while (more && time.elapsed() < kSlice) more = step();
  });
  return more && failure.isNull();
}

}  // namespace qor
