// The lines over the page: at most one of each kind, and their properties.
#pragma once

#include <QObject>
#include <QPointer>
#include <array>
#include <functional>
#include <optional>

#include "window_model/line_file.h"
#include "windows/alignment/alignment_line.h"

namespace qor {

class AlignmentLines : public QObject {
  Q_OBJECT

 public:
  struct Page : AlignmentLine::Page {
    // How far a place of the area is below the sheet's top; nothing where no single page is seen.
    std::function<std::optional<double>(int y)> millimetresAt;
    // Shows a hint for a moment.
    std::function<void(const QString& hint)> tell;
  };

  // They stand in the area.
  AlignmentLines(QWidget* area, LineFile file, Page page);
  ~AlignmentLines() override;

  // Shows the lines that are there from the start. Throws FileError.
  void FormShow();
  // Stores where lines stand. Throws FileError.
  void FormClose() const;

  bool isShown(LineKind kind) const { return line(kind) != nullptr; }
  bool isAnyShown() const { return isShown(LineKind::row) || isShown(LineKind::shape); }

  // Shows the line, or takes it away.
  void mnuRowLineClick() { toggle(LineKind::row); }
  void mnuShapeLineClick() { toggle(LineKind::shape); }
  // The properties of the line, or of the one that is there.
  void mnuPropertiesClick();

  // A step of the page under the lines. They come along and, once one of them is beyond its way,
  // the page before (-1) or behind (1) is asked for, and nothing moves.
  int walk(int way);

  // To the ends of their ways, one beside the other; and to the top only those that are near it.
  void toTop();
  void toBottom();
  void nearToTop();

  // What is seen has changed: they span it, above everything else and in sight, and tell their
  // places anew.
  void rebuild();

 signals:
  void toggled();
  void left();  // by keyboard

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  using Place = std::function<int(const AlignmentLine& line, const LineRoom& room)>;

  AlignmentLine* line(LineKind kind) const { return lines_[static_cast<std::size_t>(kind)]; }
  void show(LineKind kind, const LineLook& look);
  void toggle(LineKind kind);
  void forEachLine(const std::function<void(AlignmentLine&)>& use) const;
  void putEach(const Place& place);
  void tellPlace(AlignmentLine& line, bool byUser);
  void showProperties(const AlignmentLine& line);
  void apply(const LineLook& look);

  QWidget* area_;
  LineFile file_;
  Page page_;
  std::array<QPointer<AlignmentLine>, kLineKinds.size()> lines_;
};

}  // namespace qor
