// ImageMagick as the second opinion on pictures: it writes files of every kind that must be read,
// and reads the files that are written.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "support/temporary_directory.h"

namespace qor::test {

class ImageMagick {
 public:
  // Where its files are.
  const TemporaryDirectory& folder() const { return folder_; }

  // Runs a command of the shell there. Throws std::runtime_error where it fails.
  void run(const std::string& command) const;

  // A file of 37 by 23 pixels; its name may have a format before it, such as "PNG8:a.png".
  std::string make(const std::string& arguments, const std::string& file) const;

  // The pixels that it sees in a file, each with its colours multiplied by alpha.
  std::vector<std::uint32_t> seen(const std::string& file) const;

  // What it says of a file.
  std::string identify(const std::string& format, const std::string& file) const;

 private:
  TemporaryDirectory folder_;
};

// Of a file with a format before it.
std::string nameOf(const std::string& file);

// The mean distance of the bytes of two pictures; more than any byte can be if their sizes differ.
double distance(std::span<const std::uint32_t> left, std::span<const std::uint32_t> right);

}  // namespace qor::test
