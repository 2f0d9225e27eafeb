// Notices.
#include "windows/accessible/spoken_notice.h"

#include <QAccessibleWidget>

namespace qor {
namespace {

QAccessibleInterface* interfaceOf(const QString&, QObject* object) {
  auto* notice = qobject_cast<SpokenNotice*>(object);
  return notice == nullptr ? nullptr : new QAccessibleWidget(notice, QAccessible::Notification);
}

}  // namespace

SpokenNotice::SpokenNotice(QWidget* form) : QWidget(form) {
  setObjectName("spokenNotice");
  resize(0, 0);
  QAccessible::installFactory(interfaceOf);
}

void SpokenNotice::tell(const QString& text) {
  setAccessibleName(text);
  QAccessibleEvent shown(this, QAccessible::ObjectShow);
  QAccessible::updateAccessibility(&shown);
}

}  // namespace qor
