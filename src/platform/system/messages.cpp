// Messages: where they go.
#include "platform/system/messages.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <utility>

namespace qor {
namespace {

MessageSink::Show windowSink;

bool print(std::FILE* stream, const std::string& text) {
  return std::fwrite(text.data(), 1, text.size(), stream) == text.size() &&
         std::fflush(stream) == 0;
}

void show(MessageKind kind, std::string_view text) {
  if (windowSink) {
    windowSink(kind, text);
  } else if (kind == MessageKind::information) {
    writeOutput(text);
  } else {
    writeErrorLine(text);
  }
}

}  // namespace

void showInformation(std::string_view text) {
  show(MessageKind::information, text);
}

void showWarning(std::string_view text) {
  show(MessageKind::warning, text);
}

void showError(std::string_view text) {
  show(MessageKind::error, text);
}

bool writeOutput(std::string_view text) {
  return print(stdout, std::string(text) + "\n");
}

void writeErrorLine(std::string_view text) {
  std::string line(text);
  const auto isControl = [](char c) { return static_cast<unsigned char>(c) < ' '; };
  std::replace_if(line.begin(), line.end(), isControl, ' ');
  print(stderr, line + "\n");
}

MessageSink::MessageSink(Show show) : before_(std::exchange(windowSink, std::move(show))) {
}

MessageSink::~MessageSink() {
  windowSink = std::move(before_);
}

}  // namespace qor
