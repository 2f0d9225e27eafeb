// PNG by libpng. Its errors jump out of run(): the steps given to it hold no objects that need a
// destructor.
#include <algorithm>
#include <csetjmp>
#include <cstdlib>
#include <cstring>
#include <new>
#include <vector>

#include <png.h>

#include "base/errors.h"
#include "base/units.h"
#include "platform/pictures/picture_codecs.h"
#include "platform/system/byte_sink.h"

namespace qor {
namespace {

constexpr std::string_view kSignature = "\x89PNG\r\n\x1A\n";
constexpr int kOpaque = 0xFF;

// For pages of text, mostly white: level 2 without filters takes 4 ms for a page of 96 dpi, near
// the least that zlib can, and half the bytes of the same page in RGB. Z_RLE and the filters save
// no time and give larger files; levels from 4 on take twice the time for an eighth of the bytes.
constexpr int kCompressionLevel = 2;
constexpr std::size_t kChunkSize = 32768;

[[noreturn]] void onError(png_structp png, png_const_charp) {
  png_longjmp(png, 1);
}

void onWarning(png_structp, png_const_charp) {
}

void onRead(png_structp png, png_bytep to, std::size_t size) {
  auto& rest = *static_cast<std::string_view*>(png_get_io_ptr(png));
  if (size > rest.size()) png_error(png, "the file is cut short");
  std::memcpy(to, rest.data(), size);
  rest.remove_prefix(size);
}

void onWrite(png_structp png, png_bytep bytes, std::size_t size) {
  if (!static_cast<SinkWriter*>(png_get_io_ptr(png))->write(bytes, size)) png_error(png, "");
}

void onFlush(png_structp) {
}

// Memory for the library: where there is none it gives up, and nothing is wrong with the file.
png_voidp onAllocate(png_structp png, png_alloc_size_t size) {
  void* const memory = std::malloc(size);
  if (memory == nullptr) *static_cast<bool*>(png_get_mem_ptr(png)) = true;
  return memory;
}

void onFree(png_structp, png_voidp memory) {
  std::free(memory);
}

// Runs a step; false if the library gave up in it.
template <class Step>
bool run(png_structp png, Step step) {
  if (setjmp(png_jmpbuf(png)) != 0) return false;
  step();
  return true;
}

class PngReader {
 public:
  explicit PngReader(std::string_view file)
      : size_(file.size()),
        rest_(file),
        png_(png_create_read_struct_2(PNG_LIBPNG_VER_STRING, nullptr, onError, onWarning,
                                      &exhausted_, onAllocate, onFree)),
        info_(png_ == nullptr ? nullptr : png_create_info_struct(png_)) {}
  PngReader(const PngReader&) = delete;
  PngReader& operator=(const PngReader&) = delete;
  ~PngReader() { png_destroy_read_struct(&png_, &info_, nullptr); }

  // Throws bad_alloc where the library had no memory.
  std::optional<Picture> read() {
    auto picture = info_ == nullptr ? std::nullopt : readPicture();
    if (exhausted_) throw std::bad_alloc();
    return picture;
  }

 private:
  std::optional<Picture> readPicture() {
    if (!run(png_, [this] { readHeader(); })) return std::nullopt;
    if (!fitsPicture(width_, height_)) return std::nullopt;
    if (!run(png_, [this] { setConversions(); })) return std::nullopt;
    Picture picture = makeRowless(static_cast<int>(width_), static_cast<int>(height_));
    picture.whole = readRows(picture);
    if (!picture.whole && !fillUp(picture)) return std::nullopt;
    if (has_alpha_) premultiply(picture);
    return picture;
  }

  void readHeader() {
    png_set_read_fn(png_, &rest_, onRead);
    // The library takes the data by so many bytes, and loses what is left of a file that is cut.
    png_set_compression_buffer_size(png_, std::clamp<std::size_t>(size_ / 64, 64, 8192));
    png_set_user_limits(png_, kMaxPictureSide, kMaxPictureSide);
    // Texts and profiles could unpack to far more than the picture.
    png_set_keep_unknown_chunks(png_, PNG_HANDLE_CHUNK_NEVER, nullptr, -1);
    png_read_info(png_, info_);
    width_ = png_get_image_width(png_, info_);
    height_ = png_get_image_height(png_, info_);
    has_alpha_ = (png_get_color_type(png_, info_) & PNG_COLOR_MASK_ALPHA) != 0 ||
                 png_get_valid(png_, info_, PNG_INFO_tRNS) != 0;
  }

