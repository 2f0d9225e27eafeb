// The reports that were opened last, a line each: the name, and behind it the directory, in gray.
#pragma once

#include <QListWidget>
#include <string>
#include <vector>

namespace qor {

class RecentList : public QListWidget {
  Q_OBJECT

 public:
  explicit RecentList(QWidget* parent);

  // Full paths. The current row stays where it was; no paths are told in their place.
  void fill(const std::vector<std::string>& paths);

 signals:
  // By Enter or the mouse, once the list has done with the event.
  void chosen(const std::string& path);

 private:
  void sayThatThereAreNone();
};

}  // namespace qor
