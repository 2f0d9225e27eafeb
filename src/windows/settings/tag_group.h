// Radio buttons that stand for numbers.
#pragma once

#include <QAbstractButton>
#include <QButtonGroup>
#include <functional>
#include <utility>

namespace qor {

class TagGroup : public QButtonGroup {
 public:
  using Tags = std::initializer_list<std::pair<QAbstractButton*, int>>;

  // Calls `chosen` with the tag of the button that the user picks.
  TagGroup(QObject* parent, Tags tags, std::function<void(int)> chosen) : QButtonGroup(parent) {
    for (const auto& [button, tag] : tags) addButton(button, tag);
    connect(this, &QButtonGroup::idClicked, this, std::move(chosen));
  }

  // Checks the button with the tag; none where there is no such tag.
  void check(int tag) {
    setExclusive(false);
    for (QAbstractButton* candidate : buttons()) candidate->setChecked(id(candidate) == tag);
    setExclusive(true);
  }
};

}  // namespace qor
