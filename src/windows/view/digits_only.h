// Edits that take numbers.
#pragma once

#include <QLineEdit>
#include <QRegularExpressionValidator>

namespace qor {

inline void takeDigitsOnly(QLineEdit& edit) {
  edit.setValidator(new QRegularExpressionValidator(QRegularExpression("[0-9]*"), &edit));
  edit.setContextMenuPolicy(Qt::NoContextMenu);
}

}  // namespace qor
