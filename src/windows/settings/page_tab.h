// The tab of the sheet.
#pragma once

#include <QWidget>
#include <memory>

#include "language/settings_texts.h"
#include "settings/printer_lists.h"
#include "windows/tab_captions.h"

class QLineEdit;
namespace Ui {
class tabPage;
}

namespace qor {

class TagGroup;
struct SetDraft;

class PageTab : public QWidget {
  Q_OBJECT

 public:
  explicit PageTab(SetDraft& draft);
  ~PageTab() override;

  // The papers of the printer, a size of the user's own first, -1 where none is selected; and its
  // limits, which are those of the draft.
  void setPapers(const ItemList& papers, int selected);

  // Whether pages can be scaled to the paper in the present view.
  void offerScale(bool offered);

  // Whether it is offered, and chosen.
  bool scalesToPaper() const;

  void PageShow();

  Captions captions(const SettingsTexts& texts) const;

 signals:
  void resetAsked();

 private:
  void connectEdits();
  void connectMargin(QLineEdit& edit, std::int32_t& margin);
  void connectSide(QLineEdit& edit, double& side);
  void connectChoices();
  void listCodePages() const;
  void lstPageSizeChange(int place);
  void pPageOrientationClick(int orientation);
  void showOrientation();
  void showSides();
  void showLimits();

  SetDraft& draft_;
  std::unique_ptr<Ui::tabPage> ui_;
  TagGroup* orientations_ = nullptr;
};

}  // namespace qor
