// Failures as texts.
#include "base/errors.h"

#include <exception>

#include "base/app_options.h"

namespace qor {

std::string failureText() {
  try {
    throw;
  } catch (const FileError& error) {
    return error.what();
  } catch (const ConversionError& error) {
    return error.what();
  } catch (const ListIndexError& error) {
    return error.what();
  } catch (const PrintError& error) {
    return error.what();
  } catch (const std::exception& error) {
    return AppOptions.FileName + ": " + error.what();
  } catch (const std::string& text) {
    return text + AppOptions.FileName;
  } catch (...) {
    return AppOptions.FileName + ": unknown failure";
  }
}

}  // namespace qor
