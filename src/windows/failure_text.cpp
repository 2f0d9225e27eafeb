// Steps that may fail.
#include "windows/failure_text.h"

#include "platform/qt/qt_text.h"
#include "platform/system/failure.h"

namespace qor {

QString failureOf(const std::function<void()>& step) {
  try {
    step();
    return {};
  } catch (...) {
    return qtText(caughtFailure().text);
  }
}

}  // namespace qor
