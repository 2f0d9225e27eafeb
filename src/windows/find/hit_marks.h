// Marks the hits of a search over the page on view, the present one differently.
#pragma once

#include <optional>

#include "search/text_matcher.h"
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
  void markLine(QPainter& painter, const PageMapping& mapping, std::size_t line);

  ViewDesk& desk_;
  PageText& text_;
  TextFinder& finder_;
  std::optional<TextMatcher> matcher_;
  FindQuery query_;  // of the matcher
  bool on_view_ = false;
};

}  // namespace qor
