// A report of any bytes as RTF, which must be printable ASCII in groups that all end.
#include <cstddef>
#include <cstdint>

#include "export/rtf/word_export.h"
#include "exported_report.h"
#include "platform/system/input_file.h"

namespace {

using namespace qor;

const fuzz::Scratch scratch;

using fuzz::demand;

void checkRtf(std::string_view rtf) {
  int depth = 0;
  for (std::size_t i = 0; i < rtf.size(); ++i) {
    demand(rtf[i] == '\n' || (rtf[i] >= ' ' && rtf[i] <= '~'));
    if (rtf[i] == '{') ++depth;
    if (rtf[i] == '}') demand(--depth >= 0);
    if (rtf[i] == '\\') ++i;
  }
  demand(depth == 0 && rtf.starts_with("{\\rtf1"));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  scratch.clear();
  scratch.writePictures();
  scratch.inside([=] {
    fuzz::tolerant([=] {
      fuzz::exportReport(scratch, fuzz::textOf(data, size), size % 2 == 0 ? 866 : 1252, "r.rtf",
                         [](ExportTask& task) {
                           task.options.SaveDocPictures = true;
                           ExportWord(task);
                           checkRtf(*readWholeFile(task.target, UINT32_MAX));
                         });
    });
  });
  return 0;
}
