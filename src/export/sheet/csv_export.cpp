// Fields of lines.
#include "export/sheet/csv_export.h"

#include "document/item_visitor.h"
#include "document/vdata.h"
#include "platform/system/output_file.h"

namespace qor {
namespace {

class FieldTeller : public ItemVisitor {
 public:
  FieldTeller(char separator, std::string& out) : separator_(separator), out_(out) {}

  void text(VData_Text& text) override {
    out_.append(1, '"').append(text.Text).append(1, '"').append(1, separator_);
  }

 private:
  char separator_;
  std::string& out_;
};

}  // namespace

void exportCsv(ExportTask& task) {
  OutputFile file(task.target);
  std::string fields;
  FieldTeller teller(task.options.CsvSeparator, fields);
  forEachPage(task, [&](const VDocPage& page) {
    forEachLine(page, [&](const VDocStr& line) {
      fields.clear();
      line.tell(teller);
      file.write(fields.append("\r\n"));
    });
    if (task.options.PagePerSheet) file.write("\f\r\n");
  });
  file.commit();
}

}  // namespace qor
