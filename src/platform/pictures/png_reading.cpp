// Reading PNG, by libpng. Its errors jump out of run(): the steps given to it hold no objects that
// need a destructor.
#include <algorithm>
#include <csetjmp>
#include <cstdlib>
#include <cstring>
#include <new>

#include <png.h>

#include "base/errors.h"
#include "platform/pictures/picture_codecs.h"

namespace qor {
namespace {

constexpr std::string_view kSignature = "\x89PNG\r\n\x1A\n";
constexpr int kOpaque = 0xFF;

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

}  // namespace

bool isPng(std::string_view file) {
  return file.starts_with(kSignature);
}

std::optional<Picture> decodePng(std::string_view file) {
  return PngReader(file).read();
}

}  // namespace qor
