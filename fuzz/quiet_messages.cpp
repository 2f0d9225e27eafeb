// Stands in for the messages of the program: a fuzzer's output is its own.
#include "platform/system/messages.h"

namespace qor {

void writeErrorLine(std::string_view) {
}
void showInformation(std::string_view) {
}
void showWarning(std::string_view) {
}
void showError(std::string_view) {
}

}  // namespace qor
