// Combo boxes of numbered items such as "9|A4   (210 x 297 mm)": what stands behind the bar is
// shown.
#pragma once

#include <set>
#include <string>
#include <vector>

class QComboBox;

namespace qor {

// Fills the box and selects an item, -1 for none. Items with the usual numbers have a colour of
// their own.
void fillItems(QComboBox& box, const std::vector<std::string>& items, int selected,
               const std::set<int>& usual);

// The whole item at the place, empty where there is none.
std::string itemAt(const QComboBox& box, int place);

}  // namespace qor
