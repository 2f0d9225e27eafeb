// Marks the hits of a search over the page on view, the present one differently.
#pragma once

#include "windows/view/page_overlay.h"

namespace qor {

class PageText;
class TextFinder;
struct ViewDesk;

class HitMarks : public OverlayLayer {
 public:
  HitMarks(ViewDesk& desk, PageText& text, TextFinder& finder);
  ~HitMarks() override;

  // They stand over the page while there is a search; it has changed.
  void update();

  void paint(QPainter& painter, const PageMapping& mapping) override;

 private:
  ViewDesk& desk_;
  PageText& text_;
  TextFinder& finder_;
};

}  // namespace qor
