// The message of a failure.
#include "platform/system/failure.h"

#include <exception>
#include <new>

#include "base/app_options.h"
#include "language/language.h"
#include "platform/system/messages.h"

namespace qor {
namespace {

// The text that belongs to an error number, which the name of a file ends.
std::string_view textOfNumber(int number) {
  const auto index = static_cast<std::size_t>(number - 1);
  const ErrorTexts& texts = errorTexts();
  return index < texts.size() ? texts[index] : texts.front();
}

std::string ofReport(const std::string& reason) {
  return AppOptions.FileName + ": " + reason;
}

std::string textOfError(const Error& error) {
  if (error.code() != 0) return std::string(textOfNumber(error.code())) + error.what();
  return error.namesItsPlace() ? error.what() : ofReport(error.what());
}

}  // namespace

Failure caughtFailure() {
  try {
    throw;
  } catch (const Error& error) {
    return {error.kind(), error.code(), textOfError(error)};
  } catch (const std::bad_alloc&) {
    return {ErrorKind::system, 0, ofReport("not enough memory")};
  } catch (const std::exception& error) {
    return {ErrorKind::system, 0, ofReport(error.what())};
  } catch (...) {
    return {ErrorKind::system, 0, ofReport("unknown failure")};
  }
}

void tellFailure() {
  const Failure failure = caughtFailure();
  if (!failure.wasTold()) showWarning(failure.text);
}

}  // namespace qor
