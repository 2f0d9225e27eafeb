// The scrolling area as screen readers know it: a document whose text is that of the page on view.
#pragma once

#include <QAccessibleWidget>
#include <optional>

#include "search/text_matcher.h"

namespace qor {

class SpokenPage;

class PageAccessible : public QAccessibleWidget, public QAccessibleTextInterface {
 public:
  // Areas get it from now on when somebody asks for their interface.
  static void install();

  explicit PageAccessible(QWidget* area) : QAccessibleWidget(area, QAccessible::Document) {}

  bool isValid() const override;  // false once the window lets go of its parts
  QAccessible::State state() const override;
  void* interface_cast(QAccessible::InterfaceType kind) override;

  int characterCount() const override;
  using QAccessibleWidget::text;
  QString text(int start, int end) const override;
  QString textAtOffset(int offset, QAccessible::TextBoundaryType kind, int* start,
                       int* end) const override;
  QString textBeforeOffset(int offset, QAccessible::TextBoundaryType kind, int* start,
                           int* end) const override;
  QString textAfterOffset(int offset, QAccessible::TextBoundaryType kind, int* start,
                          int* end) const override;
  QString attributes(int offset, int* start, int* end) const override;

  QRect characterRect(int offset) const override;
  int offsetAtPoint(const QPoint& point) const override;
  void scrollToSubstring(int start, int end) override;

  int cursorPosition() const override;
  void setCursorPosition(int offset) override;
  int selectionCount() const override;
  void selection(int number, int* start, int* end) const override;
  void addSelection(int start, int end) override;
  void removeSelection(int number) override;
  void setSelection(int number, int start, int end) override;

 private:
  SpokenPage& page() const;
  QString told(const std::optional<TextSpan>& piece, int* start, int* end) const;
};

}  // namespace qor
