// Copying text.
#include "window_model/copied_text.h"

#include <algorithm>

#include "base/text.h"
#include "platform/system/text_encoding.h"
#include "window_model/text_grid.h"

namespace qor {
namespace {

template <class Use>
void forEachLine(const TextMap& map, const TextSelection& selection, Use use) {
  for (const std::size_t number : selection.lines(map)) {
    SelectedLine selected{map.line(number), {}};
    selected.spans = selection.spansOf(map, number, selected.line);
    use(selected);
  }
}

bool hasText(const std::u32string& row) {
  return !row.empty();
}

void trimEnds(std::vector<std::u32string>& rows) {
  rows.erase(std::find_if(rows.rbegin(), rows.rend(), hasText).base(), rows.end());
  rows.erase(rows.begin(), std::ranges::find_if(rows, hasText));
}

}  // namespace

std::vector<std::u32string> copiedRows(const TextMap& map, const TextSelection& selection) {
  TextGrid grid;
  forEachLine(map, selection, [&grid](const SelectedLine& line) { grid.measure(line); });
  grid.finishMeasuring();
  std::vector<std::u32string> rows;
  forEachLine(map, selection, [&](const SelectedLine& line) { rows.push_back(grid.place(line)); });
  if (selection.kind() == SelectionKind::rectangle) {
    std::erase(rows, U"");
  } else {
    trimEnds(rows);
  }
  return rows;
}

std::string plainText(const std::vector<std::u32string>& rows) {
  std::string text;
  for (const std::u32string& row : rows) {
    if (&row != rows.data()) text += '\n';
    text += utf8FromCodePoints(row);
  }
  return text;
}

std::string tabSeparated(const CellRows& cells) {
  std::string text;
  for (const auto& row : cells) {
    for (const std::u32string& cell : row) {
      if (&cell != row.data()) text += '\t';
      text += utf8FromCodePoints(cell);
    }
    text += '\n';
  }
  return text;
}

std::string htmlTable(const CellRows& cells) {
  std::string html = "<meta charset=\"utf-8\"><table>";
  for (const auto& row : cells) {
    html += "<tr>";
    for (const std::u32string& cell : row)
      html += "<td>" + escapedMarkup(utf8FromCodePoints(cell)) + "</td>";
    html += "</tr>\n";
  }
  return html += "</table>";
}

}  // namespace qor
