// Opening reports as users do, and seeing which ones programs were started for.
#pragma once

#include <QDropEvent>
#include <QMimeData>
#include <set>

#include "windows/view/window.h"

namespace qor::test {

// A drop of these files, which the other side proposes to move.
inline void drop(QWidget& on, const std::vector<std::string>& files) {
  QMimeData data;
  QList<QUrl> places;
  for (const std::string& file : files)
    places.append(
        QUrl::fromEncoded("file://" + QByteArray::fromStdString(file).toPercentEncoding("/")));
  data.setUrls(places);
  const Qt::DropActions proposed = Qt::CopyAction | Qt::MoveAction;
  QDragEnterEvent enter({5, 5}, proposed, &data, Qt::LeftButton, Qt::ShiftModifier);
  QDropEvent event({5, 5}, proposed, &data, Qt::LeftButton, Qt::ShiftModifier);
  for (QDropEvent* step : {static_cast<QDropEvent*>(&enter), &event}) {
    step->setDropAction(Qt::MoveAction);
    QCoreApplication::sendEvent(&on, step);
    EXPECT_EQ(step->isAccepted(), !files.empty());
    EXPECT_EQ(step->dropAction(), files.empty() ? Qt::MoveAction : Qt::CopyAction);
  }
}

// Where programs note the reports that they were started for.
class Opened {
 public:
  const TemporaryDirectory& place() const { return place_; }

  // Waits for these, by their names in the place, and that no others come.
  void expect(const std::vector<std::string>& names) const {
    std::multiset<std::string> expected;
    for (const std::string& name : names) expected.insert(place_.path(name));
    std::multiset<std::string> opened;
    const auto have = [&] {
      const std::vector<std::string> lines = linesOf(place_.read("opened"));
      opened = {lines.begin(), lines.end()};
      return opened.size() >= expected.size();
    };
    EXPECT_TRUE(QTest::qWaitFor(have, 30000));
    EXPECT_EQ(opened, expected);
    std::filesystem::remove(place_.path("opened"));
  }

 private:
  TemporaryDirectory place_;
  Variable notes_{"QOR_OPENED", place_.path("opened").c_str()};
};

}  // namespace qor::test
