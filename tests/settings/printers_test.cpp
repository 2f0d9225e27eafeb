// Printers in front of a print system made up: device modes, lists, the tree and the scale.
#include "settings/printers.h"

#include <algorithm>
#include <memory>

#include <gtest/gtest.h>

#include "platform/canvas.h"
#include "platform/print/paper_table.h"
#include "platform/print/print_system.h"
#include "settings/print_scale.h"
#include "settings/printer_lists.h"
#include "settings/printer_tree.h"

namespace qor::test {
namespace {

// Two queues: one with margins, trays and its own papers, one that tells nothing.
class MadeUpQueues : public PrintQueues {
 public:
  std::vector<QueueName> list() override { return {laser().id, QueueName{"plain", "", "usb:1"}}; }
  std::string defaultName() override { return "laser"; }

  std::optional<Queue> find(const std::string& name) override {
    if (name == "laser") return laser();
    if (name != "plain") return std::nullopt;
    Queue queue;
    queue.id = {"plain", "Plain", "usb:1"};
    return queue;
  }

  std::unique_ptr<PrintJob> open(const std::string&, const JobTicket&) override { return nullptr; }

 private:
  static Queue laser() {
    Queue queue;
    queue.id = {"laser", "Laser 300", "lpt1:,lpt2:"};
    const MediaMargins margins = {500, 600, 700, 800};
    queue.media = {{"na_letter_8.5x11in", {21590, 27940}, margins},
                   {"iso_a4_210x297mm", {21000, 29700}, margins},
                   {"na_ledger_11x17in", {27940, 43180}, margins},
                   {"om_label_62x100mm", {6200, 10000}, margins}};
    queue.defaultMedia = "iso_a4_210x297mm";
    queue.defaultMargins = margins;
    queue.smallest = {2000, 3000};
    queue.largest = {30000, 50000};
    queue.sources = {"auto", "tray-2", "roll-7"};
    queue.resolutions = {{300, 300}, {600, 300}};
    queue.color = false;
    return queue;
  }
};

class Printers : public testing::Test {
 protected:
  Printers() {
    std::vector<std::unique_ptr<PrintQueues>> systems;
    systems.push_back(std::make_unique<MadeUpQueues>());
    setPrintSystem(std::make_unique<PrintSystem>(std::move(systems)));
    InitPrinters();
  }
  ~Printers() override { setPrintSystem(nullptr); }
};

VSetPage pageOf(std::int32_t paper, double width = 210, double height = 297,
                std::int32_t orientation = 1) {
  VSetPage page;
  page.PaperSize = paper;
  page.PaperWidth = width;
  page.PaperHeight = height;
  page.Orientation = orientation;
  return page;
}

// Orientation; dots to the inch; printable millimetres; sheet, offset and printable area in dots.
template <class Measures>
std::vector<std::int32_t> numbersOf(const Measures& of) {
  return {of.Orientation,     of.LogPixelsX,    of.LogPixelsY,     of.HorzSize,
          of.VertSize,        of.PhysicalWidth, of.PhysicalHeight, of.PhysicalOffsetX,
          of.PhysicalOffsetY, of.HorzRes,       of.VertRes};
}

TEST_F(Printers, areMeasuredAsTheyAreSetUp) {
  EXPECT_EQ(GetDefaultPrinterName(), "laser");
  EXPECT_TRUE(gPrinterMeasured);
  const VSetPrn& laser = gDefaultPrn;
  // 210 x 297 mm less 5, 6, 7 and 8 mm, at 300 dots per inch.
  EXPECT_EQ(numbersOf(laser), (std::vector{1, 300, 300, 198, 283, 2480, 3507, 60, 71,
                                           2480 - 60 - 83, 3507 - 71 - 95}));
  EXPECT_EQ(laser.ResolutionX, 300);
  EXPECT_EQ(laser.ResolutionY, 1);  // what stands there is the colour mode
  EXPECT_EQ(laser.PortName, "lpt1:");
  VSetPrn other;
  EXPECT_TRUE(MeasureNamedPrinter("nobody", &other));  // some printer was measured
  EXPECT_EQ(other.DeviceName, "");
  EXPECT_TRUE(MeasureNamedPrinter("plain", &other));
  EXPECT_EQ(other.PhysicalWidth, 4960);
  EXPECT_EQ(other.HorzRes, 4960);
}

TEST_F(Printers, turnTheMarginsWithTheSheet) {
  CreatePrintDC("laser", pageOf(9, 210, 297, 2), 50, true);
  // The upright sheet's bottom is at the left, its left at the top; half the scale.
  EXPECT_EQ(numbersOf(gPrintMetrics), (std::vector{2, 150, 150, 283, 198, 3507, 2480, 95, 60,
                                                   3507 - 95 - 71, 2480 - 60 - 83}));
}

TEST_F(Printers, takeDeviceModesFromThePage) {
  struct Row {
    const char* what;
    VSetPage page;
    std::uint32_t fields;
    Point sheet;  // dots of 1/300 inch, the same for measuring and printing
  };
  VSetPage nothing;
  nothing.Orientation = nothing.PrintQuality = nothing.PrintColor = 0;
  VSetPage copies;
  copies.NumOfCopies = 3;
  copies.SortByCopies = true;
  // The defaults ask for an orientation, a quality and a colour.
  const Row rows[] = {
      {"nothing", nothing, 0, {2480, 3507}},
      {"defaults", pageOf(9), 0xC01, {2480, 3507}},
      {"across", pageOf(9, 210, 297, 7), 0xC01, {3507, 2480}},
      {"Letter", pageOf(1), 0xC03, {2550, 3300}},
      {"by its other number", pageOf(17), 0xC03, {3300, 5100}},
      {"wide by nature", pageOf(4), 0xC03, {2480, 3507}},
      {"not offered", pageOf(8), 0xC03, {2480, 3507}},
      {"size 0", pageOf(0, 100), 0xC0F, {1181, 3507}},
      {"size 256", pageOf(256, 100), 0xC0F, {1181, 3507}},
      {"size 0 across", pageOf(0, 250, 80, 2), 0xC0F, {2952, 944}},
      {"size too large", pageOf(0, 1e9, 1e9), 0xC0F, {3543, 5905}},
      {"copies", copies, 0x8D01, {2480, 3507}},
  };
  const auto sheet = [] {
    return Point{gPrintMetrics.PhysicalWidth, gPrintMetrics.PhysicalHeight};
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    const auto context = CreatePrintDC("", row.page, 100, false);
    ASSERT_TRUE(context);
    EXPECT_EQ(context->mode().dmFields, row.fields);
    EXPECT_EQ(sheet(), row.sheet);
    EXPECT_EQ(UpdatePrintMetrics("laser", row.page, 100, false), 1);
    EXPECT_EQ(sheet(), row.sheet);
  }
  EXPECT_EQ(UpdatePrintMetrics("nobody", {}, 100, false), 0);
  EXPECT_EQ(CreatePrintDC("nobody", {}, 100, false), nullptr);
}

TEST_F(Printers, askForCopiesThatAnyQueueTakes) {
  for (const auto& [asked, sent] : {std::pair{-2147483647 - 1, 1}, {0, 1}, {70000, 9999}, {2, 2}}) {
    VSetPage page;
    page.NumOfCopies = asked;
    const auto context = CreatePrintDC("", page, 100, false);
    EXPECT_EQ(ticketOf(context->printer(), context->mode()).copies, sent);
    EXPECT_EQ(UpdatePrintMetrics("", page, 100, false), 1);
  }
}

TEST_F(Printers, listPapersAndBins) {
  VSetPage page;
  ItemList papers;
  int selected = -1;
  ListPapers("", papers, &selected, page);
  EXPECT_EQ(papers,
            (ItemList{"1|Letter   (215.9 x 279.4 mm)", "9|A4   (210 x 297 mm)",
                      "3|Tabloid   (279.4 x 431.8 mm)", "317|om_label_62x100mm   (62 x 100 mm)"}));
  EXPECT_EQ(selected, 1);
  EXPECT_EQ(page.PrintColor, 1);
  EXPECT_EQ(page.MaxExtent.Height, 5000);
  EXPECT_EQ(page.MinExtent.Width, 200);
  page.PaperSize = 8;
  page.PaperWidth = 50;
  selected = -1;
  ListPapers("laser", papers, &selected, page);
  EXPECT_EQ(selected, -1);
  EXPECT_EQ(page.PaperWidth, 210);
  page.PaperSize = 256;
  ListPapers("laser", papers, &selected, page);
  EXPECT_EQ(selected, 0);
  ItemList bins;
  ListBins("laser", bins, &selected, page);
  EXPECT_EQ(bins, (ItemList{"15|Automatically Select", "7|Automatic", "2|Tray 2", "257|roll-7"}));
  ListBins("nobody", bins, &selected, page);
  EXPECT_EQ(bins.size(), 4U);
}

std::string textOf(const std::vector<TreeNode>& nodes, const std::string& indent = "") {
  std::string text;
  for (const TreeNode& node : nodes) {
    text += indent + node.text + (node.isDefault ? " *" : "") + "\n";
    text += textOf(node.children, indent + "  ");
  }
  return text;
}

TEST_F(Printers, standInTheTreeWithAllTheyTell) {
  std::vector<TreeNode> tree;
  FillPrinterTree(tree);
  ASSERT_EQ(tree.size(), 3U);
  const auto& forms = tree[0].children;
  ASSERT_GT(forms.size(), paperTable().size());
  EXPECT_EQ(tree[0].text, "PrintServer");
  EXPECT_EQ(forms.front().text, "Letter  (215.9 x 279.4 mm)   (215.9 x 279.4 mm)  [Form BuiltIn]");
  EXPECT_EQ(forms.back().text, "om_label_62x100mm  (62 x 100 mm)   (55 x 92 mm)  [Form Printer]");
  EXPECT_EQ(tree[1].text, "plain");
  EXPECT_EQ(textOf({tree[2]}), R"(laser *
  Driver Name: Laser 300
  Print Processor: PDF
  Printer Parameters
            Paper Size: A4
           Paper Width: 210 mm
          Paper Height: 297 mm
           Orientation: Portrait
           Paper Width: 198 mm
          Paper Height: 283 mm
                  Port: lpt1:,lpt2:
          Resolution X: 2337 pixels
          Resolution Y: 3341 pixels
        Physical Width: 2480 pixels
       Physical Height: 3507 pixels
           LogPixels X: 300 pixels per inch
           LogPixels Y: 300 pixels per inch
     Physical Offset X: 60 pixels
     Physical Offset Y: 71 pixels
      Scaling Factor X: 1
      Scaling Factor Y: 1
              Aspect X: 300
              Aspect Y: 300
  Paper Size
    Letter  (215.9 x 279.4 mm)  (#1)
    A4  (210 x 297 mm)  (#9)
    Tabloid  (279.4 x 431.8 mm)  (#3)
    om_label_62x100mm  (62 x 100 mm)  (#317)
  Printer's Resolutions
    300 x 300 DPI
    600 x 300 DPI
  Paper Sources
    Automatically Select  ( #15 )
    Automatic  ( #7 )
    Tray 2  ( #2 )
    roll-7  ( #257 )
)");
}

TEST_F(Printers, haveTheFontsOfACharacterSet) {
  const auto has = [](int charset, const std::string& name) {
    ItemList names;
    ListPrinterFonts(names, charset);
    return std::count(names.begin(), names.end(), name);
  };
  for (const int charset : {0, 1, 161, 162, 204, 238})
    EXPECT_EQ(has(charset, "Liberation Mono"), 1);
  for (const int charset : {2, 128, 129, 134}) EXPECT_EQ(has(charset, "Liberation Mono"), 0);
}

TEST(PrintScale, fillsThePaperWithThePage) {
  VSetPrn printer;
  printer.LogPixelsX = 600;
  printer.PhysicalWidth = 4960;
  // 210 mm are 793 dots on the screen; the printer's sheet is 793 wide there, a ratio of 0.999.
  EXPECT_EQ(ComputePrintScale({96, 100, 793}, pageOf(9), printer), 97);
  EXPECT_EQ(ComputePrintScale({96, 100, 793}, pageOf(1), printer), 100);
  EXPECT_EQ(ComputePrintScale({96, 50, 400}, pageOf(1), printer), 99);
  EXPECT_EQ(ComputePrintScale({96, -1, 400}, pageOf(1), printer), -1);
  EXPECT_EQ(ComputePrintScale({96, 100, 0}, pageOf(9), printer), 100);
  EXPECT_EQ(ComputePrintScale({96, 500, 1}, pageOf(1, 1e9), printer), 2147483647);
}

TEST(PaperTable, namesTellSizes) {
  for (const PaperRow& row : paperTable()) EXPECT_TRUE(sizeOfMedia(row.media)) << row.media;
  EXPECT_EQ(sizeOfMedia("iso_a4_210x297mm"), (MediaSize{21000, 29700}));
  EXPECT_EQ(sizeOfMedia("na_letter_8.5x11in"), (MediaSize{21590, 27940}));
  for (const char* name : {"", "iso_a4", "custom_max_15x-490.-931in", "a_1x2", "a_x2mm", "a_0x1mm",
                           "a_1e9x1mm", "a_nanx1mm", "a_1x2mm3"}) {
    EXPECT_FALSE(sizeOfMedia(name)) << name;
  }
}

}  // namespace
}  // namespace qor::test
