// Messages without windows.
#include "platform/messages.h"

#include <algorithm>
#include <cstdio>
#include <string>

namespace qor {
namespace {

void print(std::FILE* stream, const std::string& text) {
  std::fwrite(text.data(), 1, text.size(), stream);
  std::fflush(stream);
}

}  // namespace

void showInformation(std::string_view text) {
  print(stdout, std::string(text) + "\n");
}

void showWarning(std::string_view text) {
  writeErrorLine(text);
}

void writeErrorLine(std::string_view text) {
  std::string line(text);
  const auto isControl = [](char c) { return static_cast<unsigned char>(c) < ' '; };
  std::replace_if(line.begin(), line.end(), isControl, ' ');
  print(stderr, line + "\n");
}

}  // namespace qor
