// The ways a run can fail. Document and settings code throws the plain numbers below; the entry
// catches them.
#pragma once

#include <stdexcept>
#include <string>
#include <utility>

namespace qor {

inline constexpr int kErrorOpenDocument = 1;
inline constexpr int kErrorReadDocument = 2;
inline constexpr int kErrorOpenCodePage = 5;
inline constexpr int kErrorReadCodePage = 6;

// A text that had to be a number is none.
class ConversionError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// A list of lines ended before the line that had to be there.
class ListIndexError : public std::out_of_range {
 public:
  explicit ListIndexError(const std::string& what) : std::out_of_range(what) {}
};

// A file could not be opened, read or written, or holds what it must not. The text names the file
// and the reason, on one line.
class FileError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// A print system didn't take a job. The text names the printer and the reason, on one line.
class PrintError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// A picture can't be made of these dots. Whoever knows the file it was for makes it a FileError.
class PictureError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Something that the whole run needs isn't there, as a font. Whoever catches it tells the report.
class SystemError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// What is being caught, as one line with file and reason. Not for numbers: those were told where
// they arose.
std::string failureText();

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
