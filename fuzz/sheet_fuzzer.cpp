// A report of any bytes as XLSX and XLS, whose files other libraries must be able to read back.
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include <gsf/gsf-infile-msole.h>
#include <gsf/gsf-infile-zip.h>
#include <gsf/gsf-input-stdio.h>
#include <gsf/gsf-utils.h>
#include <libxml/parser.h>

#include "export/sheet/sheet_export.h"
#include "exported_report.h"

namespace {

using namespace qor;

const fuzz::Scratch scratch;

struct Unref {
  void operator()(void* object) const { g_object_unref(object); }
};
template <class Object>
using Gsf = std::unique_ptr<Object, Unref>;

using fuzz::demand;

Gsf<GsfInput> opened(const std::string& path) {
  Gsf<GsfInput> input(gsf_input_stdio_new(path.c_str(), nullptr));
  demand(input != nullptr);
  return input;
}

std::string bytesOf(GsfInput& input) {
  const auto size = static_cast<std::size_t>(gsf_input_size(&input));
  std::string bytes(size, '\0');
  if (size > 0)
    demand(gsf_input_read(&input, size, reinterpret_cast<guint8*>(bytes.data())) != nullptr);
  return bytes;
}

// Every XML part of a package, also those of its folders.
void readParts(GsfInfile& folder) {
  for (int i = 0; i < gsf_infile_num_children(&folder); ++i) {
    const Gsf<GsfInput> child(gsf_infile_child_by_index(&folder, i));
    demand(child != nullptr);
    if (GSF_IS_INFILE(child.get()) && gsf_infile_num_children(GSF_INFILE(child.get())) >= 0) {
      readParts(*GSF_INFILE(child.get()));
      continue;
    }
    const std::string bytes = bytesOf(*child);
    if (!bytes.starts_with("<?xml")) continue;
    xmlDoc* document = xmlReadMemory(bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr,
                                     XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_HUGE);
    demand(document != nullptr);
    xmlFreeDoc(document);
  }
}

void readXlsx(const std::string& path) {
  const Gsf<GsfInput> input = opened(path);
  const Gsf<GsfInfile> package(gsf_infile_zip_new(input.get(), nullptr));
  demand(package != nullptr);
  readParts(*package);
}

// Numbers in the records of a workbook.
class Records {
 public:
  explicit Records(std::string_view bytes) : bytes_(bytes) {}

  std::uint32_t number(std::size_t at, std::size_t size) const {
    demand(at + size <= bytes_.size());
    std::uint32_t value = 0;
    for (std::size_t i = size; i > 0; --i)
      value = value << 8U | static_cast<unsigned char>(bytes_[at + i - 1]);
    return value;
  }

  // Calls for each one with its type, the place of its body and its length.
  template <class Visit>
  void forEach(Visit visit) const {
    std::size_t at = 0;
    for (; at < bytes_.size(); at += 4 + number(at + 2, 2))
      visit(number(at, 2), at + 4, number(at + 2, 2));
    demand(at == bytes_.size());
  }

 private:
  std::string_view bytes_;
};

// Records to the last byte; the list leads to all sheets, and no cell asks for a text or a format
// that isn't there.
void readXls(const std::string& path) {
  const Gsf<GsfInput> input = opened(path);
  const Gsf<GsfInfile> compound(gsf_infile_msole_new(input.get(), nullptr));
  demand(compound != nullptr);
  const Gsf<GsfInput> stream(gsf_infile_child_by_name(compound.get(), "Workbook"));
  demand(stream != nullptr);
  const std::string bytes = bytesOf(*stream);
  const Records records(bytes);
  std::uint32_t texts = 0;
  std::uint32_t formats = 0;
  std::size_t listed = 0;
  std::size_t starts = 0;
  std::size_t ends = 0;
  records.forEach([&](std::uint32_t type, std::size_t body, std::uint32_t length) {
    demand(length <= 8224);
    switch (type) {
      case 0x0809: ++starts; break;
      case 0x000A: ++ends; break;
      case 0x00E0: ++formats; break;
      case 0x00FC: texts = records.number(body + 4, 4); break;
      case 0x0085:
        demand(records.number(records.number(body, 4), 2) == 0x0809);
        ++listed;
        break;
      case 0x00FD: demand(records.number(body + 6, 4) < texts); [[fallthrough]];
      case 0x0203: demand(records.number(body + 4, 2) < formats); break;
      default: break;
    }
  });
  demand(listed >= 1 && starts == listed + 1 && ends == starts);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  gsf_init();
  scratch.clear();
  scratch.writePictures();
  const auto exportTo = [=](const char* name, bool pagePerSheet, auto readBack) {
    fuzz::tolerant([=] {
      fuzz::exportReport(scratch, fuzz::textOf(data, size), 866, name, [=](ExportTask& task) {
        task.options.PagePerSheet = pagePerSheet;
        task.mode = PageMode::sheets;
        ExportSheets(task);
        readBack(task.target);
      });
    });
  };
  scratch.inside([&] {
    exportTo("r.xlsx", true, readXlsx);
    exportTo("r.xls", size % 2 == 0, readXls);
  });
  return 0;
}
