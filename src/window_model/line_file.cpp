// Finding the file of lines.
#include "window_model/line_file.h"

#include <cstdint>
#include <filesystem>

#include "base/errors.h"
#include "platform/system/input_file.h"
#include "platform/system/output_file.h"

namespace qor {
namespace {

constexpr const char* kName = "QorRow.ini";
constexpr std::uint64_t kMostBytes = std::uint64_t{1} << 20;

void writeFile(const std::string& path, const std::string& text) {
  OutputFile file(path, LinkTarget::spared);
  file.write(text);
  file.commit();
}

}  // namespace

LineFile::LineFile(const std::string& program, const std::string& user)
    : shared_(program + kName), own_(user + kName) {
}

std::string LineFile::read() const {
  for (const std::string& path : {own_, shared_})
    if (fileExists(path)) return loadWholeFile(path, kMostBytes);
  return "";
}

void LineFile::write(const std::string& text) const {
  if (fileExists(own_)) return writeFile(own_, text);
  try {
    writeFile(shared_, text);
  } catch (const FileError&) {
    std::error_code error;
    std::filesystem::create_directories(std::filesystem::path(own_).parent_path(), error);
    writeFile(own_, text);
  }
}

}  // namespace qor
