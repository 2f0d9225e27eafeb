// Images by their index.
#include "windows/tqor_image_form.h"

#include <array>

namespace qor {
namespace {

// By ImageIndex.
constexpr std::array kFiles = {
    "close",     "first",        "previous",    "next",           "last",        "zoom_out",
    "zoom_in",   "actual_size",  "fit_width",   "fit_page",       "text_tool",   "select_page",
    "copy_text", "copy_picture", "single_page", "multi_page",     "normal_view", "wide_view",
    "page_list", "margins",      "full_screen", "alignment_line", "properties",  "print",
    "mail",      "export",       "language",    "open",           "find",        "help",
    "qorutlview"};
static_assert(kFiles.size() == static_cast<std::size_t>(ImageIndex::program) + 1);

}  // namespace

QIcon TQorImageForm::ImageMenuList(ImageIndex index, IconPlace place) {
  return svgIcon(QString(":/icons/%1.svg").arg(kFiles[static_cast<std::size_t>(index)]), place);
}

}  // namespace qor
