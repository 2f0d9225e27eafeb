// The popup menu of the window: its commands mirror the buttons. Shortcuts stand in their texts and
// are the window's to carry out.
#pragma once

#include <QMenu>

class QAction;

namespace qor {

struct ViewMenu {
  explicit ViewMenu(QWidget* window) : mnuPopup(window) {}

  QMenu mnuPopup;
  QMenu* mnuZoom = nullptr;
  QMenu* mnuLanguage = nullptr;
  QMenu* mnuCodePage = nullptr;
  QAction* mnuFirst = nullptr;
  QAction* mnuPrev = nullptr;
  QAction* mnuNext = nullptr;
  QAction* mnuLast = nullptr;
  QAction* mnuZoomPlus = nullptr;
  QAction* mnuZoomMinus = nullptr;
  QAction* mnuActualSize = nullptr;
  QAction* mnuFitWidth = nullptr;
  QAction* mnuFitPage = nullptr;
  QAction* mnuSinglePage = nullptr;
  QAction* mnuMultiPage = nullptr;
  QAction* mnuNormalView = nullptr;
  QAction* mnuWideView = nullptr;
  QAction* mnuListView = nullptr;
  QAction* mnuUnprintable = nullptr;
  QAction* mnuFullScreen = nullptr;
  QAction* mnuRowLine = nullptr;
  QAction* mnuShapeLine = nullptr;
  QAction* mnuProperties = nullptr;
  QAction* mnuSettings = nullptr;
  QAction* mnuMail = nullptr;
  QAction* mnuConvert = nullptr;
  QAction* mnuClose = nullptr;
};

}  // namespace qor
