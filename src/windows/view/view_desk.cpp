// What the parts find on their desk.
#include "windows/view/view_desk.h"

#include "windows/view/passing_hint.h"

namespace qor {
namespace {

Ui::TfrmView formIn(QMainWindow* window) {
  Ui::TfrmView form;
  form.setupUi(window);
  return form;
}

}  // namespace

ViewDesk::ViewDesk(QMainWindow* window)
    : ui(formIn(window)),
      page_control(new VPage(window)),
      hint(new PassingHint(ui.pScroll)),
      status(*ui.stBar) {
  page_control->setObjectName("page_control");
  ui.pScroll->setControl(page_control);
}

}  // namespace qor
