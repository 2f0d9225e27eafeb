// The popup menu of the window: an entry for each row of the command table, and menus of zooms,
// code pages and languages. Shortcuts stand in its texts and are the window's to carry out.
#pragma once

#include <QMenu>
#include <string>
#include <vector>

namespace qor {

struct CommandRow;
struct Language;
class TfrmView;

class ViewMenu : public QObject {
  Q_OBJECT

 public:
  explicit ViewMenu(TfrmView& form);

  // Shows it at a spot of the scrolling area, as the window stands.
  void popup(const QPoint& spot);

  // Enables and checks its entries as the window stands.
  void update();

  void retranslate();

 signals:
  void zoomChosen(int entry);  // of the list of zooms
  void codePageChosen(int codePage);
  void languageChosen(const Language& language);
  void recentChosen(const std::string& path);

 private:
  void addEntries();
  QMenu* addMenu(const char* name);
  void addZooms();
  void addLanguages();
  void fillRecent();
  void fillCodePages();
  void setText(QAction& entry, const CommandRow& row) const;

  TfrmView& form_;
  QMenu* mnuPopup_;
  QMenu* mnuRecent_ = nullptr;
  QMenu* mnuZoom_ = nullptr;
  QMenu* mnuCodePage_ = nullptr;
  QMenu* mnuLanguage_ = nullptr;
  std::vector<QAction*> entries_;  // by the rows
};

}  // namespace qor
