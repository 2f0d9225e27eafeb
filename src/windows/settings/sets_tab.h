// The tab of the set file: opens and saves files, loads, saves and deletes the sets in them, and
// shows a set's text.
#pragma once

#include <QStringListModel>
#include <QWidget>
#include <functional>
#include <memory>

#include "language/settings_texts.h"
#include "windows/tab_captions.h"

class QFileDialog;
namespace Ui {
class tabSets;
}

namespace qor {

struct SetDraft;

class SetsTab : public QWidget {
  Q_OBJECT

 public:
  explicit SetsTab(SetDraft& draft);
  ~SetsTab() override;

  void SetsShow();

  // Reads the text of the set anew, if it is on view.
  void showSetText();

  Captions captions(const SettingsTexts& texts) const;

 signals:
  // A set was loaded into the draft.
  void setLoaded();
  void resetAsked();

 protected:
  // tabSetsHide: the text view goes with the tab.
  void hideEvent(QHideEvent* event) override;

 private:
  void connectControls();
  void cmdSets_FileOpen_Click();
  void cmdSets_FileSave_Click();
  void cmdSets_FileSaveAs_Click();
  void cmdSets_Delete_Click();
  void cmdSets_ViewIni_Click();
  void lstListOfSetsNames_Click();
  void txtNameOfSetChange();

  std::string name() const;
  void saveIn(const std::string& file);
  void listNames();
  void openText(bool open);
  bool attempt(const std::function<void()>& step);
  void tellSetInForce();

  SetDraft& draft_;
  std::unique_ptr<Ui::tabSets> ui_;
  QStringListModel names_;
  QStringListModel lines_;
  bool listing_ = false;  // what is selected is not the user's choice
  QString not_listed_;    // why the names can't be listed
};

}  // namespace qor
