// What the window remembers of itself from run to run.
#pragma once

#include "window_model/zoom_list.h"

namespace qor {

class UserSettings;

enum PreviewKind { kNormalView = 0, kWideView = 1 };

struct ViewState {
  int ZoomID = kNaturalZoomEntry;  // entry of the zoom list, or none
  bool FlagFullWindow = false;     // no toolbar, no status bar
  bool ShowUnprintable = true;     // margins and the area that the printer can't reach
  bool ListView = false;           // the list of pages
  bool MultipageView = false;
  PreviewKind PreviewType = kNormalView;
  // Choices of the export dialog.
  int ID_of_Convert = 0;
  bool ImageSaveHTML = false;
  bool ImageSaveDoc = false;
  bool CheckBMP = false;
  bool CheckJPEG = false;
  bool CheckICO = false;
  bool CheckGIF = false;
  bool CheckPNG = false;
  bool CheckPdf = false;
  bool CheckScale = false;

  bool operator==(const ViewState&) const = default;

  // Several pages at once: a wide view shows one whatever is chosen.
  bool showsSeveral() const { return MultipageView && PreviewType == kNormalView; }
};

// The state that was stored; values that are absent or make no sense keep theirs, but for a zoom,
// where none is then selected. At least one picture format is always on.
ViewState loadViewState(const UserSettings& settings);

// Stores it. A wide view leaves a fitting or a tiny zoom at 100 percent.
void storeViewState(const ViewState& state, UserSettings& settings);

}  // namespace qor
