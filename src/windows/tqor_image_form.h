// The images of toolbars, menus and buttons, 24 by 24 pixels and any other size.
#pragma once

#include <QIcon>

#include "platform/qt/svg_icon.h"

namespace qor {

enum class ImageIndex {
  close,
  first,
  previous,
  next,
  last,
  zoomOut,
  zoomIn,
  actualSize,
  fitWidth,
  fitPage,
  textTool,
  selectPage,
  copyText,
  copyPicture,
  singlePage,
  multiPage,
  normalView,
  wideView,
  pageList,
  margins,
  fullScreen,
  alignmentLine,
  properties,
  print,
  mail,
  convert,
  language,
  open,
  find,
  help,
  program
};

class TQorImageForm {
 public:
  static constexpr int kImageSize = 24;  // pixels

  // The image of a command. Drawn when it is first shown.
  static QIcon ImageMenuList(ImageIndex index, IconPlace place);
};

}  // namespace qor
