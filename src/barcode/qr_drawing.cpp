// QR codes, as a matrix stretched to the item's rectangle.
#include "barcode/symbol_drawing.h"
#include "base/units.h"
#include "document/vdata.h"
#include "document/vset.h"
#include "platform/pictures/qr_code.h"
#include "platform/system/text_encoding.h"

namespace qor {
namespace {

constexpr int kQuietZone = 1;

// The place of an edge between modules.
std::int32_t edge(std::int32_t start, std::int64_t length, int module, int modules) {
  return clamped(start + length * module / modules);
}

void paintRow(const QrMatrix& matrix, int row, Canvas& canvas, const Rect& rect) {
  const auto x = [&](int column) { return edge(rect.left, rect.width(), column, matrix.size); };
  const auto y = [&](int line) { return edge(rect.top, rect.height(), line, matrix.size); };
  for (int column = 0; column < matrix.size; ++column) {
    if (!matrix.isBlack(row, column)) continue;
    const int first = column;
    while (column < matrix.size && matrix.isBlack(row, column)) ++column;
    canvas.rectangle({x(first), y(row), x(column), y(row + 1)});
  }
}

QrMatrix matrixOf(const VData_BarCode& code) {
  return encodeQr(codePointsFromCodePage(code.Value, code.Settings->Page.BaseCodePage), kQuietZone);
}

}  // namespace

bool hasQr(const VData_BarCode& code) {
  return matrixOf(code).size > 2 * kQuietZone;
}

void drawQr(const VData_BarCode& code, Canvas& canvas, const Rect& rect) {
  if (code.Value.empty() || rect.width() == 0 || rect.height() == 0) return;
  const QrMatrix matrix = matrixOf(code);
  const Pen pen = canvas.pen();
  const Brush brush = canvas.brush();
  canvas.setPen({PenStyle::none, 0, kBlack});
  canvas.setBrush({BrushStyle::solid, kWhite});
  canvas.rectangle(rect);
  canvas.setBrush({BrushStyle::solid, kBlack});
  for (int row = 0; row < matrix.size; ++row) paintRow(matrix, row, canvas, rect);
  canvas.setPen(pen);
  canvas.setBrush(brush);
}

}  // namespace qor
