// The draft of the settings dialog and what printers bring into it.
#include "window_model/set_draft.h"

#include <array>
#include <sstream>

#include <gtest/gtest.h>

#include "document/vdoc.h"
#include "support/made_up_printers.h"
#include "support/report_reader.h"
#include "window_model/printer_choices.h"

namespace qor::test {
namespace {

// All options in the order of their declaration.
std::string textOf(const VSetPage& of) {
  std::ostringstream out;
  const auto add = [&out](auto... values) { ((out << " " << +values), ...); };
  out << of.NumOfCopies << " " << of.PrintPagesSet << " '" << of.PagesForPrint << "'";
  add(of.SortByCopies, of.ReverseOrder, of.PaperSize, of.PaperSource, of.PaperWidth);
  add(of.PaperHeight, of.PrintQuality, of.PrintColor, of.Orientation, of.MarginLeft);
  add(of.MarginTop, of.MarginRight, of.MarginBottom, of.BaseCodePage, of.MaxExtent.Width);
  add(of.MaxExtent.Height, of.MinExtent.Width, of.MinExtent.Height);
  return out.str();
}

// No option is the usual one.
VSetPage unusualPage() {
  return {3, 2, "1,3-5", true, true, 256, 7,   100.5,        80.25,     1,
          3, 2, 4,       5,    6,    8,   866, {2001, 3002}, {503, 604}};
}
const char* const kUnusual =
    "3 2 '1,3-5' 1 1 256 7 100.5 80.25 1 3 2 4 5 6 8 866 2001 3002 503 604";

VSetPage pageOf(std::int32_t orientation, double width, double height, std::int32_t color = 1) {
  VSetPage page;
  page.Orientation = orientation;
  page.PaperWidth = width;
  page.PaperHeight = height;
  page.PrintColor = color;
  return page;
}

// "usual" tells nothing; the sheets of "ledger" lie, and it prints black.
std::vector<Queue> queues() {
  Queue usual;
  usual.id = {"usual", "", "usb:1"};
  Queue ledger;
  ledger.id = {"ledger", "", "usb:2"};
  ledger.media = {{"iso_a4_210x297mm", {21000, 29700}, {}},
                  {"na_ledger_11x17in", {43180, 27940}, {}}};
  ledger.defaultMedia = "na_ledger_11x17in";
  ledger.smallest = {5030, 6040};
  ledger.largest = {45010, 46020};
  ledger.sources = {"manual"};
  ledger.color = false;
  return {usual, ledger};
}

class Draft : public testing::Test {
 protected:
  Draft() {
    AppOptions = {};
    AppOptions.DocCodePage = 857;
  }

