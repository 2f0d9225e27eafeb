// The printer tree. Labels are padded for a fixed-pitch reading: their colons stand in one column.
#include "settings/printer_tree.h"

#include <algorithm>
#include <set>

#include "platform/print/paper_table.h"
#include "platform/print/print_system.h"
#include "settings/number_text.h"
#include "settings/printer_lists.h"

namespace qor {
namespace {

constexpr const char* kFormKinds[] = {"[Form User]", "[Form BuiltIn]", "[Form Printer]"};
enum FormKind { kFormUser, kFormBuiltIn, kFormPrinter };

struct Form {
  std::string name;
  Media media;
  FormKind kind;
};

std::string millimetresText(int hundredths, int margin) {
  return FloatToStr((hundredths - margin) / 100.0);
}

TreeNode nodeOf(const Form& form) {
  const auto [name, size, margins] = form.media;
  return {form.name + "  (" + sizeText(size.width / 100.0, size.length / 100.0) + ")   (" +
          millimetresText(size.width, margins.right) + " x " +
          millimetresText(size.length, margins.bottom) + " mm)  " + kFormKinds[form.kind]};
}

std::string paperName(const Printer& printer) {
  const auto& papers = printer.papers;
  const auto found = std::find_if(papers.begin(), papers.end(), [&printer](const Paper& paper) {
    return paper.number == printer.mode.dmPaperSize;
  });
  return found == papers.end() ? "" : found->name;
}

TreeNode parametersNode(const Printer& printer) {
  const DeviceMode& mode = printer.mode;
  const DeviceCaps caps = deviceCaps(printer, mode);
  TreeNode node{kPrinterParameters};
  const auto add = [&node](const char* label, const std::string& value, const char* unit = "") {
    node.children.push_back({label + value + unit});
  };
  const auto addNumber = [&add](const char* label, double value, const char* unit = "") {
    add(label, FloatToStr(value), unit);
  };
  add("        Paper Size: ", paperName(printer));
  addNumber("       Paper Width: ", mode.dmPaperWidth / 10.0, " mm");
  addNumber("      Paper Height: ", mode.dmPaperLength / 10.0, " mm");
  add("       Orientation: ", mode.dmOrientation == kPortrait ? "Portrait" : "Landscape");
  addNumber("       Paper Width: ", caps.HorzSize, " mm");
  addNumber("      Paper Height: ", caps.VertSize, " mm");
  add("              Port: ", printer.port);
  addNumber("      Resolution X: ", caps.HorzRes, " pixels");
  addNumber("      Resolution Y: ", caps.VertRes, " pixels");
  addNumber("    Physical Width: ", caps.PhysicalWidth, " pixels");
  addNumber("   Physical Height: ", caps.PhysicalHeight, " pixels");
  addNumber("       LogPixels X: ", caps.LogPixelsX, " pixels per inch");
  addNumber("       LogPixels Y: ", caps.LogPixelsY, " pixels per inch");
  addNumber(" Physical Offset X: ", caps.PhysicalOffsetX, " pixels");
  addNumber(" Physical Offset Y: ", caps.PhysicalOffsetY, " pixels");
  addNumber("  Scaling Factor X: ", caps.scalingFactorX);
  addNumber("  Scaling Factor Y: ", caps.scalingFactorY);
  addNumber("          Aspect X: ", caps.aspectX);
  addNumber("          Aspect Y: ", caps.aspectY);
  return node;
}

TreeNode papersNode(const Printer& printer) {
  TreeNode node{kPaperSize};
  for (const Paper& paper : printer.papers) {
    const MediaSize size = paper.media.size;
    node.children.push_back({paper.name + "  (" +
                             sizeText(tenthsOf(size.width) / 10.0, tenthsOf(size.length) / 10.0) +
                             ")  (#" + numberText(paper.number) + ")"});
  }
  return node;
}

TreeNode resolutionsNode(const Printer& printer) {
  TreeNode node{"Printer's Resolutions"};
  const auto add = [&node](Dpi dpi) {
    node.children.push_back({FloatToStr(dpi.x) + " x " + FloatToStr(dpi.y) + " DPI"});
  };
  std::for_each(printer.resolutions.begin(), printer.resolutions.end(), add);
  if (printer.resolutions.empty()) add(printer.resolution);
  return node;
}

TreeNode binsNode(const Printer& printer) {
  TreeNode node{"Paper Sources"};
  for (const Bin& bin : printer.bins) {
    node.children.push_back({bin.name + "  ( #" + numberText(bin.number) + " )"});
  }
  return node;
}

std::vector<TreeNode> branchesOf(const Printer& printer) {
  return {{"Driver Name: " + printer.driver},
          {"Print Processor: " + printer.processor},
          parametersNode(printer),
          papersNode(printer),
          resolutionsNode(printer),
          binsNode(printer)};
}

TreeNode nodeOf(const QueueName& queue) {
  PrintSystem& system = printSystem();
  TreeNode node{queue.name};
  node.isDefault = queue.name == system.defaultName();
  node.isUnknown = !system.knows(queue.name);
  if (node.isUnknown) return node;
  const Printer* printer = system.find(queue.name);
  // One that doesn't answer has told its name and driver at least.
  if (printer == nullptr) {
    node.children = {{"Driver Name: " + queue.driver}};
  } else {
    node.children = branchesOf(*printer);
  }
  return node;
}

}  // namespace

// Every paper that has a number of its own, and those that single printers add.
TreeNode printServerNode() {
  TreeNode node{"PrintServer"};
  for (const PaperRow& row : paperTable()) {
    const Media media = {std::string(row.media), sizeOf(row), {}};
    node.children.push_back(nodeOf({std::string(row.name), media, kFormBuiltIn}));
  }
  PrintSystem& system = printSystem();
  std::set<std::string> seen;
  for (const QueueName& queue : system.listSoFar()) {
    const Printer* printer = system.knows(queue.name) ? system.find(queue.name) : nullptr;
    if (printer == nullptr) continue;
    for (const Paper& paper : printer->papers) {
      const bool own = paper.number > kUserPaper && seen.insert(paper.name).second;
      if (own) node.children.push_back(nodeOf({paper.name, paper.media, kFormPrinter}));
    }
  }
  return node;
}

TreeNode printerNode(const std::string& name) {
  for (const QueueName& queue : printSystem().listSoFar()) {
    if (queue.name == name) return nodeOf(queue);
  }
  return {name};
}

void FillPrinterTree(std::vector<TreeNode>& tree) {
  tree.clear();
  for (const QueueName& queue : printSystem().listSoFar()) tree.push_back(nodeOf(queue));
  if (tree.empty()) return;
  tree.push_back(printServerNode());
  std::reverse(tree.begin(), tree.end());
}

}  // namespace qor
