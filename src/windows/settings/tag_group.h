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

  // Checks the button with the tag, to which the Tab key then leads; none where there is no such
  // tag.
  void check(int tag) {
    setExclusive(false);
    const QAbstractButton* chosen = button(tag);
    for (QAbstractButton* candidate : buttons()) {
      candidate->setChecked(candidate == chosen);
      const bool passedBy = chosen != nullptr && candidate != chosen;
      candidate->setFocusPolicy(passedBy ? Qt::ClickFocus : Qt::StrongFocus);
    }
    setExclusive(true);
  }
};

}  // namespace qor
