// The text of the page on show and its places, made when somebody asks for it, dropped when the
// window lets go of the page.
#pragma once

#include <QObject>
#include <memory>

#include "render/text_map.h"

namespace qor {

class PageShow;
class VDocPage;

class PageText : public QObject {
  Q_OBJECT

 public:
  explicit PageText(PageShow& pages);

  // Null where no page is loaded, or its letters can't be told.
  const TextMap* map();

  // That of any loaded page. Throws as LoadCodePage and DocumentLetters.
  static TextMap mapOf(VDocPage& page);

 signals:
  void dropped();

 private:
  PageShow& pages_;
  std::unique_ptr<TextMap> map_;
};

}  // namespace qor
