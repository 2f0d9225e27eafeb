// Texts of the controls of a form, with the letters that choose them.
#pragma once

#include <string_view>
#include <vector>

class QString;
class QTabWidget;
class QWidget;

namespace qor {

// A label, a button or a box with a title. Of the captions of a form those that stand first get
// their letters first.
struct Caption {
  QWidget* control;
  std::string_view text;
};
using Captions = std::vector<Caption>;

// Sets the texts of the tabs, of what stands beside them, and of what is on each tab. No letter
// serves two that are to be seen together.
void setCaptions(QTabWidget& tabs, const std::vector<std::string_view>& titles,
                 const Captions& beside, const std::vector<Captions>& onTabs);

}  // namespace qor
