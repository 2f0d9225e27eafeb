// Qt's translations.
#include "platform/qt/qt_language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include "platform/qt/qt_text.h"

namespace qor {

void translateQt(std::string_view language) {
  QCoreApplication* application = QCoreApplication::instance();
  delete application->findChild<QTranslator*>();
  auto* translator = new QTranslator(application);
  if (translator->load("qtbase_" + qtText(language),
                       QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QCoreApplication::installTranslator(translator);
}

}  // namespace qor
