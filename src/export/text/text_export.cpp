// Reports as plain text.
#include <string>

#include "document/loaded_page.h"
#include "export/exporters.h"
#include "platform/system/output_file.h"

namespace qor {

void LineToText(const VDocStr& line, std::string& text) {
  for (const VData& item : line.items()) {
    if (const auto* run = dynamic_cast<const VData_Text*>(&item)) text += run->Text;
  }
}

void ExportText(VDoc& doc, const ExportOptions& options) {
  OutputFile file(options.TargetName);
  std::string text;
  for (std::int32_t number = 1; number <= doc.PageCount; ++number) {
    const LoadedPage page(doc, number, options.PageMode);
    for (const VDocStr& line : page->lines()) {
      text.clear();
      LineToText(line, text);
      file.write(text.append("\r\n"));
    }
    if (options.UseNewPageChar) file.write("\f\r\n");
  }
  if (options.UseEofChar) file.write("\x1A\r\n");
  file.commit();
}

}  // namespace qor
