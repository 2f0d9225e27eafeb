// The tables of papers and trays.
#include "platform/print/paper_table.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>

#include "base/units.h"

namespace qor {
namespace {

constexpr double kLongestSide = 100 * 1000 * kHundredthsPerMillimetre;

constexpr auto kPapers = std::to_array<PaperRow>({
    {1, "Letter", "na_letter_8.5x11in"},
    {2, "Letter Small", "na_letter_8.5x11in"},
    {3, "Tabloid", "na_ledger_11x17in"},
    {4, "Ledger", "na_ledger_11x17in", true},
    {5, "Legal", "na_legal_8.5x14in"},
    {6, "Statement", "na_invoice_5.5x8.5in"},
    {7, "Executive", "na_executive_7.25x10.5in"},
    {8, "A3", "iso_a3_297x420mm"},
    {9, "A4", "iso_a4_210x297mm"},
    {10, "A4 Small", "iso_a4_210x297mm"},
    {11, "A5", "iso_a5_148x210mm"},
    {12, "B4 (JIS)", "jis_b4_257x364mm"},
    {13, "B5 (JIS)", "jis_b5_182x257mm"},
    {14, "Folio", "na_foolscap_8.5x13in"},
    {15, "Quarto", "na_quarto_8.5x10.83in"},
    {16, "10x14", "na_10x14_10x14in"},
    {17, "11x17", "na_ledger_11x17in"},
    {18, "Note", "na_letter_8.5x11in"},
    {19, "Envelope #9", "na_number-9_3.875x8.875in"},
    {20, "Envelope #10", "na_number-10_4.125x9.5in"},
    {21, "Envelope #11", "na_number-11_4.5x10.375in"},
    {22, "Envelope #12", "na_number-12_4.75x11in"},
    {23, "Envelope #14", "na_number-14_5x11.5in"},
    {24, "C size sheet", "na_c_17x22in"},
    {25, "D size sheet", "na_d_22x34in"},
    {26, "E size sheet", "na_e_34x44in"},
    {27, "Envelope DL", "iso_dl_110x220mm"},
    {28, "Envelope C5", "iso_c5_162x229mm"},
    {29, "Envelope C3", "iso_c3_324x458mm"},
    {30, "Envelope C4", "iso_c4_229x324mm"},
    {31, "Envelope C6", "iso_c6_114x162mm"},
    {32, "Envelope C65", "iso_c6c5_114x229mm"},
    // An envelope of the same size stands behind the sheet.
    {42, "B4 (ISO)", "iso_b4_250x353mm"},
    {33, "Envelope B4", "iso_b4_250x353mm"},
    {34, "Envelope B5", "iso_b5_176x250mm"},
    {35, "Envelope B6", "iso_b6_125x176mm"},
    {36, "Envelope", "om_italian_110x230mm"},
    {37, "Envelope Monarch", "na_monarch_3.875x7.5in"},
    {38, "6 3/4 Envelope", "na_personal_3.625x6.5in"},
    {39, "US Std Fanfold", "na_fanfold-us_11x14.875in", true},
    {40, "German Std Fanfold", "na_fanfold-eur_8.5x12in"},
    {41, "German Legal Fanfold", "na_foolscap_8.5x13in"},
    {43, "Japanese Postcard", "jpn_hagaki_100x148mm"},
    {44, "9x11", "na_9x11_9x11in"},
    {45, "10x11", "na_10x11_10x11in"},
    {46, "15x11", "na_11x15_11x15in", true},
    {47, "Envelope Invite", "om_invite_220x220mm"},
    {50, "Letter Extra", "na_letter-extra_9.5x12in"},
    {51, "Legal Extra", "na_legal-extra_9.5x15in"},
    {52, "Tabloid Extra", "custom_tabloid-extra_11.69x18in"},
    {53, "A4 Extra", "iso_a4-extra_235.5x322.3mm"},
    {54, "Letter Transverse", "na_letter_8.5x11in"},
    {55, "A4 Transverse", "iso_a4_210x297mm"},
    {56, "Letter Extra Transverse", "na_letter-extra_9.5x12in"},
    {57, "Super A", "custom_super-a_227x356mm"},
    {58, "Super B", "custom_super-b_305x487mm"},
    {59, "Letter Plus", "na_letter-plus_8.5x12.69in"},
    {60, "A4 Plus", "om_folio_210x330mm"},
    {61, "A5 Transverse", "iso_a5_148x210mm"},
    {62, "B5 (JIS) Transverse", "jis_b5_182x257mm"},
    {63, "A3 Extra", "iso_a3-extra_322x445mm"},
    {64, "A5 Extra", "iso_a5-extra_174x235mm"},
    {65, "B5 (ISO) Extra", "iso_b5-extra_201x276mm"},
    {66, "A2", "iso_a2_420x594mm"},
    {67, "A3 Transverse", "iso_a3_297x420mm"},
    {68, "A3 Extra Transverse", "iso_a3-extra_322x445mm"},
    {69, "Japanese Double Postcard", "jpn_oufuku_148x200mm"},
    {70, "A6", "iso_a6_105x148mm"},
    {71, "Japanese Envelope Kaku #2", "jpn_kaku2_240x332mm"},
    {72, "Japanese Envelope Kaku #3", "jpn_kaku3_216x277mm"},
    {73, "Japanese Envelope Chou #3", "jpn_chou3_120x235mm"},
    {74, "Japanese Envelope Chou #4", "jpn_chou4_90x205mm"},
    {75, "Letter Rotated", "na_letter_8.5x11in", true},
    {76, "A3 Rotated", "iso_a3_297x420mm", true},
    {77, "A4 Rotated", "iso_a4_210x297mm", true},
    {78, "A5 Rotated", "iso_a5_148x210mm", true},
    {79, "B4 (JIS) Rotated", "jis_b4_257x364mm", true},
    {80, "B5 (JIS) Rotated", "jis_b5_182x257mm", true},
    {81, "Japanese Postcard Rotated", "jpn_hagaki_100x148mm", true},
    {82, "Japanese Double Postcard Rotated", "jpn_oufuku_148x200mm", true},
    {83, "A6 Rotated", "iso_a6_105x148mm", true},
    {84, "Japanese Envelope Kaku #2 Rotated", "jpn_kaku2_240x332mm", true},
    {85, "Japanese Envelope Kaku #3 Rotated", "jpn_kaku3_216x277mm", true},
    {86, "Japanese Envelope Chou #3 Rotated", "jpn_chou3_120x235mm", true},
    {87, "Japanese Envelope Chou #4 Rotated", "jpn_chou4_90x205mm", true},
    {88, "B6 (JIS)", "jis_b6_128x182mm"},
    {89, "B6 (JIS) Rotated", "jis_b6_128x182mm", true},
    {91, "Japanese Envelope You #4", "jpn_you4_105x235mm"},
    {92, "Japanese Envelope You #4 Rotated", "jpn_you4_105x235mm", true},
    {93, "PRC 16K", "prc_16k_146x215mm"},
    {94, "PRC 32K", "prc_32k_97x151mm"},
    {96, "PRC Envelope #1", "prc_1_102x165mm"},
    {97, "PRC Envelope #2", "prc_2_102x176mm"},
    {99, "PRC Envelope #4", "prc_4_110x208mm"},
    {100, "PRC Envelope #5", "prc_5_110x220mm"},
    {101, "PRC Envelope #6", "prc_6_120x230mm"},
    {102, "PRC Envelope #7", "prc_7_160x230mm"},
    {103, "PRC Envelope #8", "prc_8_120x309mm"},
    {105, "PRC Envelope #10", "prc_10_324x458mm"},
});

constexpr auto kBins = std::to_array<BinRow>({
    {1, "Upper tray", "top"},
    {1, "Tray 1", "tray-1"},
    {1, "Main tray", "main"},
    {2, "Lower tray", "bottom"},
    {2, "Tray 2", "tray-2"},
    {3, "Middle tray", "middle"},
    {3, "Tray 3", "tray-3"},
    {4, "Manual feed", "manual"},
    {4, "Manual feed", "by-pass-tray"},
    {5, "Envelope feeder", "envelope"},
    {7, "Automatic", "auto"},
    {11, "Large capacity tray", "large-capacity"},
});

// Reads a length and moves behind it.
std::optional<double> takeLength(std::string_view& text) {
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || !(value > 0)) return std::nullopt;
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  return value;
}

}  // namespace

