// Runs the fuzz target on every file that is named or lies in a directory that is named.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace fs = std::filesystem;

static void replay(const fs::path& path) {
  if (fs::is_directory(path)) {
    for (const fs::directory_entry& entry : fs::directory_iterator(path)) replay(entry);
    return;
  }
  std::ifstream file(path, std::ios::binary);
  if (!file) throw fs::filesystem_error("can't read", path, {});
  std::puts(path.c_str());
  std::fflush(stdout);
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

int main(int argc, char** argv) {
  for (int i = 1; i < argc; ++i) replay(argv[i]);
}
