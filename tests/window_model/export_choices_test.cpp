// What the export dialog shows, remembers and tells exporters.
#include "window_model/export_choices.h"

#include "support/test.h"
#include "window_model/view_state.h"

namespace qor::test {
namespace {

constexpr bool ViewState::*kFlags[] = {
    &ViewState::ImageSaveHTML, &ViewState::ImageSaveDoc, &ViewState::CheckBMP,
    &ViewState::CheckJPEG,     &ViewState::CheckGIF,     &ViewState::CheckICO,
    &ViewState::CheckPNG,      &ViewState::CheckPdf,     &ViewState::CheckScale};

// The nine flags in that order, as digits; the boxes that show them, and options that tell them.
std::string digits(std::initializer_list<bool> flags) {
  std::string text;
  for (const bool flag : flags) text += flag ? '1' : '0';
  return text;
}
std::string flagsOf(const ViewState& state) {
  std::string text;
  for (const auto flag : kFlags) text += digits({state.*flag});
  return text;
}
std::string flagsOf(const ExportChoices& c) {
  return digits({c.saveHtmlPictures, c.saveDocPictures, c.pictures[kImageBmp],
                 c.pictures[kImageJpeg], c.pictures[kImageGif], c.pictures[kImageIco],
                 c.pictures[kImagePng], c.printToPdf, c.scaleToPaper});
}
std::string flagsOf(const ExportOptions& o) {
  return digits({o.SaveHtmlPictures, o.SaveDocPictures, o.ImageFormats[kImageBmp],
                 o.ImageFormats[kImageJpeg], o.ImageFormats[kImageGif], o.ImageFormats[kImageIco],
                 o.ImageFormats[kImagePng], o.PrintToPdfPrinter, o.ScaleToPaper});
}

ViewState stateOf(const std::string& flags, PreviewKind kind = kWideView, int format = 4) {
  ViewState state;
  for (std::size_t i = 0; i < flags.size(); ++i) state.*kFlags[i] = flags[i] == '1';
  state.PreviewType = kind;
  state.ID_of_Convert = format;
  return state;
}

TEST(ExportChoices, showWhatIsStoredAndKeepTheOtherBoxes) {
  // What is stored, what was in the boxes before, what they show, and what is mailed.
  for (const std::string& row :
       linesOf("000000000 000000000 000100000 000100000|100000000 000000000 100100000 100100000|"
               "010000000 000000000 010100000 010100000|001000000 000000000 001100000 001000000|"
               "000010000 000000000 000110000 000010000|000001000 000000000 000101000 000001000|"
               "000000100 000000000 000100100 000000100|000000010 000000000 000100010 000100010|"
               "000000001 000000000 000100001 000100001|000000000 101011110 101111110 000100000|"
               "111111111 000000000 111111111 111111111",
               '|')) {
    const auto words = wordsOf(row);
    const std::string &stored = words[0], &before = words[1], &shown = words[2], &mailed = words[3];
    for (const PreviewKind kind : {kNormalView, kWideView}) {
      const ViewState state = stateOf(stored, kind);
      ExportChoices choices;
      showStored(stateOf(before), choices);
      choices.pictures[kImageJpeg] = false;
      choices.sheetType = 2;
      chooseTab(false, choices);
      choices.scaleToPaper = true;
      showStored(state, choices);
      std::string boxes = shown;
      if (kind == kWideView) boxes.back() = '1';
      EXPECT_EQ(flagsOf(choices), boxes) << stored;
      EXPECT_EQ(choices.scaleEnabled, kind == kWideView);
      EXPECT_EQ(choices.format, 4);
      EXPECT_EQ(choices.sheetType, 0);
      EXPECT_TRUE(choices.tabSeparates && !choices.separatorsEnabled && !choices.separatorEnabled);
      ViewState left = stateOf("111111111", kind, 6);
      storeChoices(choices, left);
      EXPECT_EQ(flagsOf(left), boxes);
      EXPECT_EQ(left, stateOf(boxes, kind)) << "format and flags, and nothing else";
      // Only a wide view is scaled to the paper.
      const auto inForce = [kind](std::string flags) {
        if (kind == kNormalView) flags.back() = '0';
        return flags;
      };
      EXPECT_EQ(flagsOf(mailOptions(state, {})), inForce(mailed));
      EXPECT_EQ(flagsOf(dialogOptions(choices, {}, 1252)), inForce(boxes));
    }
  }
  for (const auto& [stored, format] : {std::pair{0, 0}, {6, 6}, {7, 0}, {-1, 0}}) {
    ExportChoices choices;
    showStored(stateOf("", kWideView, stored), choices);
    EXPECT_EQ(choices.format, format);
  }
}

TEST(ExportChoices, becomeOptions) {
  const auto others = [](const ExportOptions& o) {
    return digits({o.UseNewPageChar, o.UseEofChar, o.PagePerSheet}) + o.CsvSeparator +
           std::to_string(o.PaperScale) + " " + std::to_string(o.PreviewPageWidth);
  };
  EXPECT_EQ(others(mailOptions({}, {70, 800})), "111;70 800");
  EXPECT_EQ(others(mailOptions({}, {})), "111;100 0");
  ExportChoices choices;
  EXPECT_EQ(others(dialogOptions(choices, {120, 640}, 1252)), "000;120 640");
  choices.separator = "x";
  const std::pair<bool ExportChoices::*, const char*> rows[] = {
      {&ExportChoices::useNewPageChar, "100x100 0"},
      {&ExportChoices::useEofChar, "010x100 0"},
      {&ExportChoices::pagePerSheet, "001x100 0"}};
  for (const auto& [box, expected] : rows) {
    choices.*box = true;
    EXPECT_EQ(others(dialogOptions(choices, {}, 1252)), expected);
    choices.*box = false;
  }
}

TEST(ExportChoices, separateFieldsByOneByte) {
  const std::tuple<bool, const char*, int, char> rows[] = {
      {true, "", 1252, '\t'},     {true, "x", 1252, '\t'},     {false, "", 1252, ';'},
      {false, " \t ", 1252, ';'}, {false, " ,|", 1252, ','},   {false, "?", 1252, '?'},
      {false, "§", 1252, '\xA7'}, {false, "ж;", 1251, '\xE6'}, {false, "ж", 866, '\xA6'},
      {false, "ж", 1252, ';'},    {false, "ж", 65001, ';'}};
  for (const auto& [tab, separator, codePage, expected] : rows) {
    ExportChoices choices;
    choices.tabSeparates = tab;
    choices.separator = separator;
    EXPECT_EQ(csvSeparator(choices, codePage), expected) << separator << codePage;
  }
}

TEST(ExportChoices, enableWhatCanBeChosen) {
  ExportChoices choices;
  showStored({}, choices);
  for (const auto& [type, enabled] : {std::pair{2, true}, {1, false}, {2, true}, {0, false}}) {
    chooseSheetType(type, choices);
    EXPECT_EQ(choices.separatorsEnabled, enabled) << type;
    EXPECT_EQ(choices.sheetType, type);
    EXPECT_FALSE(choices.separatorEnabled) << "keeps its own state";
  }
  choices.separator = ",";
  chooseTab(false, choices);
  EXPECT_TRUE(choices.separatorEnabled && !choices.tabSeparates && choices.separator == ",");
  chooseSheetType(1, choices);
  EXPECT_TRUE(choices.separatorEnabled) << "keeps its own state";
  chooseTab(true, choices);
  EXPECT_TRUE(!choices.separatorEnabled && choices.tabSeparates && choices.separator.empty());
}

}  // namespace
}  // namespace qor::test
