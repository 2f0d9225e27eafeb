// Files that go from one place to another as a whole. What fails is a FileError that names the
// file.
#pragma once

#include <string>
#include <string_view>

namespace qor {

// Puts a text, or all of the standard input, into a file; one that isn't there is made for this
// user only.
void fillFile(const std::string& file, std::string_view text);
void fillFromInput(const std::string& file);

// A file that can be given away, also when its name is gone.
class OutputSource {
 public:
  explicit OutputSource(std::string file);
  ~OutputSource();
  OutputSource(const OutputSource&) = delete;
  OutputSource& operator=(const OutputSource&) = delete;

  // All of it to the standard output, once.
  void giveToOutput() const;

 private:
  std::string file_;
  int handle_;
};

}  // namespace qor
