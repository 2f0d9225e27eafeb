// The entry of the module that holds the windows: only runs that open one load it, since its
// libraries take longer to start than most exports.
#pragma once

#include <string>
#include <vector>

namespace qor {

class VDoc;

inline constexpr const char* kPreviewModule = "qor_preview";
inline constexpr const char* kRunPreviewSymbol = "qorRunPreview";
inline constexpr const char* kShowBoxesSymbol = "qorShowBoxes";
inline constexpr const char* kShowStartSymbol = "qorShowStart";

// Shows a scanned document and returns when the window is closed. `warnings` are shown in boxes
// first. `loadSettings` runs between the making of the window and its showing; what it throws comes
// through. True if a page of the report, as its file now is, was on view. `made` takes the files
// that the user has had made.
using RunPreview = bool(VDoc& doc, void (*loadSettings)(VDoc&),
                        const std::vector<std::string>& warnings, std::vector<std::string>& made);

// Shows warnings in boxes and returns when they are closed. Without a display the process ends with
// the exit code, and without a word.
using ShowBoxes = void(const std::vector<std::string>& warnings, int exitCode);

// Shows the window of a start without a report until it is closed, or a report is opened from it.
// Without a display the process ends, and without a word.
using ShowStartWindow = void();

}  // namespace qor
