// User settings by QSettings.
#include "platform/qt/qt_user_settings.h"

#include "platform/qt/qt_text.h"

namespace qor {
namespace {

// Before the bytes of a text that is no UTF-8, as the path of an old file may be.
constexpr const char* kBytes = "bytes:";

QString storedText(const std::string& bytes) {
  QString text = qtText(bytes);
  if (text.toStdString() == bytes && !text.startsWith(kBytes)) return text;
  return kBytes + QString::fromLatin1(QByteArray::fromStdString(bytes).toPercentEncoding("/"));
}

std::string bytesOf(const QString& stored) {
  if (!stored.startsWith(kBytes)) return stored.toStdString();
  const QString encoded = stored.mid(QString(kBytes).size());
  return QByteArray::fromPercentEncoding(encoded.toLatin1()).toStdString();
}

}  // namespace

QtUserSettings::QtUserSettings()
    : settings_(QSettings::IniFormat, QSettings::UserScope, "QOR", "QorUtlView") {
  // The file is read when the first value is asked for: only then is it known to be broken.
  settings_.allKeys();
}

std::optional<int> QtUserSettings::integer(std::string_view name) const {
  bool isNumber = false;
  const int value = settings_.value(qtText(name)).toInt(&isNumber);
  return isNumber ? std::optional(value) : std::nullopt;
}

std::optional<bool> QtUserSettings::flag(std::string_view name) const {
  const QString text = settings_.value(qtText(name)).toString();
  if (text == "true" || text == "1") return true;
  if (text == "false" || text == "0") return false;
  return std::nullopt;
}

std::vector<std::string> QtUserSettings::texts(std::string_view name) const {
  // Other windows may have stored theirs since.
  settings_.sync();
  std::vector<std::string> texts;
  for (const QString& text : settings_.value(qtText(name)).toStringList())
    texts.push_back(bytesOf(text));
  return texts;
}

void QtUserSettings::setInteger(std::string_view name, int value) {
  settings_.setValue(qtText(name), value);
}

void QtUserSettings::setFlag(std::string_view name, bool value) {
  settings_.setValue(qtText(name), value);
}

void QtUserSettings::setTexts(std::string_view name, const std::vector<std::string>& values) {
  QStringList texts;
  for (const std::string& value : values) texts.append(storedText(value));
  settings_.setValue(qtText(name), texts);
}

// What couldn't be read stays noted as the status.
bool QtUserSettings::save() {
  settings_.sync();
  return settings_.status() != QSettings::AccessError && settings_.isWritable();
}

std::string QtUserSettings::location() const {
  return settings_.fileName().toStdString();
}

}  // namespace qor
