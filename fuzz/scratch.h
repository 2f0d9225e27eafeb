// What the fuzz targets share: a directory for the files of a run, and the failures that are not
// faults.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

#include "base/errors.h"

namespace qor::fuzz {

// A directory of the process's own. What is drawn from a report may leave files beside it, so it is
// emptied for every input.
class Scratch {
 public:
  Scratch();
  ~Scratch();
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;

  void clear() const;

  // Puts "p.png", "p.jpg" and "p.bmp" there, for reports that are read in it.
  void writePictures() const;

  // Makes it the current directory while the work is done.
  template <class Work>
  void inside(Work work) const {
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(place_);
    work();
    std::filesystem::current_path(before);
  }

  // Writes the file over what it was and returns its full name.
  std::string write(std::string_view name, std::string_view bytes) const;

 private:
  std::filesystem::path place_;
};

// Runs what may fail in the ways that the program knows. Any other failure goes on to end the
// process.
template <class Work>
void tolerant(Work work) {
  try {
    work();
  } catch (const Error&) {
  }
}

// Where the environment sets QOR_FUZZ_WALL, the first call raises the wall of an export, which may
// write to the directory of temporary files alone: the fuzzer itself then keeps no inputs.
void raiseWallOnce();

inline std::string_view textOf(const unsigned char* data, std::size_t size) {
  raiseWallOnce();
  return {reinterpret_cast<const char*>(data), size};
}

}  // namespace qor::fuzz
