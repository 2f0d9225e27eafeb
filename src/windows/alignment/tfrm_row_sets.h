// The properties of alignment lines.
#pragma once

#include <QDialog>
#include <functional>
#include <memory>

#include "window_model/line_look.h"

class QLineEdit;
class QScrollBar;

namespace Ui {
class TfrmRowSets;
}

namespace qor {

class TfrmRowSets : public QDialog {
  Q_OBJECT

 public:
  // Shows the look. `apply` takes what became of it, and throws FileError where it can't be stored:
  // the dialog then says why, and stays.
  TfrmRowSets(const LineLook& look, std::function<void(const LineLook&)> apply, QWidget* parent);
  ~TfrmRowSets() override;

 private:
  void FormShow();
  void applyCaptions();
  void bindNumber(QLineEdit* edit, QScrollBar* arrows, int value, int highest);
  void showColor();
  void btnColorClick();
  void rgrpPenStyleClick(int style) { look_.penStyle = style; }
  void cmdOkClick();

  std::unique_ptr<Ui::TfrmRowSets> ui_;
  LineLook look_;
  std::function<void(const LineLook&)> apply_;
};

}  // namespace qor
