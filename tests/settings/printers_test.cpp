// Printers in front of a print system made up: device modes, lists, the tree and the scale.
#include "settings/printers.h"

#include "platform/canvas/canvas.h"
#include "settings/print_scale.h"
#include "settings/printer_lists.h"
#include "settings/printer_tree.h"
#include "support/made_up_printers.h"
#include "support/test.h"

namespace qor::test {
namespace {

// Two queues: one with margins, trays, its own papers and dots that are no squares, one that tells
// nothing.
std::vector<Queue> madeUpQueues() {
  Queue laser;
  laser.id = {"laser", "Laser 300", "lpt1:,lpt2:"};
  const MediaMargins margins = {500, 600, 700, 800};
  laser.media = {{"na_letter_8.5x11in", {21590, 27940}, margins},
                 {"iso_a4_210x297mm", {21000, 29700}, margins},
                 {"na_ledger_11x17in", {27940, 43180}, margins},
                 {"om_label_62x100mm", {6200, 10000}, margins}};
  laser.defaultMedia = "iso_a4_210x297mm";
  laser.defaultMargins = margins;
  laser.smallest = {2000, 3000};
  laser.largest = {30000, 50000};
  laser.sources = {"auto",     "tray-2",       "roll-7",        "top",    "tray-1",
                   "main",     "bottom",       "tray-3",        "middle", "manual",
                   "envelope", "by-pass-tray", "large-capacity"};
  laser.resolutions = {{300, 150}, {600, 300}};
  laser.color = false;
  Queue plain;
  plain.id = {"plain", "Plain", "usb:1"};
  return {laser, plain};
}

class Printers : public testing::Test {
 protected:
  MadeUpPrinters printers_{madeUpQueues(), "laser"};
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
  const VSetPrn& laser = gDefaultPrn;
  // 210 x 297 mm less 5, 6, 7 and 8 mm, at 300 by 150 dots per inch.
  EXPECT_EQ(numbersOf(laser), (std::vector{1, 300, 150, 198, 283, 2480, 1753, 60, 36,
                                           2480 - 60 - 83, 1753 - 36 - 48}));
  EXPECT_EQ(laser.ResolutionX, 300);
  EXPECT_EQ(laser.ResolutionY, 1);  // what stands there is the colour mode
  EXPECT_EQ(laser.PortName, "lpt1:");
  VSetPrn other;
  EXPECT_TRUE(MeasureNamedPrinter("nobody", &other));  // some printer was measured
  EXPECT_EQ(other.DeviceName, "");
  EXPECT_TRUE(MeasureNamedPrinter("plain", &other));
  EXPECT_EQ(other.HorzRes, 4960);
  // The upright sheet's bottom is at the left, its left at the top; half the scale.
  CreatePrintDC("laser", pageOf(9, 210, 297, 2), 50, true);
  EXPECT_EQ(numbersOf(gPrintMetrics), (std::vector{2, 150, 75, 283, 198, 3507, 1240, 95, 30,
                                                   3507 - 95 - 71, 1240 - 30 - 42}));
  printers_.makeDefault("gone");
  InitPrinters();
  EXPECT_EQ(GetDefaultPrinterName(), kPdfFilePrinter);
  EXPECT_EQ(gDefaultPrn.DeviceName, kPdfFilePrinter);
}

TEST_F(Printers, takeDeviceModesFromThePage) {
  VSetPage nothing;
  nothing.Orientation = nothing.PrintQuality = nothing.PrintColor = 0;
  VSetPage copies;
  copies.NumOfCopies = 3;
  copies.SortByCopies = true;
  copies.PaperSource = 2;
  // The defaults ask for an orientation, a quality and a colour.
  // The page, the fields, and the sheet in dots of 1/300 by 1/150 inch, the same for measuring and
  // printing.
  const std::tuple<VSetPage, std::uint32_t, Point> rows[] = {
      {nothing, 0, {2480, 1753}},
      {pageOf(9), 0xC01, {2480, 1753}},
      {pageOf(9, 210, 297, 7), 0xC01, {3507, 1240}},
      {pageOf(1), 0xC03, {2550, 1650}},
      {pageOf(17), 0xC03, {3300, 2550}},  // another number of a paper that is offered
      {pageOf(4), 0xC03, {2480, 1753}},   // wide by nature
      {pageOf(8), 0xC03, {2480, 1753}},   // not offered
      {pageOf(0, 100), 0xC0F, {1181, 1753}},
      {pageOf(256, 100), 0xC0F, {1181, 1753}},
      {pageOf(0, 250, 80, 2), 0xC0F, {2952, 472}},
      {pageOf(0, 1e9, 1e9), 0xC0F, {3543, 2952}},
      {copies, 0x8F01, {2480, 1753}}};
  const auto sheet = [] {
    return Point{gPrintMetrics.PhysicalWidth, gPrintMetrics.PhysicalHeight};
  };
  for (const auto& [page, fields, dots] : rows) {
    const auto context = CreatePrintDC("", page, 100, false);
    EXPECT_EQ(context->mode().dmFields, fields) << page.PaperSize;
    EXPECT_EQ(context->mode().dmDefaultSource, page.PaperSource);
    EXPECT_EQ(sheet(), dots) << page.PaperSize;
    EXPECT_EQ(UpdatePrintMetrics("laser", page, 100, false), 1);
    EXPECT_EQ(sheet(), dots) << page.PaperSize;
  }
  EXPECT_EQ(UpdatePrintMetrics("nobody", {}, 100, false), 0);
  EXPECT_EQ(CreatePrintDC("nobody", {}, 100, false), nullptr);
}

TEST_F(Printers, turnWishesIntoTickets) {
  const auto ticket = [](const VSetPage& page) {
    const auto context = CreatePrintDC("", page, 100, false);
    return ticketOf(context->printer(), context->mode());
  };
  VSetPage page;
  for (const auto& [asked, sent] : {std::pair{-2147483647 - 1, 1}, {0, 1}, {70000, 9999}, {2, 2}}) {
    page.NumOfCopies = asked;
    EXPECT_EQ(ticket(page).copies, sent);
    EXPECT_FALSE(ticket(page).collated);
    EXPECT_EQ(UpdatePrintMetrics("", page, 100, false), 1);
  }
  int quality = 1;
  using enum PrintQuality;
  for (const auto sent : {draft, draft, normal, high}) {
    page.PrintQuality = quality++;
    EXPECT_EQ(ticket(page).quality, sent);
  }
  EXPECT_EQ(ticket(page).color, false);
  page.PrintColor = 2;
  EXPECT_EQ(ticket(page).color, true);
  page.PrintColor = page.PrintQuality = 0;
  EXPECT_FALSE(ticket(page).color || ticket(page).quality);
  page.SortByCopies = true;
  EXPECT_TRUE(ticket(page).collated);
  for (const auto& [bin, source] :
       {std::pair{15, ""}, {1, "top"}, {24852, "tray-1"}, {2, "tray-2"}, {7, "auto"}, {99, ""}}) {
    page.PaperSource = bin;
    EXPECT_EQ(ticket(page).source, source);
  }
  page.Orientation = 2;
  EXPECT_EQ(ticket(page).mediaSize, (MediaSize{21000, 29700}));
}

TEST_F(Printers, cutSheetsToTheSizesThatTheyTake) {
  DeviceMode mode;
  mode.dmPaperSize = kUserPaper;
  mode.dmFields = DM_PAPERLENGTH | DM_PAPERWIDTH;
  const auto cut = [&mode](int width, int length) {
    mode.dmPaperWidth = width;
    mode.dmPaperLength = length;
    return mediaOf(*FindPrinter("laser"), mode).name;
  };
  // From 20 x 30 to 300 x 500 mm.
  EXPECT_EQ(cut(199, 299), "custom_20x30mm_20x30mm");
  EXPECT_EQ(cut(201, 301), "custom_20.1x30.1mm_20.1x30.1mm");
  EXPECT_EQ(cut(3001, 5001), "custom_300x500mm_300x500mm");
  EXPECT_EQ(cut(2999, 4999), "custom_299.9x499.9mm_299.9x499.9mm");
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
  page.PaperWidth = 50;
  for (const auto& [paper, entry] : {std::pair{8, -1}, {256, 0}}) {
    page.PaperSize = paper;
    selected = -1;
    ListPapers("laser", papers, &selected, page);
    EXPECT_EQ(selected, entry);
    EXPECT_EQ(page.PaperWidth, 210);
  }
  ItemList bins;
  ListBins("laser", bins, &selected, page);
  EXPECT_EQ(bins, (ItemList{"15|Automatically Select", "7|Automatic", "2|Tray 2", "11451|roll-7",
                            "1|Upper tray", "24852|Tray 1", "23849|Main tray", "15051|Lower tray",
                            "3|Tray 3", "23129|Middle tray", "4|Manual feed", "5|Envelope feeder",
                            "25802|Manual feed", "11|Large capacity tray"}));
  EXPECT_EQ(selected, 0);
}

TEST_F(Printers, standInTheTreeWithAllTheyTell) {
  std::vector<TreeNode> tree;
  const auto roots = [&tree] {
    FillPrinterTree(tree);
    std::string text;
    for (const TreeNode& node : tree)
      text += node.text + (node.isDefault ? " *" : "") + (node.isUnknown ? "?" : "") + "|";
    return text;
  };
  EXPECT_EQ(roots(), "PrintServer|laser *|");
  printSystem().list();
  EXPECT_EQ(roots(), "PrintServer|Microsoft Print to PDF?|plain?|laser *|");
  FindPrinter("plain");
  EXPECT_EQ(roots(), "PrintServer|Microsoft Print to PDF?|plain|laser *|");
  const auto& forms = tree[0].children;
  EXPECT_EQ(forms.at(0).text, "Letter  (215.9 x 279.4 mm)   (215.9 x 279.4 mm)  [Form BuiltIn]");
  EXPECT_EQ(forms.back().text, "om_label_62x100mm  (62 x 100 mm)   (55 x 92 mm)  [Form Printer]");
  const auto textOf = [](const TreeNode& branch) {
    std::string text;
    for (const TreeNode& leaf : branch.children)
      text += leaf.text.substr(leaf.text.find_first_not_of(' ')) + "|";
    return text;
  };
  const auto& laser = tree[3].children;
  EXPECT_EQ(laser.at(0).text + "|" + laser.at(1).text,
            "Driver Name: Laser 300|Print Processor: PDF");
  EXPECT_EQ(textOf(laser.at(2)),
            "Paper Size: A4|Paper Width: 210 mm|Paper Height: 297 mm|Orientation: Portrait|"
            "Paper Width: 198 mm|Paper Height: 283 mm|Port: lpt1:,lpt2:|"
            "Resolution X: 2337 pixels|Resolution Y: 1669 pixels|Physical Width: 2480 pixels|"
            "Physical Height: 1753 pixels|LogPixels X: 300 pixels per inch|"
            "LogPixels Y: 150 pixels per inch|Physical Offset X: 60 pixels|"
            "Physical Offset Y: 36 pixels|Scaling Factor X: 1|Scaling Factor Y: 1|Aspect X: 300|"
            "Aspect Y: 150|");
  EXPECT_EQ(textOf(laser.at(3)),
            "Letter  (215.9 x 279.4 mm)  (#1)|A4  (210 x 297 mm)  (#9)|"
            "Tabloid  (279.4 x 431.8 mm)  (#3)|om_label_62x100mm  (62 x 100 mm)  (#317)|");
  EXPECT_EQ(textOf(laser.at(4)), "300 x 150 DPI|600 x 300 DPI|");
  EXPECT_NE(textOf(laser.at(5)).find("|roll-7  ( #11451 )|"), std::string::npos);
  EXPECT_EQ(textOf(tree[2].children.at(4)), "600 x 600 DPI|");
  printSystem().learn("plain", {});
  FillPrinterTree(tree);
  EXPECT_EQ(tree[2].children.at(0).text, "Driver Name: Plain");
}

TEST_F(Printers, haveTheFontsOfACharacterSet) {
  for (const int charset : {0, 161, 162, 204, 238, 2, 128, 134}) {
    ItemList names;
    ListPrinterFonts(names, charset);
    const bool hasLetters = charset != 2 && charset != 128 && charset != 134;
    EXPECT_EQ(std::count(names.begin(), names.end(), "Liberation Mono"), hasLetters) << charset;
  }
  gPrinterMeasured = false;
  ItemList names = {"old"};
  ListPrinterFonts(names, 0);
  EXPECT_TRUE(names.empty()) << "as long as no printer was measured";
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

}  // namespace
}  // namespace qor::test
