// What the window stores, and small texts of it.
#include "preview/model/view_state.h"

#include <map>

#include <gtest/gtest.h>

#include "platform/user_settings.h"
#include "preview/model/file_dates.h"
#include "preview/model/owner_number.h"

namespace qor::test {
namespace {

// Values as texts, as a settings file holds them.
class MadeUpSettings : public UserSettings {
 public:
  bool isUsable() const override { return usable; }
  std::optional<int> integer(std::string_view name) const override {
    const auto found = values.find(name);
    return found == values.end() ? std::nullopt : std::optional(found->second);
  }
  std::optional<bool> flag(std::string_view name) const override {
    const auto value = integer(name);
    return value ? std::optional(*value != 0) : std::nullopt;
  }
  void setInteger(std::string_view name, int value) override { values[std::string(name)] = value; }
  void setFlag(std::string_view name, bool value) override { setInteger(name, value ? 1 : 0); }
  bool save() override { return true; }
  std::string place() const override { return "nowhere"; }

  std::map<std::string, int, std::less<>> values;
  bool usable = true;
};

TEST(ViewState, ComesBackAsItWasStored) {
  ViewState state;
  state.ZoomID = 3;
  state.FlagFullWindow = state.ListView = state.MultipageView = state.ImageSaveHTML = true;
  state.ShowUnprintable = false;
  state.ID_of_Convert = 5;
  state.CheckGIF = state.CheckPdf = true;
  MadeUpSettings settings;
  storeViewState(state, settings);
  const std::map<std::string, int, std::less<>> stored = {
      {"ZoomID", 3},        {"FlagFullWindow", 1}, {"ShowUnprintable", 0}, {"ListView", 1},
      {"MultipageView", 1}, {"PreviewType", 0},    {"ID_of_Convert", 5},   {"ImageSaveHTML", 1},
      {"ImageSaveDoc", 0},  {"CheckBMP", 0},       {"CheckJPEG", 0},       {"CheckICO", 0},
      {"CheckGIF", 1},      {"CheckPNG", 0},       {"CheckPdf", 1},        {"CheckScale", 0}};
  EXPECT_EQ(settings.values, stored);
  MadeUpSettings again;
  storeViewState(loadViewState(settings), again);
  EXPECT_EQ(again.values, stored);
}

TEST(ViewState, AbsentAndSenselessValuesKeepTheirPlace) {
  MadeUpSettings settings;
  ViewState state = loadViewState(settings);
  EXPECT_EQ(state.ZoomID, kNoZoomEntry);
  EXPECT_TRUE(state.ShowUnprintable);
  EXPECT_TRUE(state.CheckJPEG) << "one picture format is always on";
  settings.values = {{"ZoomID", 14}, {"PreviewType", 7}, {"CheckICO", 1}};
  state = loadViewState(settings);
  EXPECT_EQ(state.ZoomID, kNoZoomEntry);
  EXPECT_EQ(state.PreviewType, kNormalView);
  EXPECT_FALSE(state.CheckJPEG);
  settings.usable = false;
  EXPECT_EQ(loadViewState(settings).ZoomID, kNaturalZoomEntry);
}

TEST(ViewState, AWideViewKeepsNoFittingZoom) {
  struct Row {
    int view;
    int zoom;
    int stored;
  };
  for (const Row& row : {Row{kWideView, 13, 6}, Row{kWideView, 11, 6}, Row{kWideView, 10, 10},
                         Row{kNormalView, 13, 13}}) {
    ViewState state;
    state.PreviewType = row.view;
    state.ZoomID = row.zoom;
    MadeUpSettings settings;
    storeViewState(state, settings);
    EXPECT_EQ(settings.values["ZoomID"], row.stored) << row.zoom;
  }
}

TEST(ViewTexts, DatesMoveTheHourAlone) {
  const UtcTime late = {2026, 3, 7, 23, 5};
  EXPECT_EQ(fileDateText(late, 0), "07/03/2026  23:05");
  EXPECT_EQ(fileDateText(late, -180), "07/03/2026  26:05");
  EXPECT_EQ(fileDateText({2026, 12, 31, 2, 45}, 300), "31/12/2026  65533:45");
  EXPECT_EQ(fileDateText({2026, 1, 1, 9, 0}, 210), "01/01/2026  6:00") << "whole hours only";
}

TEST(ViewTexts, OwnersNumberStandsBeforeTheLastPoint) {
  struct Row {
    const char* name;
    std::int32_t number;
  };
  for (const Row& row :
       {Row{"/tmp/rep1234.txt", 1234}, Row{"/a.b/rep0042.txt", 42}, Row{"r1234.new.txt", 0},
        Row{"/tmp/report.txt", 0}, Row{"1.txt", 1}, Row{"noend1234", 0}, Row{"", 0}}) {
    EXPECT_EQ(ownerNumber(row.name), row.number) << row.name;
  }
}

}  // namespace
}  // namespace qor::test
