// The fonts that somebody holds, each once.
#include "document/shared_font.h"

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>
#include <unordered_set>
#include <utility>

#include "document/font_state.h"

namespace qor {
namespace {

// All that a font holds, without the gaps between its members. Numbers count by their bits: one
// that isn't equal to itself is found again, too.
struct FontBits {
  explicit FontBits(const FontState& font)
      : reals{bitsOf(font.WidthFactor), bitsOf(font.Height),      bitsOf(font.Width),
              bitsOf(font.CharSpacing), bitsOf(font.LineSpacing), bitsOf(font.RowHeight)},
        kind(font.Kind),
        color(static_cast<std::uint32_t>(font.Color)) {
    std::memcpy(record.data(), &font.LogFont, sizeof font.LogFont);
  }

  bool operator==(const FontBits&) const = default;

  std::size_t hash() const {
    constexpr std::uint64_t kPrime = 0x9E3779B97F4A7C15;
    std::uint64_t sum = static_cast<std::uint32_t>(kind) ^ std::uint64_t{color} << 32;
    for (const std::uint64_t real : reals) sum = std::rotl(sum ^ real, 29) * kPrime;
    for (const std::uint32_t word : record) sum = std::rotl(sum ^ word, 29) * kPrime;
    return static_cast<std::size_t>(sum ^ sum >> 32);
  }

  static std::uint64_t bitsOf(double number) { return std::bit_cast<std::uint64_t>(number); }

  std::array<std::uint64_t, 6> reals;
  std::array<std::uint32_t, sizeof(struct LogFont) / sizeof(std::uint32_t)> record;
  std::int32_t kind;
  std::uint32_t color;
};

}  // namespace

struct SharedFont::Kept {
  FontState font;
  std::size_t hash;
  std::size_t holders = 0;
};

class SharedFonts {
  using Kept = SharedFont::Kept;

 public:
  static SharedFonts& all() {
    static SharedFonts fonts;
    return fonts;
  }

  Kept* hold(const FontState& font) {
    const Wanted wanted{FontBits(font)};
    auto found = kept_.find(wanted);
    if (found == kept_.end())
      found = kept_.insert(std::make_unique<Kept>(Kept{font, wanted.hash})).first;
    ++(*found)->holders;
    return found->get();
  }

  void drop(const Kept& kept) { kept_.erase(kept_.find(Wanted{FontBits(kept.font)})); }

 private:
  using Owned = std::unique_ptr<Kept>;

  struct Wanted {
    explicit Wanted(const FontBits& of) : bits(of), hash(of.hash()) {}

    FontBits bits;
    std::size_t hash;
  };

  struct Hash {
    using is_transparent = void;
    std::size_t operator()(const Owned& kept) const { return kept->hash; }
    std::size_t operator()(const Wanted& wanted) const { return wanted.hash; }
  };

  struct Equal {
    using is_transparent = void;
    bool operator()(const Owned& one, const Owned& other) const {
      return FontBits(one->font) == FontBits(other->font);
    }
    bool operator()(const Owned& kept, const Wanted& wanted) const {
      return kept->hash == wanted.hash && FontBits(kept->font) == wanted.bits;
    }
    bool operator()(const Wanted& wanted, const Owned& kept) const { return (*this)(kept, wanted); }
  };

  std::unordered_set<Owned, Hash, Equal> kept_;
};

SharedFont::SharedFont() : SharedFont(FontState()) {
}

SharedFont::SharedFont(const FontState& font) : kept_(SharedFonts::all().hold(font)) {
}

SharedFont::SharedFont(const SharedFont& other) noexcept : kept_(other.kept_) {
  ++kept_->holders;
}

SharedFont& SharedFont::operator=(const SharedFont& other) noexcept {
  SharedFont held(other);
  std::swap(kept_, held.kept_);
  return *this;
}

SharedFont::~SharedFont() {
  if (--kept_->holders == 0) SharedFonts::all().drop(*kept_);
}

const FontState& SharedFont::operator*() const {
  return kept_->font;
}

}  // namespace qor
