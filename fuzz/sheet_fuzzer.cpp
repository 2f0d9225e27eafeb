// A report of any bytes as XLSX and XLS, whose files other libraries must be able to read back.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>

#include <gsf/gsf-infile-msole.h>
#include <gsf/gsf-infile-zip.h>
#include <gsf/gsf-input-stdio.h>
#include <gsf/gsf-utils.h>
#include <libxml/parser.h>

#include "base/app_options.h"
#include "document/vdoc.h"
#include "export/sheet/sheet_export.h"
#include "scratch.h"

namespace {

using namespace qor;

const fuzz::Scratch scratch;

struct Unref {
  void operator()(void* object) const { g_object_unref(object); }
};
template <class Object>
using Gsf = std::unique_ptr<Object, Unref>;

void demand(bool holds) {
  if (!holds) std::abort();
}

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

// Records to the last byte, one sheet at least.
void readXls(const std::string& path) {
  const Gsf<GsfInput> input = opened(path);
  const Gsf<GsfInfile> compound(gsf_infile_msole_new(input.get(), nullptr));
  demand(compound != nullptr);
  const Gsf<GsfInput> stream(gsf_infile_child_by_name(compound.get(), "Workbook"));
  demand(stream != nullptr);
  const std::string bytes = bytesOf(*stream);
  const auto number = [&bytes](std::size_t at) {
    return static_cast<unsigned char>(bytes[at]) | static_cast<unsigned char>(bytes[at + 1]) << 8U;
  };
  std::size_t at = 0;
  int ends = 0;
  while (at + 4 <= bytes.size()) {
    demand(number(at + 2) <= 8224);
    ends += number(at) == 0x000A ? 1 : 0;
    at += 4 + number(at + 2);
  }
  demand(at == bytes.size() && ends >= 2);
}

void exportReport(std::string_view bytes, const char* name, bool pagePerSheet,
                  void (*readBack)(const std::string&)) {
  AppOptions.DocCodePage = 866;
  AppOptions.FileName = scratch.write("report.txt", bytes);
  VDoc doc;
  doc.ScanPages(false);
  ExportTask task = {doc, scratch.write(name, ""), runOptions()};
  task.options.PagePerSheet = pagePerSheet;
  task.mode = PageMode::sheets;
  ExportSheets(task);
  readBack(task.target);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  gsf_init();
  scratch.clear();
  fuzz::tolerant([=] { exportReport(fuzz::textOf(data, size), "r.xlsx", true, readXlsx); });
  fuzz::tolerant([=] { exportReport(fuzz::textOf(data, size), "r.xls", size % 2 == 0, readXls); });
  return 0;
}
