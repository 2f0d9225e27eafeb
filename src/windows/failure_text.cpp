// Failures as texts.
#include "windows/failure_text.h"

#include <exception>
#include <string>

#include "base/app_options.h"
#include "base/errors.h"
#include "language/language.h"
#include "platform/qt/qt_text.h"

namespace qor {
namespace {

// The text that belongs to an error number.
QString errorText(int number) {
  const auto index = static_cast<std::size_t>(number - 1);
  const ErrorTexts& texts = errorTexts();
  const std::string_view text = index < texts.size() ? texts[index] : texts.front();
  return qtText(text) + qtText(LastError.FileName);
}

}  // namespace

QString failureOf(const std::function<void()>& step) {
  try {
    step();
    return {};
  } catch (int number) {
    return errorText(number);
  } catch (const std::string& text) {
    return qtText(text + AppOptions.FileName);
  } catch (const std::exception& error) {
    return qtText(error.what());
  }
}

}  // namespace qor
