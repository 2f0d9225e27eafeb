// The ways a run can fail. Every failure is an Error: its kind says what it means for the run, its
// text is one line for the user, and those that the suite knows by a number bear it as their code.
// platform/system/failure.h makes the message of whatever was caught.
#pragma once

#include <stdexcept>
#include <string>
#include <utility>

namespace qor {

enum class ErrorKind {
  badReport,    // the report can't be read, or says what makes no sense
  badSettings,  // a set, or its code page, can't be read or makes no sense
  cannotRead,
  cannotWrite,
  cannotPrint,
  stopped,  // by the user
  system    // something that the whole run needs isn't there
};

class Error : public std::runtime_error {
 public:
  ErrorKind kind() const { return kind_; }

  // The given number, or 0.
  int code() const { return code_; }

  // Whether the text says of which file, printer or value it speaks.
  bool namesItsPlace() const { return names_its_place_; }

 protected:
  Error(ErrorKind kind, const std::string& text, bool namesItsPlace = true, int code = 0)
      : std::runtime_error(text), kind_(kind), names_its_place_(namesItsPlace), code_(code) {}

 private:
  ErrorKind kind_;
  bool names_its_place_;
  int code_;
};

inline constexpr int kErrorOpenDocument = 1;
inline constexpr int kErrorReadDocument = 2;
inline constexpr int kErrorOpenCodePage = 5;
inline constexpr int kErrorReadCodePage = 6;

// A failure with a given number, of a file: the text. The user was told where it arose, or is not
// to be told.
class NumberedError : public Error {
 public:
  NumberedError(int number, const std::string& fileName)
      : Error(number >= kErrorOpenCodePage ? ErrorKind::badSettings : ErrorKind::badReport,
              fileName, true, number) {}
};

// A report, or a page of it, can't be read.
class ReportError : public Error {
 public:
  explicit ReportError(const std::string& text) : Error(ErrorKind::badReport, text) {}
};

// A text that had to be a number is none.
class ConversionError : public Error {
 public:
  explicit ConversionError(const std::string& text, ErrorKind kind = ErrorKind::badReport)
      : Error(kind, text) {}
};

// A list of lines ended before the line that had to be there.
class ListIndexError : public Error {
 public:
  explicit ListIndexError(const std::string& text) : Error(ErrorKind::badSettings, text) {}
};

// A file could not be opened, read or written, or holds what it must not. The text names the file
// and the reason, on one line.
class FileError : public Error {
 public:
  explicit FileError(const std::string& text, ErrorKind kind = ErrorKind::cannotRead)
      : Error(kind, text) {}
};

// A print system didn't take a job. The text names the printer and the reason, on one line.
class PrintError : public Error {
 public:
  explicit PrintError(const std::string& text) : Error(ErrorKind::cannotPrint, text) {}
};

// A picture can't be made of these dots. Whoever knows the file it was for makes it a FileError.
class PictureError : public Error {
 public:
  explicit PictureError(const std::string& text) : Error(ErrorKind::cannotWrite, text, false) {}
};

// Something that the whole run needs isn't there, as a font.
class SystemError : public Error {
 public:
  explicit SystemError(const std::string& text) : Error(ErrorKind::system, text, false) {}
};

// The user has stopped what was going on, and knows it.
class StoppedError : public Error {
 public:
  StoppedError() : Error(ErrorKind::stopped, "stopped") {}
};

// The last error number that was met and the file it belongs to.
struct LastErrorRecord {
  int Number = -1;
  std::string FileName;

  void set(int number, std::string fileName) {
    Number = number;
    FileName = std::move(fileName);
  }
};

inline LastErrorRecord LastError;

}  // namespace qor
