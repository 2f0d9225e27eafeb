// What is selected of a page's text: characters in reading order between two places, or those in a
// rectangle of columns. It keeps numbers and no text, so that it holds for its page whenever that
// is shown again; where the page has become shorter it ends with the page.
#pragma once

#include <vector>

#include "render/text_map.h"
#include "search/text_matcher.h"

namespace qor {

enum class SelectionKind { lines, rectangle };

// Moves of the end that a selection is extended by.
enum class SelectionMove { left, right, up, down, lineStart, lineEnd };

class TextSelection {
 public:
  bool operator==(const TextSelection&) const = default;

  bool isEmpty() const;
  SelectionKind kind() const { return kind_; }

  // Starts at a spot of the page, twips, and leads from there to another.
  void start(const TextMap& map, SelectionKind kind, const Spot& spot);
  void extend(const TextMap& map, const Spot& spot);

  // The word at a spot, or the run of blanks, or the sign; the line there; all of the page.
  void takeWord(const TextMap& map, const Spot& spot, const LetterRules& rules);
  void takeLine(const TextMap& map, const Spot& spot);
  void takePage(const TextMap& map);
  void select(const TextMap& map, const TextPlace& from, const TextPlace& to);  // in reading order

  // Moves its end by a character or a line, or down by a height in twips, up where that is below 0.
  // Up and down keep to their column.
  void move(const TextMap& map, SelectionMove move);
  void moveDown(const TextMap& map, double height);

  // Where it starts, and its end: the one that was moved last. The page may have become shorter.
  const TextPlace& anchor() const { return anchor_; }
  const TextPlace& focus() const { return focus_; }

  // Where its end stands, twips.
  Spot end(const TextMap& map) const;

  // The lines that it touches, in reading order; those of a rectangle from top to bottom.
  std::vector<std::size_t> lines(const TextMap& map) const;
  bool touches(const TextMap& map, std::size_t number) const;

  // The selected characters of a line, in runs without a gap. `line` is the map's of that number.
  std::vector<TextSpan> spansOf(const TextMap& map, std::size_t number, const TextLine& line) const;

 private:
  void keepColumn(const TextMap& map);
  void moveInLine(const TextMap& map, SelectionMove move);
  void moveSide(const TextMap& map, SelectionMove move);
  TextSpan inReadingOrder(std::size_t number, std::size_t length) const;
  std::vector<TextSpan> inRectangle(const TextLine& line) const;

  SelectionKind kind_ = SelectionKind::lines;
  TextPlace anchor_;
  TextPlace focus_;
  double anchor_x_ = 0;  // twips, of a rectangle's corner
  double focus_x_ = 0;   // of the other one, and where moves up and down stay
};

}  // namespace qor
