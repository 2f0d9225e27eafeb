// Storing the window's state.
#include "window_model/view_state.h"

#include "platform/system/user_settings.h"

namespace qor {
namespace {

struct Flag {
  std::string_view name;
  bool ViewState::*field;
};

constexpr Flag kFlags[] = {{"FlagFullWindow", &ViewState::FlagFullWindow},
                           {"ShowUnprintable", &ViewState::ShowUnprintable},
                           {"ListView", &ViewState::ListView},
                           {"MultipageView", &ViewState::MultipageView},
                           {"ImageSaveHTML", &ViewState::ImageSaveHTML},
                           {"ImageSaveDoc", &ViewState::ImageSaveDoc},
                           {"CheckBMP", &ViewState::CheckBMP},
                           {"CheckJPEG", &ViewState::CheckJPEG},
                           {"CheckICO", &ViewState::CheckICO},
                           {"CheckGIF", &ViewState::CheckGIF},
                           {"CheckPNG", &ViewState::CheckPNG},
                           {"CheckPdf", &ViewState::CheckPdf},
                           {"CheckScale", &ViewState::CheckScale}};

constexpr std::string_view kZoom = "ZoomID";
constexpr std::string_view kPreviewType = "PreviewType";
constexpr std::string_view kConvert = "ID_of_Convert";

int zoomOf(const UserSettings& settings) {
  const int entry = settings.integer(kZoom).value_or(kNoZoomEntry);
  const bool known = entry >= 0 && entry < static_cast<int>(kZoomList.size());
  return known ? entry : kNoZoomEntry;
}

}  // namespace

ViewState loadViewState(const UserSettings& settings) {
  ViewState state;
  if (!settings.isUsable()) return state;
  for (const Flag& flag : kFlags) {
    if (const auto value = settings.flag(flag.name)) state.*flag.field = *value;
  }
  state.ZoomID = zoomOf(settings);
  if (settings.integer(kPreviewType) == kWideView) state.PreviewType = kWideView;
  state.ID_of_Convert = settings.integer(kConvert).value_or(state.ID_of_Convert);
  const bool anyFormat =
      state.CheckBMP || state.CheckJPEG || state.CheckICO || state.CheckGIF || state.CheckPNG;
  if (!anyFormat) state.CheckJPEG = true;
  return state;
}

void storeViewState(const ViewState& state, UserSettings& settings) {
  const bool resetZoom = state.PreviewType == kWideView && state.ZoomID > kLastFixedZoomEntry;
  settings.setInteger(kZoom, resetZoom ? kNaturalZoomEntry : state.ZoomID);
  for (const Flag& flag : kFlags) settings.setFlag(flag.name, state.*flag.field);
  settings.setInteger(kPreviewType, state.PreviewType);
  settings.setInteger(kConvert, state.ID_of_Convert);
}

}  // namespace qor
