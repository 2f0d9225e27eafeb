// Scaling the paper.
#include "windows/view/paper_scale.h"

#include <algorithm>

#include "windows/view/digits_only.h"
#include "windows/view/page_show.h"
#include "windows/view/view_desk.h"

namespace qor {

PaperScale::PaperScale(ViewDesk& desk, PageShow& pages) : desk_(desk), pages_(pages) {
  takeDigitsOnly(*desk.ui.txtZoom);
}

void PaperScale::reset() {
  desk_.ui.txtZoom->setText("100");
}

void PaperScale::ShowPageScale() {
  if (desk_.ui.txtZoom->text().isEmpty()) reset();
  pages_.showScaled(std::max(1, desk_.ui.txtZoom->text().toInt()));
}

void PaperScale::UpDown1Click() {
  desk_.cursor.countAnew();
  desk_.ui.txtZoom->setText(QString::number(desk_.ui.UpDown1->value()));
  desk_.ui.pScroll->scrollToStart();
  ShowPageScale();
}

}  // namespace qor
