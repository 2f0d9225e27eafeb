// JPEG by libjpeg-turbo. Its errors jump out of run(): the steps given to it hold no objects that
// need a destructor.
#include <array>
#include <csetjmp>
#include <cstdio>
#include <new>
#include <vector>

#include <jerror.h>
#include <jpeglib.h>

#include "base/errors.h"
#include "platform/pictures/picture_codecs.h"
#include "platform/system/byte_sink.h"

namespace qor {
namespace {

constexpr int kQuality = 90;
// Every scan visits all pixels: without an end to them a small file keeps the decoder busy for
// hours.
constexpr int kMaxScans = 100;
// The gray that the library, too, takes for what is missing.
constexpr std::uint32_t kMissing = 0xFF808080;

struct Errors : jpeg_error_mgr {
  std::jmp_buf jump;
  bool damaged;    // pixels had to be invented
  bool exhausted;  // the memory, and nothing is wrong with the file
};

[[noreturn]] void onError(j_common_ptr info) {
  auto& errors = *static_cast<Errors*>(info->err);
  errors.exhausted = info->err->msg_code == JERR_OUT_OF_MEMORY;
  std::longjmp(errors.jump, 1);
}

bool isHarmless(int warning) {
  return warning == JWRN_EXTRANEOUS_DATA || warning == JWRN_ADOBE_XFORM ||
         warning == JWRN_JFIF_MAJOR;
}

// What the library warns of are pixels that it had to invent: gray ones where the file is cut.
void onMessage(j_common_ptr info, int level) {
  if (level < 0 && !isHarmless(info->err->msg_code))
    static_cast<Errors*>(info->err)->damaged = true;
}

void onOutput(j_common_ptr) {
}

void onProgress(j_common_ptr info) {
  if (reinterpret_cast<j_decompress_ptr>(info)->input_scan_number > kMaxScans) onError(info);
}

void prepare(Errors& errors) {
  jpeg_std_error(&errors);
  errors.error_exit = onError;
  errors.emit_message = onMessage;
  errors.output_message = onOutput;
}

// Runs a step; false if the library gave up in it. Throws bad_alloc where it had no memory.
template <class Step>
bool run(Errors& errors, Step step) {
  if (setjmp(errors.jump) != 0) {
    if (errors.exhausted) throw std::bad_alloc();
    return false;
  }
  step();
  return true;
}

// Adobe's files hold the paper that is left instead of the ink.
void convertCmyk(unsigned char* bytes, std::uint32_t* pixels, int width, bool adobe) {
  const unsigned flip = adobe ? 0 : 0xFF;
  for (int x = 0; x < width; ++x, bytes += 4) {
    const unsigned black = bytes[3] ^ flip;
    const auto channel = [&](int i) { return ((bytes[i] ^ flip) * black + 127) / 255; };
    pixels[x] = 0xFF000000u | channel(0) << 16 | channel(1) << 8 | channel(2);
  }
}

class JpegReader {
 public:
  JpegReader() {
    prepare(errors_);
    info_.err = &errors_;
  }
  JpegReader(const JpegReader&) = delete;
  JpegReader& operator=(const JpegReader&) = delete;
  ~JpegReader() { jpeg_destroy_decompress(&info_); }

  std::optional<Picture> read(std::string_view file) {
    if (!run(errors_, [&] { readHeader(file); })) return std::nullopt;
    if (!fitsPicture(info_.image_width, info_.image_height) || !holdsPixels(file.size()))
      return std::nullopt;
    if (!run(errors_, [&] { start(); })) return std::nullopt;
    Picture picture =
        makeRowless(static_cast<int>(info_.output_width), static_cast<int>(info_.output_height));
    picture.whole = readRows(picture) && !errors_.damaged;
    picture.pixels.resize(std::size_t{info_.output_width} * info_.output_height, kMissing);
    return picture;
  }

 private:
  void readHeader(std::string_view file) {
    jpeg_create_decompress(&info_);
    progress_.progress_monitor = onProgress;
    info_.progress = &progress_;
    jpeg_mem_src(&info_, reinterpret_cast<const unsigned char*>(file.data()), file.size());
    jpeg_read_header(&info_, TRUE);
  }

  // Whether anything follows the header, and may be a part of so many pixels.
  bool holdsPixels(std::size_t size) const {
    const std::string_view rest(reinterpret_cast<const char*>(info_.src->next_input_byte),
                                info_.src->bytes_in_buffer);
    return !rest.empty() && !rest.starts_with("\xFF\xD9") &&
           canBePartOf(size, info_.image_width, info_.image_height);
  }

  // False where the library gives up before the end.
  bool readRows(Picture& picture) {
    for (JDIMENSION y = 0; y < info_.output_height; ++y) {
      if (!readRow(picture)) {
        picture.pixels.resize(std::size_t{y} * info_.output_width);
        return false;
      }
    }
    return run(errors_, [this] { jpeg_finish_decompress(&info_); });
  }

