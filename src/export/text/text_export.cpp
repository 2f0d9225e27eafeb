// Texts of lines.
#include "export/text/text_export.h"

#include "document/item_visitor.h"
#include "platform/system/output_file.h"

namespace qor {
namespace {

class TextTeller : public ItemVisitor {
 public:
  explicit TextTeller(std::string& out) : out_(out) {}

  void text(VData_Text& text) override { out_ += text.Text; }

 private:
  std::string& out_;
};

}  // namespace

void LineToText(const VDocStr& line, std::string& text) {
  TextTeller teller(text);
  line.tell(teller);
}

ExportResult ExportText(ExportTask& task) {
  OutputFile file(task.target);
  std::string text;
  forEachPage(task, [&](const VDocPage& page) {
    forEachLine(page, [&](const VDocStr& line) {
      text.clear();
      LineToText(line, text);
      file.write(text.append("\r\n"));
    });
    if (task.options.UseNewPageChar) file.write("\f\r\n");
  });
  if (task.options.UseEofChar) file.write("\x1A\r\n");
  file.commit();
  task.files.push_back(task.target);
  return ExportResult::done;
}

}  // namespace qor
