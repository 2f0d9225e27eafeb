// A font that items and open tags have in common. Thousands of texts in a row have the same one: it
// stands in memory once, never changes, and goes with the last who holds it.
#pragma once

namespace qor {

struct FontState;

// As small as a pointer, and as cheap to copy. For one thread.
class SharedFont {
 public:
  SharedFont();  // as FontState()
  explicit SharedFont(const FontState& font);
  SharedFont(const SharedFont& other) noexcept;
  SharedFont& operator=(const SharedFont& other) noexcept;
  ~SharedFont();

  const FontState& operator*() const;
  const FontState* operator->() const { return &**this; }

 private:
  friend class SharedFonts;
  struct Kept;

  Kept* kept_;
};

}  // namespace qor
