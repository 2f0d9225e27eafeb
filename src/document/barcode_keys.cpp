// The two keys of a barcode that do more than store.
#include <algorithm>
#include <array>

#include "base/text.h"
#include "document/vdata.h"

namespace qor {
namespace {

// The numbers that reports use are not the types: they leave one out behind 3.
struct BarcodeName {
  std::string_view name;
  std::string_view number;
  int type;
};

constexpr std::array<BarcodeName, 12> kBarcodeNames = {{{"EAN_8", "1", 1},
                                                        {"EAN_13", "2", 2},
                                                        {"UPCA", "3", 3},
                                                        {"UPCE", "5", 4},
                                                        {"39", "6", 5},
                                                        {"128", "7", 6},
                                                        {"CodeBar", "8", 7},
                                                        {"InterLeave", "9", 8},
                                                        {"FullASCII", "10", 9},
                                                        {"ITF", "ITF", 10},
                                                        {"93", "11", 11},
                                                        {"KAREKOD", "12", 12}}};

}  // namespace

void VData_BarCode::SetType(std::string_view text) {
  const auto found = std::find_if(
      kBarcodeNames.begin(), kBarcodeNames.end(),
      [text](const BarcodeName& row) { return row.name == text || row.number == text; });
  BarcodeType = found == kBarcodeNames.end() ? -1 : found->type;
}

void VData_BarCode::SetValue(std::string_view text) {
  Value = trimmed(text);
  HasValue = true;
}

}  // namespace qor
