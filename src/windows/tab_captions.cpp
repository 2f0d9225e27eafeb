// Captions of tabs.
#include "windows/tab_captions.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QTabWidget>
#include <string>

#include "platform/qt/qt_text.h"
#include "window_model/mnemonics.h"

namespace qor {
namespace {

void setCaption(QWidget& control, const QString& text) {
  if (auto* label = qobject_cast<QLabel*>(&control)) {
    label->setText(text);
  } else if (auto* button = qobject_cast<QAbstractButton*>(&control)) {
    button->setText(text);
  } else if (auto* box = qobject_cast<QGroupBox*>(&control)) {
    box->setTitle(text);
  }
}

}  // namespace

void setCaptions(QTabWidget& tabs, const std::vector<std::string_view>& titles,
                 const Captions& beside, const std::vector<Captions>& onTabs) {
  // What is seen with every tab takes its letters alone, so that it has the same ones on each.
  std::vector<std::string_view> always;
  for (const Caption& caption : beside) always.push_back(caption.text);
  always.insert(always.end(), titles.begin(), titles.end());
  const std::vector<std::string> fixed = withMnemonics(always);
  for (std::size_t i = 0; i < beside.size(); ++i) setCaption(*beside[i].control, qtText(fixed[i]));
  for (std::size_t i = 0; i < titles.size(); ++i)
    tabs.setTabText(static_cast<int>(i), qtText(fixed[beside.size() + i]));
  for (const Captions& tab : onTabs) {
    std::vector<std::string_view> texts;
    for (const Caption& caption : tab) texts.push_back(caption.text);
    const std::vector<std::string> marked = withMnemonics(texts, fixed);
    for (std::size_t i = 0; i < tab.size(); ++i) setCaption(*tab[i].control, qtText(marked[i]));
  }
}

}  // namespace qor
