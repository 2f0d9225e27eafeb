// Barcodes beside their peers, as lines "what<TAB>ours<TAB>peer<TAB>aim": units a second, and the
// ratio to reach. Encoding beside zint, and a page of symbols beside one of rectangles and texts.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include <zint.h>

#include "barcode/symbol_drawing.h"
#include "barcode/vbarcodecalc.h"
#include "document/vdata.h"
#include "document/vset.h"
#include "platform/canvas/bitmap_canvas.h"

namespace {

using namespace qor;

constexpr int kRounds = 5;

// The best of several rounds of at least a tenth of a second each.
double perSecond(const std::function<void()>& work) {
  using Clock = std::chrono::steady_clock;
  double best = 0;
  for (int round = 0; round < kRounds; ++round) {
    const auto start = Clock::now();
    double seconds = 0;
    int done = 0;
    while (seconds < 0.1) {
      for (int i = 0; i < 20; ++i) work();
      done += 20;
      seconds = std::chrono::duration<double>(Clock::now() - start).count();
    }
    best = std::max(best, done / seconds);
  }
  return best;
}

struct Encoder {
  const char* name;
  int zint;
  std::string value;
  std::function<void(VBarCodeCalc&, const std::string&)> ours;
};

const std::vector<Encoder> kEncoders = {
    {"EAN-13", BARCODE_EANX, "590123412345", [](auto& calc, auto& v) { calc.EAN13(v); }},
    {"EAN-8", BARCODE_EANX, "9638507", [](auto& calc, auto& v) { calc.EAN8(v); }},
    {"UPC-A", BARCODE_UPCA, "03600029145", [](auto& calc, auto& v) { calc.UPCA(v); }},
    {"Code 39", BARCODE_CODE39, "PALLET-0881", [](auto& calc, auto& v) { calc.Code39(v, false); }},
    {"Code 93", BARCODE_CODE93, "SHELF B-07", [](auto& calc, auto& v) { calc.Code93(v); }},
    {"Code 128", BARCODE_CODE128, "PARCEL 4471", [](auto& calc, auto& v) { calc.Code128(v); }},
    {"ITF", BARCODE_C25INTER, "1540014128876", [](auto& calc, auto& v) { calc.ITF(v); }},
};

void encodeByZint(int symbology, const std::string& value) {
  zint_symbol* symbol = ZBarcode_Create();
  symbol->symbology = symbology;
  if (ZBarcode_Encode(symbol, reinterpret_cast<const unsigned char*>(value.data()),
                      static_cast<int>(value.size())) >= ZINT_ERROR)
    std::exit(EXIT_FAILURE);
  ZBarcode_Delete(symbol);
}

Rect cell(int number) {
  const int left = 300 + number % 4 * 2800;
  const int top = 300 + number / 4 * 1600;
  return {left, top, left + 2500, top + 1300};
}

void drawSymbols(BitmapCanvas& bitmap, VSet& settings) {
  bitmap.clear();
  for (int i = 0; i < 40; ++i) {
    VData_BarCode code(&settings);
    code.SetValue("590123412345");
    code.ShowValue = true;
    drawSymbol(code, bitmap.canvas(), cell(i), 15);
  }
}

void drawRectangles(BitmapCanvas& bitmap) {
  bitmap.clear();
  Canvas& canvas = bitmap.canvas();
  LogFont font;
  font.Height = 150;
  for (int i = 0; i < 40; ++i) {
    canvas.setPen({PenStyle::none, 0, kBlack});
    canvas.setBrush({BrushStyle::solid, kBlack});
    canvas.rectangle(cell(i));
    canvas.setFont(font);
    canvas.moveTo({cell(i).left, cell(i).bottom});
    canvas.textOut(U"5901234123457");
  }
}

}  // namespace

int main() {
  VBarCodeCalc calc;
  for (const Encoder& row : kEncoders) {
    const double ours = perSecond([&] { row.ours(calc, row.value); });
    const double peer = perSecond([&] { encodeByZint(row.zint, row.value); });
    std::printf("Encoding %s; peer zint\t%.0f\t%.0f\t1\n", row.name, ours, peer);
  }
  VSet settings;
  BitmapCanvas bitmap(793, 1122, 96);
  const double ours = perSecond([&] { drawSymbols(bitmap, settings); });
  const double peer = perSecond([&] { drawRectangles(bitmap); });
  std::printf("Drawing 40 barcodes; peer 40 fields and texts\t%.1f\t%.1f\t0.333\n", ours, peer);
}
