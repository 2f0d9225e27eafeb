// What was caught, as a message: the one place where failures become texts.
#pragma once

#include <string>

#include "base/errors.h"

namespace qor {

struct Failure {
  ErrorKind kind = ErrorKind::system;
  int code = 0;
  std::string text;  // one line that says what failed, with file and reason

  // Whether there is nothing to tell any more.
  bool wasTold() const { return code != 0 || kind == ErrorKind::stopped; }
};

// What is being caught: for the inside of a catch.
Failure caughtFailure();

// Warns of what is being caught, unless the user knows of it.
void tellFailure();

}  // namespace qor
