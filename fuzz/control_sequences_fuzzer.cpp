// Printer control sequences of any bytes, at the head of a report and inside its lines.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "document/control_sequences.h"
#include "document/vset.h"
#include "scratch.h"

namespace {

using namespace qor;

void runAll(std::string_view text, VSetPage* page) {
  FontState font;
  for (std::size_t cursor = 0; cursor < text.size();) {
    const std::size_t before = cursor;
    RunControlSequences(text, cursor, page, font);
    if (cursor < before || cursor > text.size()) std::abort();
    if (cursor == before) ++cursor;
  }
}

void readNumbers(std::string_view text) {
  for (std::size_t place = 0; place < text.size(); place += 16) {
    double value = 0;
    const std::string_view rest = text.substr(place);
    if (ReadNumber(rest, value) > rest.size()) std::abort();
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = fuzz::textOf(data, size);
  VSetPage page;
  fuzz::tolerant([&] { runAll(text, &page); });
  fuzz::tolerant([=] { runAll(text, nullptr); });
  fuzz::tolerant([=] { readNumbers(text); });
  return 0;
}
