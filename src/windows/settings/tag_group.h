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
    const bool anyone = button(tag) != nullptr;
    for (QAbstractButton* candidate : buttons()) {
      const bool chosen = id(candidate) == tag;
      candidate->setChecked(chosen);
      candidate->setFocusPolicy(chosen || !anyone ? Qt::StrongFocus : Qt::ClickFocus);
    }
    setExclusive(true);
  }
};

}  // namespace qor
