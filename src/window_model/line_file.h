// The file that lines are kept in: beside the program, or, where nothing can be written there, the
// user's own.
#pragma once

#include <string>

namespace qor {

class LineFile {
 public:
  // Their directories, each with a closing "/".
  LineFile(const std::string& program, const std::string& user);

  // The text of the user's own file, or else of the one beside the program; empty for none. Throws
  // FileError where one is there and can't be read: nobody may write over it then.
  std::string read() const;

  // Writes the user's own file where there is one, else the one beside the program and, where that
  // fails, the user's own. Throws FileError.
  void write(const std::string& text) const;

 private:
  std::string shared_;
  std::string own_;
};

}  // namespace qor
