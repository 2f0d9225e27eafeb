// A report of any bytes as RTF, which must be printable ASCII in groups that all end.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "base/app_options.h"
#include "document/vdoc.h"
#include "export/rtf/word_export.h"
#include "platform/system/input_file.h"
#include "scratch.h"

namespace {

using namespace qor;

const fuzz::Scratch scratch;

void demand(bool holds) {
  if (!holds) std::abort();
}

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

void exportReport(std::string_view bytes) {
  AppOptions.DocCodePage = bytes.size() % 2 == 0 ? 866 : 1252;
  AppOptions.FileName = scratch.write("report.txt", bytes);
  VDoc doc;
  doc.ScanPages(false);
  ExportTask task = {doc, scratch.write("r.rtf", ""), runOptions()};
  task.options.SaveDocPictures = true;
  ExportWord(task);
  checkRtf(*readWholeFile(task.target, UINT32_MAX));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  scratch.clear();
  scratch.writePictures();
  scratch.inside([=] { fuzz::tolerant([=] { exportReport(fuzz::textOf(data, size)); }); });
  return 0;
}
