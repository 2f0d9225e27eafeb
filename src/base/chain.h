// Chains of objects linked by hand: the head owns the rest. One place frees them in a loop, so that
// a chain of a million links doesn't overflow the stack, and one view walks them with range-for.
#pragma once

#include <iterator>
#include <utility>

namespace qor {

// Frees every object from `first` on and leaves it null. A link's destructor calls this for the
// objects behind it; it finds none when the whole chain is freed from here.
template <auto NextLink, class T>
void deleteChain(T*& first) {
  for (T* link = std::exchange(first, nullptr); link != nullptr;) {
    T* after = std::exchange(link->*NextLink, nullptr);
    delete link;
    link = after;
  }
}

// A range over a chain. It owns nothing.
template <auto NextLink, class T>
class ChainView {
 public:
  class Iterator {
   public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = T;
    using difference_type = std::ptrdiff_t;
    using pointer = T*;
    using reference = T&;

    explicit Iterator(T* link = nullptr) : link_(link) {}
    T& operator*() const { return *link_; }
    T* operator->() const { return link_; }
    Iterator& operator++() {
      link_ = link_->*NextLink;
      return *this;
    }
    Iterator operator++(int) {
      Iterator before = *this;
      ++*this;
      return before;
    }
    bool operator==(const Iterator&) const = default;

   private:
    T* link_;
  };

  explicit ChainView(T* first) : first_(first) {}
  Iterator begin() const { return Iterator(first_); }
  Iterator end() const { return Iterator(); }

 private:
  T* first_;
};

}  // namespace qor
