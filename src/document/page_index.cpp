// Finding the pages of a report. The rules are those of a reader that takes blocks of 32768 bytes,
// starting anew at each page; the work is done in one pass over the file with wide reads.
#include <algorithm>
#include <memory>
#include <new>
#include <string>
#include <string_view>

#include "base/app_options.h"
#include "base/errors.h"
#include "document/control_bytes.h"
#include "document/vdoc.h"

namespace qor {
namespace {

constexpr std::uint64_t kBlockSize = 32768;
constexpr std::size_t kFirstPageSize = 65565;
constexpr std::size_t kWindowSize = std::size_t{256} * 1024;

// Bytes that start where a page of memory does: the system copies a file there several times faster
// than to most other places.
class PageAlignedBuffer {
 public:
  explicit PageAlignedBuffer(std::size_t size)
      : bytes_(static_cast<char*>(::operator new(size, kAlignment))) {}

  char* data() const { return bytes_.get(); }

 private:
  static constexpr std::align_val_t kAlignment{4096};
  struct Deleter {
    void operator()(char* bytes) const { ::operator delete(bytes, kAlignment); }
  };

  std::unique_ptr<char, Deleter> bytes_;
};

// A part of the file in memory that moves forward with whoever reads.
class FileWindow {
 public:
  explicit FileWindow(const InputFile& file)
      : file_(file), size_(file.size()), buffer_(kWindowSize) {}

  std::uint64_t fileSize() const { return size_; }

  // The bytes from the offset on, as many as are in memory; none at the end of the file.
  std::string_view from(std::uint64_t offset) {
    if (offset < start_ || offset >= start_ + filled_) load(offset);
    return {buffer_.data() + (offset - start_),
            static_cast<std::size_t>(start_ + filled_ - offset)};
  }

  // The byte at the offset, or -1 behind the end.
  int byteAt(std::uint64_t offset) {
    const std::string_view bytes = from(offset);
    return bytes.empty() ? -1 : static_cast<unsigned char>(bytes.front());
  }

 private:
  void load(std::uint64_t offset) {
    start_ = offset;
    const std::uint64_t left = offset < size_ ? size_ - offset : 0;
    const auto wanted = static_cast<std::size_t>(std::min<std::uint64_t>(left, kWindowSize));
    filled_ = file_.readAt(offset, buffer_.data(), wanted);
    if (filled_ < wanted)
      throw ReportError(AppOptions.FileName + ": became shorter while its pages were looked for");
  }

  const InputFile& file_;
  std::uint64_t size_;
  PageAlignedBuffer buffer_;
  std::uint64_t start_ = 0;
  std::size_t filled_ = 0;
};

// The index of the first form feed or end-of-file byte, or the size of the bytes.
std::size_t findStop(std::string_view bytes) {
  const std::size_t feed = std::min(bytes.find(kFormFeed), bytes.size());
  return std::min(bytes.substr(0, feed).find(kEndOfFile), feed);
}

}  // namespace

// One scan of the file, from a first page on.
class PageScan {
 public:
  PageScan(VDoc& doc, const InputFile& file, std::uint64_t pageStart)
      : doc_(doc), window_(file), page_start_(pageStart) {}

  // Appends pages up to the end of the file, or to an end-of-file byte: then true.
  bool run() {
    while (page_start_ < window_.fileSize()) {
      const std::uint64_t end = endOfPage();
      const int stop = window_.byteAt(end);
      if (stop < 0 && end == page_start_) break;
      if (stop < 0 && AppOptions.DynamicMode) {
        doc_.KnownSize = page_start_;
        return false;
      }
      if (stop != kEndOfFile || !startsBlock(end)) appendPage(end, stop);
      if (stop == kEndOfFile) return true;
    }
    doc_.KnownSize = window_.fileSize();
    return false;
  }

  std::uint64_t fileSize() const { return window_.fileSize(); }

 private:
  // The offset of the byte that ends the page, or the size of the file.
  std::uint64_t endOfPage() {
    std::uint64_t place = page_start_;
    for (std::string_view bytes = window_.from(place); !bytes.empty();
         bytes = window_.from(place)) {
      const std::size_t stop = findStop(bytes);
      place += stop;
      if (stop < bytes.size()) break;
    }
    return place;
  }

  bool startsBlock(std::uint64_t offset) const { return (offset - page_start_) % kBlockSize == 0; }

  void appendPage(std::uint64_t end, int stop) {
    const bool crFollows = window_.byteAt(end + 1) == kCarriageReturn;
    const bool lfFollows = crFollows && window_.byteAt(end + 2) == kLineFeed;
    // The last byte of the file is part of the page, whatever it is.
    std::uint64_t length = end - page_start_ + (end + 1 == window_.fileSize() ? 1 : 0);
    if (stop == kFormFeed) length += lfFollows ? 2 : 1;
    doc_.appendPage(page_start_, length);
    // A form feed that is the last byte of its block is not seen to be followed by anything.
    page_start_ = end + (crFollows && !startsBlock(end + 1) ? 3 : 1);
  }

  VDoc& doc_;
  FileWindow window_;
  std::uint64_t page_start_;
};

bool VDoc::ScanPages(bool rescan) {
  const auto file = OpenFile();
  if (!file) return false;
  noteFile(*file);
  std::uint64_t start = 0;
  if (!rescan) {
    Clear();
    ReadHeader(*file);
    start = HeaderLength;
  } else if (const VDocPage* last = LastPage()) {
    start = last->Offset + last->Length;
    // Compares with the letter, not with a form feed: growing reports are read like this.
    char next = 0;
    if (file->readAt(start, &next, 1) == 1 && next == 'f') ++start;
  }
  PageScan scan(*this, *file, start);
  if (!scan.run()) return false;
  dropControlPage(*file);
  KnownSize = scan.fileSize();
  return true;
}

// A last page that is hardly more than a control byte is none.
void VDoc::dropControlPage(const InputFile& file) {
  if (Pages.empty()) return;
  char bytes[2];
  const std::size_t count = file.readAt(Pages.back().Offset, bytes, sizeof bytes);
  const auto controls = static_cast<std::size_t>(std::count_if(
      bytes, bytes + count, [](char c) { return static_cast<unsigned char>(c) < 32; }));
  if (count >= 2 || controls == 0 || controls * 5 <= count) return;
  Pages.pop_back();
  --PageCount;
}

void VDoc::ScanFirstPage() {
  const auto file = OpenFile();
  if (!file) return;
  noteFile(*file);
  ReadHeader(*file);
  const std::uint64_t size = file->size();
  std::string bytes(kFirstPageSize, '\0');
  bytes.resize(file->readAt(HeaderLength, bytes.data(), bytes.size()));
  const std::size_t stop = findStop(bytes);
  if (stop < bytes.size()) {
    const std::string_view rest = std::string_view(bytes).substr(stop + 1);
    std::uint64_t length = stop + (stop + 1 == size ? 1 : 0);
    if (bytes[stop] == kFormFeed) {
      if (stop + 3 < size && rest.starts_with("\r\n")) {
        length += 3;
      } else if (stop + 2 < size && rest.starts_with('\r')) {
        length += 2;
      } else if (stop + 1 < size) {
        length += 1;
      }
    }
    appendPage(0, length);
  }
  if (!bytes.empty() && PageCount == 0) appendPage(0, bytes.size());
  KnownSize = 1;
}

}  // namespace qor
