// What was caught, as a message.
#include "platform/system/failure.h"

#include "language/language.h"
#include "support/test.h"

namespace qor::test {
namespace {

// Errors that don't say where they arose are told with the report, numbers with their file.
TEST(Failures, tellWhatFailedAndWhere) {
  // The last is empty where nobody is told again.
  const std::tuple<std::function<void()>, ErrorKind, int, std::string> rows[] = {
      {[] { throw NumberedError(2, "r.txt"); }, ErrorKind::badReport, 2, ""},
      {[] { throw NumberedError(5, "cp5.ini"); }, ErrorKind::badSettings, 5, ""},
      {[] { throw StoppedError(); }, ErrorKind::stopped, 0, ""},
      {[] { throw ReportError("page 3"); }, ErrorKind::badReport, 0, "page 3"},
      {[] { throw ConversionError("x"); }, ErrorKind::badReport, 0, "x"},
      {[] { throw ListIndexError("s.vset"); }, ErrorKind::badSettings, 0, "s.vset"},
      {[] { throw FileError("f", ErrorKind::cannotWrite); }, ErrorKind::cannotWrite, 0, "f"},
      {[] { throw FileError("f"); }, ErrorKind::cannotRead, 0, "f"},
      {[] { throw PrintError("laser"); }, ErrorKind::cannotPrint, 0, "laser"},
      {[] { throw PictureError("no dots"); }, ErrorKind::cannotWrite, 0, "r.txt: no dots"},
      {[] { throw SystemError("no font"); }, ErrorKind::system, 0, "r.txt: no font"},
      {[] { throw std::runtime_error("?"); }, ErrorKind::system, 0, "r.txt: ?"},
      {[] { throw 1; }, ErrorKind::system, 0, "r.txt: unknown failure"}};
  const OptionsGuard guard;
  AppOptions.FileName = "r.txt";
  SelectErrorTexts(1252);
  for (const auto& [fail, kind, code, text] : rows) {
    SCOPED_TRACE(text);
    testing::internal::CaptureStderr();
    try {
      fail();
    } catch (...) {
      const Failure failure = caughtFailure();
      EXPECT_EQ(failure.kind, kind);
      EXPECT_EQ(failure.code, code);
      EXPECT_EQ(failure.text == "  Error! Can't open DOS charset file: cp5.ini", code == 5);
      tellFailure();
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), text.empty() ? "" : text + "\n");
  }
}

}  // namespace
}  // namespace qor::test
