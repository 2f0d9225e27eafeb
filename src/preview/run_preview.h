// The entry of the module that holds the windows: only runs that open one load it, since its
// libraries take longer to start than most exports.
#pragma once

namespace qor {

class VDoc;

inline constexpr const char* kPreviewModule = "qor_preview";
inline constexpr const char* kRunPreviewSymbol = "qorRunPreview";

// Shows a scanned document and returns when the window is closed. `loadSettings` runs between the
// making of the window and its showing; what it throws comes through.
using RunPreview = void(VDoc& doc, void (*loadSettings)(VDoc&));

}  // namespace qor
