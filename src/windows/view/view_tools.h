// The buttons of the toolbar, one for each row of the command table that has one.
#pragma once

#include <QObject>
#include <vector>

class QToolButton;

namespace qor {

class TfrmView;
struct CommandRow;

class ViewTools : public QObject {
  Q_OBJECT

 public:
  // Puts them between the other controls of the toolbar.
  explicit ViewTools(TfrmView& form);

  // Enables and checks them as the window stands.
  void update();

  void retranslate();

 private:
  struct Tool {
    const CommandRow& row;
    QToolButton* button;
  };

  void add(const CommandRow& row);
  void orderControls();

  TfrmView& form_;
  std::vector<Tool> tools_;
};

}  // namespace qor