std::span<const PaperRow> paperTable() {
  return kPapers;
}

std::span<const BinRow> binTable() {
  return kBins;
}

std::optional<MediaSize> sizeOfMedia(std::string_view name) {
  std::string_view dimensions = name.substr(name.rfind('_') + 1);
  const auto width = takeLength(dimensions);
  if (!width || !dimensions.starts_with('x')) return std::nullopt;
  dimensions.remove_prefix(1);
  const auto length = takeLength(dimensions);
  if (!length || (dimensions != "mm" && dimensions != "in")) return std::nullopt;
  const double unit = dimensions == "mm" ? kHundredthsPerMillimetre : kHundredthsPerInch;
  if (std::max(*width, *length) * unit > kLongestSide) return std::nullopt;
  return MediaSize{static_cast<int>(std::lround(*width * unit)),
                   static_cast<int>(std::lround(*length * unit))};
}

MediaSize sizeOf(const PaperRow& row) {
  const MediaSize upright = *sizeOfMedia(row.media);
  return row.turned ? MediaSize{upright.length, upright.width} : upright;
}

bool sameSize(MediaSize first, MediaSize second) {
  constexpr int kTolerance = 100;
  return std::abs(first.width - second.width) < kTolerance &&
         std::abs(first.length - second.length) < kTolerance;
}

}  // namespace qor