  void setConversions() {
    png_set_expand(png_);
    png_set_scale_16(png_);
    png_set_gray_to_rgb(png_);
    png_set_bgr(png_);
    if (!has_alpha_) png_set_filler(png_, kOpaque, PNG_FILLER_AFTER);
    passes_ = png_set_interlace_handling(png_);
    png_read_update_info(png_, info_);
    if (png_get_rowbytes(png_, info_) != std::size_t{width_} * 4) png_error(png_, "");
  }

  // False where not all can be read.
  bool readRows(Picture& picture) {
    for (int pass = 0; pass < passes_; ++pass) {
      if (!readPass(pass, picture)) return false;
    }
    return run(png_, [this] { png_read_end(png_, nullptr); });
  }

  // Of an interlaced picture each pixel stands for those around it that have yet to come.
  bool readPass(int pass, Picture& picture) {
    for (std::size_t y = 0; y < height_; ++y) {
      png_bytep row =
          pass == 0 ? appendRow(picture) : reinterpret_cast<png_bytep>(&picture.pixels[y * width_]);
      if (!run(png_, [this, row] { png_read_row(png_, nullptr, row); })) return false;
      ++rows_read_;
    }
    return true;
  }

  // What is missing is transparent. False where nothing is there.
  bool fillUp(Picture& picture) const {
    if (rows_read_ == 0 || !canBePartOf(size_, width_, height_)) return false;
    picture.pixels.resize(std::size_t{width_} * height_);
    return true;
  }

  std::size_t size_;
  std::string_view rest_;
  bool exhausted_ = false;
  png_structp png_;
  png_infop info_;
  png_uint_32 width_ = 0;
  png_uint_32 height_ = 0;
  bool has_alpha_ = false;
  int passes_ = 1;
  std::size_t rows_read_ = 0;  // of all passes
};

class PngWriter {
 public:
  explicit PngWriter(ByteSink& sink)
      : out_(sink),
        png_(png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, onError, onWarning)),
        info_(png_ == nullptr ? nullptr : png_create_info_struct(png_)) {
    if (info_ == nullptr) throw PictureError("no memory to write the picture as PNG");
  }
  PngWriter(const PngWriter&) = delete;
  PngWriter& operator=(const PngWriter&) = delete;
  ~PngWriter() { png_destroy_write_struct(&png_, &info_); }

  void write(const PixelView& pixels, bool gray, int dpi) {
    step([&] { writeHeader(pixels, gray, dpi); });
    std::vector<unsigned char> grays(gray ? static_cast<std::size_t>(pixels.width) : 0);
    for (int y = 0; y < pixels.height; ++y) {
      if (gray) copyGrays(pixels.row(y), grays.data());
      const void* row = gray ? static_cast<const void*>(grays.data()) : pixels.row(y).data();
      step([&] { png_write_row(png_, static_cast<png_const_bytep>(row)); });
    }
    step([&] { png_write_end(png_, info_); });
  }

 private:
  template <class Step>
  void step(Step step) {
    if (!run(png_, step)) out_.fail("the picture can't be written as PNG");
  }

  void writeHeader(const PixelView& pixels, bool gray, int dpi) {
    png_set_write_fn(png_, &out_, onWrite, onFlush);
    png_set_compression_level(png_, kCompressionLevel);
    png_set_compression_buffer_size(png_, kChunkSize);
    png_set_filter(png_, PNG_FILTER_TYPE_BASE, PNG_FILTER_NONE);
    png_set_IHDR(png_, info_, static_cast<png_uint_32>(pixels.width),
                 static_cast<png_uint_32>(pixels.height), 8,
                 gray ? PNG_COLOR_TYPE_GRAY : PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    const auto density = static_cast<png_uint_32>(dotsPerMetre(dpi));
    png_set_pHYs(png_, info_, density, density, PNG_RESOLUTION_METER);
    png_write_info(png_, info_);
    if (gray) return;
    png_set_bgr(png_);
    png_set_filler(png_, 0, PNG_FILLER_AFTER);
  }

  SinkWriter out_;
  png_structp png_;
  png_infop info_;
};

}  // namespace

bool isPng(std::string_view file) {
  return file.starts_with(kSignature);
}

std::optional<Picture> decodePng(std::string_view file) {
  return PngReader(file).read();
}

void encodePng(const PixelView& pixels, bool gray, int dpi, ByteSink& sink) {
  PngWriter(sink).write(pixels, gray, dpi);
}

}  // namespace qor
