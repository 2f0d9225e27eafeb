// Files for writing, on POSIX.
#include <cerrno>
#include <memory>

#include <fcntl.h>
#include <unistd.h>

#include "base/errors.h"
#include "platform/system/output_file.h"
#include "platform/system/unfinished_file.h"

namespace qor {
namespace {

constexpr std::size_t kBufferSize = std::size_t{64} * 1024;

}  // namespace

OutputFile::OutputFile(const std::string& target, LinkTarget link, Flush flush)
    : file_(std::make_unique<UnfinishedFile>(link == LinkTarget::written ? endOfLinks(target)
                                                                         : target)),
      flush_(flush) {
  buffer_.reserve(kBufferSize);
}

OutputFile::~OutputFile() = default;

const std::string& OutputFile::target() const {
  return file_->target().path();
}

void OutputFile::write(std::string_view bytes) {
  if (buffer_.size() + bytes.size() > kBufferSize) writeBuffer();
  if (bytes.size() >= kBufferSize) {
    writeThrough(bytes);
  } else {
    buffer_.append(bytes);
  }
}

void OutputFile::writeBuffer() {
  writeThrough(buffer_);
  buffer_.clear();
}

void OutputFile::writeThrough(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t done = ::write(file_->handle(), bytes.data(), bytes.size());
    if (done < 0 && errno == EINTR) continue;
    if (done < 0) file_->target().fail(errno);
    bytes.remove_prefix(static_cast<std::size_t>(done));
  }
}

void OutputFile::writeByStream(const std::function<void(std::FILE*)>& write) {
  const auto close = [](std::FILE* stream) { return std::fclose(stream); };
  const int handle = ::fcntl(file_->handle(), F_DUPFD_CLOEXEC, 0);
  if (handle < 0) file_->target().fail(errno);
  std::unique_ptr<std::FILE, decltype(close)> stream(::fdopen(handle, "wb"), close);
  if (!stream) file_->target().fail(errno);
  write(stream.get());
  if (std::fclose(stream.release()) != 0) file_->target().fail(errno);
}

void OutputFile::commit() {
  writeBuffer();
  if (flush_ == Flush::toDisk && ::fdatasync(file_->handle()) != 0 && errno != EINVAL)
    file_->target().fail(errno);
  file_->replaceTarget();
}

}  // namespace qor
