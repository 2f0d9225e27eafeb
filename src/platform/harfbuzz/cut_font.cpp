// Subsets by HarfBuzz: a module of its own.
#include <memory>

#include <hb-subset.h>

#include "base/errors.h"
#include "platform/pdf/font_subset.h"

namespace qor {
namespace {

struct HarfBuzzDeleter {
  void operator()(hb_blob_t* blob) const { hb_blob_destroy(blob); }
  void operator()(hb_face_t* face) const { hb_face_destroy(face); }
  void operator()(hb_subset_input_t* input) const { hb_subset_input_destroy(input); }
  void operator()(hb_subset_plan_t* plan) const { hb_subset_plan_destroy(plan); }
};
template <class T>
using HarfBuzz = std::unique_ptr<T, HarfBuzzDeleter>;

// Tables that only layout, hinting and other systems need.
constexpr hb_tag_t kDropped[] = {
    HB_TAG('G', 'S', 'U', 'B'), HB_TAG('G', 'P', 'O', 'S'), HB_TAG('G', 'D', 'E', 'F'),
    HB_TAG('k', 'e', 'r', 'n'), HB_TAG('D', 'S', 'I', 'G'), HB_TAG('n', 'a', 'm', 'e'),
    HB_TAG('O', 'S', '/', '2'), HB_TAG('c', 'm', 'a', 'p'), HB_TAG('p', 'o', 's', 't'),
    HB_TAG('g', 'a', 's', 'p'), HB_TAG('f', 'v', 'a', 'r'), HB_TAG('g', 'v', 'a', 'r'),
    HB_TAG('a', 'v', 'a', 'r'), HB_TAG('S', 'T', 'A', 'T'), HB_TAG('H', 'V', 'A', 'R'),
    HB_TAG('M', 'V', 'A', 'R'), HB_TAG('F', 'F', 'T', 'M'), HB_TAG('m', 'e', 't', 'a')};

HarfBuzz<hb_subset_input_t> inputOf(const std::set<std::uint32_t>& glyphs) {
  HarfBuzz<hb_subset_input_t> input(hb_subset_input_create_or_fail());
  if (!input) return input;
  hb_subset_input_set_flags(input.get(), HB_SUBSET_FLAGS_NO_HINTING);
  for (const std::uint32_t glyph : glyphs) {
    hb_set_add(hb_subset_input_glyph_set(input.get()), glyph);
  }
  hb_set_t* dropped = hb_subset_input_set(input.get(), HB_SUBSET_SETS_DROP_TABLE_TAG);
  for (const hb_tag_t tag : kDropped) hb_set_add(dropped, tag);
  return input;
}

// Takes over the blob.
std::string bytesOf(hb_blob_t* taken) {
  const HarfBuzz<hb_blob_t> blob(taken);
  unsigned length = 0;
  const char* data = hb_blob_get_data(blob.get(), &length);
  return {data, length};
}

FontSubset cutFont(const std::string& file, int index, const std::set<std::uint32_t>& glyphs) {
  const auto fail = [&file] { return FileError(file + ": the font can't be embedded"); };
  const HarfBuzz<hb_blob_t> blob(hb_blob_create_from_file_or_fail(file.c_str()));
  if (!blob) throw fail();
  const HarfBuzz<hb_face_t> whole(hb_face_create(blob.get(), static_cast<unsigned>(index)));
  const auto input = inputOf(glyphs);
  if (!input) throw fail();
  const HarfBuzz<hb_subset_plan_t> plan(hb_subset_plan_create_or_fail(whole.get(), input.get()));
  if (!plan) throw fail();
  const HarfBuzz<hb_face_t> cut(hb_subset_plan_execute_or_fail(plan.get()));
  if (!cut) throw fail();
  FontSubset subset;
  subset.bytes = bytesOf(hb_face_reference_table(cut.get(), HB_TAG('C', 'F', 'F', ' ')));
  subset.hasCff = !subset.bytes.empty();
  if (!subset.hasCff) subset.bytes = bytesOf(hb_face_reference_blob(cut.get()));
  const hb_map_t* places = hb_subset_plan_old_to_new_glyph_mapping(plan.get());
  for (const std::uint32_t glyph : glyphs) {
    const hb_codepoint_t place = hb_map_get(places, glyph);
    subset.places[glyph] = place == HB_MAP_VALUE_INVALID ? 0 : place;
  }
  return subset;
}

}  // namespace
}  // namespace qor

extern "C" __attribute__((visibility("default"))) void qorCutFont(
    const std::string& file, int index, const std::set<std::uint32_t>& glyphs,
    qor::FontSubset& subset) {
  subset = qor::cutFont(file, index, glyphs);
}
