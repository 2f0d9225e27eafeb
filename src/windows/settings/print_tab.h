// The tab of what is printed, and how.
#pragma once

#include <QWidget>
#include <memory>

#include "language/settings_texts.h"
#include "settings/printer_lists.h"
#include "windows/tab_captions.h"

namespace Ui {
class tabPrint;
}

namespace qor {

struct SetDraft;
class RuledEdit;
class TagGroup;

class PrintTab : public QWidget {
  Q_OBJECT

 public:
  explicit PrintTab(SetDraft& draft);
  ~PrintTab() override;

  // How many pages the report has.
  void setPageCount(int pages) { page_count_ = pages; }

  // The paper sources of the printer; -1 where none is selected.
  void setBins(const ItemList& bins, int selected);

  void PrintShow();

  Captions captions(const SettingsTexts& texts) const;

 private:
  void connectControls();
  void PrintPagesShow();
  void tellPages();

  SetDraft& draft_;
  std::unique_ptr<Ui::tabPrint> ui_;
  RuledEdit* copies_ = nullptr;
  TagGroup* pages_ = nullptr;
  TagGroup* qualities_ = nullptr;
  TagGroup* colors_ = nullptr;
  TagGroup* orders_ = nullptr;
  int page_count_ = 0;
};

}  // namespace qor
