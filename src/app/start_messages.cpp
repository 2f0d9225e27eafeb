// Boxes of the start.
#include "app/start_messages.h"

#include <utility>

#include "platform/system/module.h"
#include "window_model/window_module.h"

namespace qor {

StartMessages::StartMessages()
    : sink_([this](MessageKind kind, std::string_view text) {
        if (kind == MessageKind::information) {
          writeOutput(text);
          return;
        }
        writeErrorLine(text);
        if (kind == MessageKind::warning) warnings_.emplace_back(text);
      }) {
}

std::vector<std::string> StartMessages::take() {
  return std::exchange(warnings_, {});
}

int StartMessages::showAndEnd(int exitCode) {
  if (warnings_.empty()) return exitCode;
  auto* showBoxes = reinterpret_cast<ShowBoxes*>(moduleSymbol(kPreviewModule, kShowBoxesSymbol));
  if (showBoxes != nullptr) showBoxes(take(), exitCode);
  return exitCode;
}

}  // namespace qor
