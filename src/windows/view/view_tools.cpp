// Buttons of the toolbar.
#include "windows/view/view_tools.h"

#include <QToolButton>

#include "platform/qt/qt_text.h"
#include "window_model/preview_texts.h"
#include "windows/view/command_table.h"
#include "windows/view/tfrm_view.h"
#include "windows/view/view_desk.h"
#include "windows/view/view_parts.h"

namespace qor {

ViewTools::ViewTools(TfrmView& form) : form_(form) {
  for (const CommandRow& row : commandTable()) {
    if (row.hasButton()) add(row);
  }
  orderControls();
}

void ViewTools::add(const CommandRow& row) {
  const Ui::TfrmView& ui = form_.parts().desk->ui;
  auto* button = new QToolButton(ui.pTools);
  tools_.push_back({row, button});
  button->setObjectName(row.button.name);
  button->setFocusPolicy(Qt::TabFocus);
  button->setAutoRaise(true);
  button->setCheckable(row.checkedWhen != nullptr);
  button->setIcon(TQorImageForm::ImageMenuList(row.image, IconPlace::button));
  button->setIconSize({TQorImageForm::kImageSize, TQorImageForm::kImageSize});
  const char* before = row.button.before;
  ui.tools->insertWidget(before == nullptr
                             ? ui.tools->indexOf(ui.toolsEnd)
                             : ui.tools->indexOf(ui.pTools->findChild<QWidget*>(before)),
                         button);
  connect(button, &QToolButton::clicked, this, [this, &row] { form_.run(row.run); });
}

// The Tab key and those who hear the window walk over the toolbar as it is seen.
void ViewTools::orderControls() {
  const QLayout& tools = *form_.parts().desk->ui.tools;
  QWidget* before = nullptr;
  for (int i = 0; i < tools.count(); ++i) {
    QWidget* control = tools.itemAt(i)->widget();
    if (control == nullptr) continue;
    control->raise();
    if (control->focusPolicy() == Qt::NoFocus) continue;
    if (before != nullptr) QWidget::setTabOrder(before, control);
    before = control;
  }
}

void ViewTools::update() {
  for (const auto& [row, button] : tools_) {
    button->setEnabled(row.isOn(form_));
    if (row.checkedWhen != nullptr) button->setChecked(row.checkedWhen(form_));
  }
}

void ViewTools::retranslate() {
  for (const auto& [row, button] : tools_) {
    const QString key = row.keyText();
    const QString text = qtText(previewTexts().*row.text);
    button->setToolTip(key.isEmpty() ? text : QString("%1 (%2)").arg(text, key));
    button->setAccessibleName(text);
  }
}

}  // namespace qor
