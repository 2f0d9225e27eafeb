// The texts of the preview window.
#pragma once

#include <string_view>

namespace qor {

struct PreviewTexts {
  // Commands: tool tips, menu entries and accessible names.
  std::string_view close;
  std::string_view firstPage;
  std::string_view previousPage;
  std::string_view nextPage;
  std::string_view lastPage;
  std::string_view zoom;
  std::string_view zoomIn;
  std::string_view zoomOut;
  std::string_view actualSize;
  std::string_view fitWidth;
  std::string_view fitPage;
  std::string_view textTool;
  std::string_view selectPage;
  std::string_view copyText;
  std::string_view copyPicture;
  std::string_view singlePage;
  std::string_view multiPage;
  std::string_view normalView;
  std::string_view wideView;
  std::string_view pageList;
  std::string_view unprintable;
  std::string_view fullWindow;
  std::string_view showRowLine;
  std::string_view showShapeLine;
  std::string_view hideRowLine;
  std::string_view hideShapeLine;
  std::string_view lineProperties;
  std::string_view settings;
  std::string_view mail;
  std::string_view convert;
  std::string_view language;
  // Names of controls that show no text of their own.
  std::string_view pageNumber;
  std::string_view pageCount;
  std::string_view scale;
  std::string_view reportMenu;
  // Words and messages.
  std::string_view page;      // before a page's number
  std::string_view of;        // between a page's number and their count
  std::string_view pageless;  // in the place of a page's number and their count
  std::string_view noPages;
  std::string_view waiting;  // for the first page of a report that is being written
  std::string_view fileChanged;
  std::string_view fileGone;
  std::string_view stateNotRead;
  // Of long jobs; a "%" stands for a number.
  std::string_view speed;
  std::string_view secondsLeft;
  std::string_view minutesLeft;
  std::string_view zoomHeld;  // before the zoom that is shown
  std::string_view companionMissing;
  std::string_view leavesFullWindow;
  std::string_view codePage;
  // Notes on a page. A "%" stands for a number.
  std::string_view outsideStart;
  std::string_view line;
  std::string_view lines;
  std::string_view andAlso;
  std::string_view column;
  std::string_view columns;
  std::string_view outsideOne;
  std::string_view outsideMany;
  std::string_view lettersLeftOut;  // by the code page of this number
  std::string_view codePageOfSet;   // and not that of the command line
  std::string_view textIsUtf8;
  std::string_view lineFeedsEndLines;
  std::string_view lineFeedsRunTogether;
  // Opening reports, and help.
  std::string_view openReport;
  std::string_view recentReports;
  std::string_view keysAndGuide;
  std::string_view guide;
  std::string_view noRecentReports;
  std::string_view dropReport;
  std::string_view reportGone;
  std::string_view reportNotOpened;
  std::string_view openedOf;  // how many of how many
  // Finding.
  std::string_view find;
  std::string_view findNext;
  std::string_view findPrevious;
  // What keys do that have no command.
  std::string_view keyLeapBack;
  std::string_view keyLeapOn;
  std::string_view keyTop;
  std::string_view keyEnd;
  std::string_view keyLeftEnd;
  std::string_view keyRightEnd;
  std::string_view keyUp;
  std::string_view keyDown;
  std::string_view keyLeft;
  std::string_view keyRight;
  std::string_view keyFarUp;
  std::string_view keyFarDown;
  std::string_view keyFarLeft;
  std::string_view keyFarRight;
  std::string_view keyZoomAbove;
  std::string_view keyZoomBelow;
  std::string_view keyMenu;
  std::string_view keyCalculator;
};

}  // namespace qor
