// QR codes by zxing-cpp.
#include "platform/pictures/qr_code.h"

#include <algorithm>
#include <exception>
#include <string>

#include <ZXing/BarcodeFormat.h>
#include <ZXing/BitMatrix.h>
#include <ZXing/CharacterSet.h>
#include <ZXing/MultiFormatWriter.h>

namespace qor {
namespace {

constexpr char32_t kLastLatin1 = 0xFF;

QrMatrix matrixOf(const ZXing::BitMatrix& bits) {
  QrMatrix matrix;
  matrix.size = bits.width();
  matrix.black.reserve(static_cast<std::size_t>(bits.width()) *
                       static_cast<std::size_t>(bits.height()));
  for (int row = 0; row < bits.height(); ++row) {
    for (int column = 0; column < bits.width(); ++column) {
      matrix.black.push_back(bits.get(column, row));
    }
  }
  return matrix;
}

}  // namespace

QrMatrix encodeQr(std::u32string_view text, int quietZone) {
  ZXing::MultiFormatWriter writer(ZXing::BarcodeFormat::QRCode);
  writer.setMargin(quietZone);
  const bool latin1 =
      std::all_of(text.begin(), text.end(), [](char32_t c) { return c <= kLastLatin1; });
  if (!latin1) writer.setEncoding(ZXing::CharacterSet::UTF8);
  try {
    return matrixOf(writer.encode(std::wstring(text.begin(), text.end()), 0, 0));
  } catch (const std::exception&) {
    const int size = 2 * quietZone;
    return {size,
            std::vector<bool>(static_cast<std::size_t>(size) * static_cast<std::size_t>(size))};
  }
}

}  // namespace qor
