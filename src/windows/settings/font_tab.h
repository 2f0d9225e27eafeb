// The tab of the base font of reports.
#pragma once

#include <QStringListModel>
#include <QWidget>
#include <memory>

#include "language/settings_texts.h"
#include "windows/tab_captions.h"

class QLineEdit;
namespace Ui {
class tabFont;
}

namespace qor {

struct EditRule;
struct SetDraft;

class FontTab : public QWidget {
  Q_OBJECT

 public:
  explicit FontTab(SetDraft& draft);
  ~FontTab() override;

  void FontShow();

  Captions captions(const SettingsTexts& texts) const;

 private:
  void connectEdits();
  void connectEdit(QLineEdit& edit, EditRule rule, double& value, QString (*shown)(double));
  void connectChoices();
  void lstFontsClick();
  void listFonts();
  void selectFace();
  void RefreshFontExample();

  SetDraft& draft_;
  std::unique_ptr<Ui::tabFont> ui_;
  QStringListModel fonts_;
};

}  // namespace qor