 private:
  OptionsGuard guard_;
  MadeUpPrinters printers_{queues(), "usual"};
};

TEST_F(Draft, resetsSomeOptionsAndLeavesTheOthers) {
  VSetPage page = unusualPage();
  EXPECT_EQ(textOf(page), kUnusual);
  resetPrintOptions(page);
  EXPECT_EQ(textOf(page), "1 0 '' 0 1 256 7 100.5 80.25 3 1 2 4 5 6 8 866 2001 3002 503 604");
  page = unusualPage();
  resetPageOptions(page);
  EXPECT_EQ(textOf(page), "1 0 '' 0 0 9 15 210 297 3 1 1 0 0 0 0 857 0 0 0 0");
  VSet set;
  set.DefaultPrinterName = "other";
  set.PrinterName = "ledger";
  resetPrinter(set);
  EXPECT_EQ(set.PrinterName + set.DefaultPrinterName, "otherother");
}

TEST_F(Draft, turnsSheetsThatLieOtherwise) {
  const std::array<double, 5> rows[] = {
      {0, 210.7, 148.3, 210.7, 148.3}, {0, 148.3, 210.7, 148.3, 210.7},
      {1, 210.7, 148.3, 148.3, 210},   {1, 148.3, 210.7, 148.3, 210.7},
      {2, 148.3, 210.7, 210.7, 148},   {2, 210.7, 148.3, 210.7, 148.3},
      {2, 150.5, 150.5, 150.5, 150.5}};
  for (const auto& [orientation, width, height, newWidth, newHeight] : rows) {
    VSetPage page = pageOf(static_cast<std::int32_t>(orientation), width, height);
    turnSheet(page);
    EXPECT_EQ(std::pair(page.PaperWidth, page.PaperHeight), std::pair(newWidth, newHeight))
        << orientation << " " << width;
    EXPECT_EQ(page.Orientation, orientation);
  }
}

TEST_F(Draft, isTakenOfTheDocument) {
  VDoc doc;
  doc.Settings.Page = unusualPage();
  doc.Settings.PrinterName = "P";
  doc.PrintScale = 63;
  for (const bool flag : {true, false}) {
    doc.PrintScaleFlag = flag;
    const SetDraft draft = draftOf(doc);
    EXPECT_EQ(textOf(draft.set.Page) + draft.set.PrinterName, std::string(kUnusual) + "P");
    EXPECT_EQ(draft.ScalePercent, 63);
    EXPECT_EQ(draft.ScaleFlag, flag);
  }
}

TEST_F(Draft, reachesTheDocumentWhenItIsApplied) {
  SetDraft draft;
  draft.set.Page = unusualPage();
  draft.set.Font.Height = 12.5;
  draft.ScalePercent = 77;
  draft.set.Prn.DeviceName = "draft";
  // The printer; the draft's own, its default one and its flag; the printer of the options, the one
  // that is measured and the scale behind it.
  const std::tuple<std::array<const char*, 3>, bool, const char*, const char*, std::int32_t, bool>
      rows[] = {{{"usual", "ledger", "usual"}, true, "", "usual", 100, false},
                {{"ledger", "usual", "usual"}, true, "ledger", "ledger", 77, true},
                {{"ledger", "ledger", "usual"}, false, "ledger", "ledger", 77, false},
                {{"ledger", "usual", "ledger"}, true, "", "usual", 100, false}};
  for (const auto& [names, flag, option, measured, scale, scaleFlag] : rows) {
    const auto& [printer, own, usual] = names;
    draft.set.PrinterName = own;
    draft.set.DefaultPrinterName = usual;
    draft.ScaleFlag = flag;
    AppOptions.PrinterName = gDefaultPrn.DeviceName = "before";
    VDoc doc;
    doc.PrintScale = 55;
    doc.PrintScaleFlag = !scaleFlag;
    doc.Settings.Prn.DeviceName = "doc";
    applyDraft(draft, printer, doc);
    EXPECT_EQ(AppOptions.PrinterName, option);
    EXPECT_EQ(gDefaultPrn.DeviceName, measured);
    EXPECT_EQ(doc.PrintScale, scale) << printer;
    EXPECT_EQ(doc.PrintScaleFlag, scaleFlag) << printer << flag;
    EXPECT_EQ(textOf(doc.Settings.Page), kUnusual);
    EXPECT_EQ(doc.Settings.Font, draft.set.Font);
    EXPECT_EQ(doc.Settings.Prn.DeviceName, "doc");
  }
}

// The sides and the colour, and those that were replaced.
std::string textOf(const PrinterChoices& choices, const VSetPage& page) {
  const auto text = [](const PrinterValues& values) {
    std::ostringstream out;
    out << values.PaperWidth << " x " << values.PaperHeight << " in " << values.PrintColor;
    return out.str();
  };
  return text(printerValuesOf(page)) + (choices.replaced ? " for " + text(*choices.replaced) : "");
}

TEST_F(Draft, listsWhatAPrinterOffers) {
  const std::array<int, 4> rows[] = {{9, 15, 1, 0}, {4, 4, 2, 1}, {0, 7, 0, -1}, {8, 1, -1, -1}};
  for (const auto& [size, source, paper, bin] : rows) {
    VSetPage page = unusualPage();
    page.PaperSize = size;
    page.PaperSource = source;
    const PrinterChoices choices = choicesOf("ledger", PrinterIs::lookedAt, "Own", page);
    EXPECT_EQ(choices.papers,
              (ItemList{"Own", "9|A4   (210 x 297 mm)", "4|Ledger   (431.8 x 279.4 mm)"}));
    EXPECT_EQ(choices.bins, (ItemList{"15|Automatically Select", "4|Manual feed"}));
    EXPECT_EQ(std::pair(choices.paper, choices.bin), std::pair(paper, bin));
    EXPECT_EQ(std::pair(page.PaperSize, page.PaperSource), std::pair(size, source));
    EXPECT_EQ(page.MinExtent.Width, 503);
    EXPECT_EQ(page.MaxExtent.Height, 4602);
  }
  for (const char* printer : {"", "nobody"}) {
    VSetPage page = unusualPage();
    const PrinterChoices choices = choicesOf(printer, PrinterIs::chosen, "Own", page);
    EXPECT_TRUE(choices.papers.empty() && choices.bins.empty() && !choices.replaced) << printer;
    EXPECT_EQ(choices.paper + choices.bin, -2);
    EXPECT_EQ(textOf(page), "3 2 '1,3-5' 1 1 256 7 100.5 80.25 1 3 2 4 5 6 8 866 0 0 0 0");
  }
}

TEST_F(Draft, takesSizeAndColorOfAPrinterThatIsChosen) {
  using enum PrinterIs;
  const std::tuple<const char*, PrinterIs, VSetPage, const char*> rows[] = {
      {"ledger", chosen, pageOf(1, 210.5, 297.5, 3), "279.4 x 431 in 1 for 210.5 x 297.5 in 3"},
      {"ledger", chosen, pageOf(2, 210.5, 297.5), "431.8 x 279.4 in 1 for 210.5 x 297.5 in 1"},
      {"ledger", chosen, pageOf(1, 279.4, 431), "279.4 x 431 in 1"},
      {"ledger", chosen, pageOf(1, 279, 431), "279.4 x 431 in 1 for 279 x 431 in 1"},
      {"ledger", chosen, pageOf(1, 279.4, 431.8), "279.4 x 431 in 1 for 279.4 x 431.8 in 1"},
      {"ledger", chosen, pageOf(1, 279.4, 431, 2), "279.4 x 431 in 1 for 279.4 x 431 in 2"},
      {"ledger", lookedAt, pageOf(1, 297.5, 210.5, 3), "297.5 x 210.5 in 3"},
      {"usual", chosen, pageOf(2, 210, 297), "297 x 210 in 2 for 210 x 297 in 1"}};
  for (const auto& [printer, is, before, after] : rows) {
    VSetPage page = before;
    const PrinterChoices choices = choicesOf(printer, is, "Own", page);
    EXPECT_EQ(textOf(choices, page), after);
    if (!choices.replaced) continue;
    setPrinterValues(page, *choices.replaced);
    EXPECT_EQ(textOf({}, page), textOf({}, before));
  }
}

}  // namespace
}  // namespace qor::test