  void start() {
    const bool inks = info_.jpeg_color_space == JCS_CMYK || info_.jpeg_color_space == JCS_YCCK;
    info_.out_color_space = inks ? JCS_CMYK : JCS_EXT_BGRA;
    jpeg_start_decompress(&info_);
    if (info_.output_components != 4) onError(reinterpret_cast<j_common_ptr>(&info_));
  }

  bool readRow(Picture& picture) {
    unsigned char* row = appendRow(picture);
    if (!run(errors_, [&] { jpeg_read_scanlines(&info_, &row, 1); })) return false;
    if (info_.out_color_space == JCS_CMYK) {
      convertCmyk(row, picture.pixels.data() + picture.pixels.size() - info_.output_width,
                  picture.width, info_.saw_Adobe_marker != 0);
    }
    return true;
  }

  Errors errors_{};
  jpeg_progress_mgr progress_{};
  jpeg_decompress_struct info_{};
};

// Where the compressor puts its bytes.
struct Destination : jpeg_destination_mgr {
  explicit Destination(ByteSink& sink) : jpeg_destination_mgr{}, out(sink) {}

  void clear() {
    next_output_byte = buffer.data();
    free_in_buffer = buffer.size();
  }

  SinkWriter out;
  std::array<unsigned char, 32768> buffer;
};

void onStart(j_compress_ptr info) {
  static_cast<Destination*>(info->dest)->clear();
}

boolean onFull(j_compress_ptr info) {
  auto& to = *static_cast<Destination*>(info->dest);
  if (!to.out.write(to.buffer.data(), to.buffer.size())) {
    onError(reinterpret_cast<j_common_ptr>(info));
  }
  to.clear();
  return TRUE;
}

void onEnd(j_compress_ptr info) {
  auto& to = *static_cast<Destination*>(info->dest);
  to.out.write(to.buffer.data(), to.buffer.size() - to.free_in_buffer);
}

class JpegWriter {
 public:
  explicit JpegWriter(ByteSink& sink) : to_(sink) {
    prepare(errors_);
    info_.err = &errors_;
    to_.init_destination = onStart;
    to_.empty_output_buffer = onFull;
    to_.term_destination = onEnd;
  }
  JpegWriter(const JpegWriter&) = delete;
  JpegWriter& operator=(const JpegWriter&) = delete;
  ~JpegWriter() { jpeg_destroy_compress(&info_); }

  void write(const PixelView& pixels, bool gray, int dpi) {
    step([&] { start(pixels, gray, dpi); });
    std::vector<unsigned char> grays(gray ? static_cast<std::size_t>(pixels.width) : 0);
    for (int y = 0; y < pixels.height; ++y) {
      if (gray) copyGrays(pixels.row(y), grays.data());
      // The library takes rows that it could change, and doesn't.
      auto* colors = const_cast<std::uint32_t*>(pixels.row(y).data());
      JSAMPROW row = gray ? grays.data() : reinterpret_cast<JSAMPROW>(colors);
      step([&] { jpeg_write_scanlines(&info_, &row, 1); });
    }
    step([&] { jpeg_finish_compress(&info_); });
    to_.out.throwIfFailed();
  }

 private:
  template <class Step>
  void step(Step step) {
    if (!run(errors_, step)) to_.out.fail("the picture can't be written as JPEG");
  }

  void start(const PixelView& pixels, bool gray, int dpi) {
    jpeg_create_compress(&info_);
    info_.dest = &to_;
    info_.image_width = static_cast<JDIMENSION>(pixels.width);
    info_.image_height = static_cast<JDIMENSION>(pixels.height);
    info_.input_components = gray ? 1 : 4;
    info_.in_color_space = gray ? JCS_GRAYSCALE : JCS_EXT_BGRX;
    jpeg_set_defaults(&info_);
    jpeg_set_quality(&info_, kQuality, TRUE);
    info_.comp_info[0].h_samp_factor = 1;
    info_.comp_info[0].v_samp_factor = 1;
    info_.density_unit = 1;
    info_.X_density = static_cast<UINT16>(dpi);
    info_.Y_density = static_cast<UINT16>(dpi);
    jpeg_start_compress(&info_, TRUE);
  }

  Errors errors_{};
  Destination to_;
  jpeg_compress_struct info_{};
};

}  // namespace

bool isJpeg(std::string_view file) {
  return file.starts_with("\xFF\xD8\xFF");
}

std::optional<Picture> decodeJpeg(std::string_view file) {
  return JpegReader().read(file);
}

void encodeJpeg(const PixelView& pixels, bool gray, int dpi, ByteSink& sink) {
  JpegWriter(sink).write(pixels, gray, dpi);
}

}  // namespace qor
