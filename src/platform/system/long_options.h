// The arguments of a program as users of GNU programs know them: -j4, -j 4, --jobs=4, --jobs 4,
// names cut short where they stay clear, operands anywhere, "--" before those that start with "-".
#pragma once

#include <span>
#include <stdexcept>
#include <string>
#include <vector>

namespace qor {

struct LongOption {
  const char* name;
  char letter = 0;  // the short way, if there is one
  bool takesValue = false;
};

struct GivenOption {
  std::string name;  // the whole one
  std::string value;
};

struct GivenArguments {
  std::vector<GivenOption> options;
  std::vector<std::string> operands;
};

// The arguments are none that the program knows. The text says in a line which one.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Throws UsageError.
GivenArguments readArguments(int argc, char** argv, std::span<const LongOption> known);

}  // namespace qor
