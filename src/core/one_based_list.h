// The ordered collection behind every list of the program: items count from 1.
#pragma once

#include <cstddef>
#include <vector>

#include "core/checked.h"

namespace korvet {

/// An ordered list of T in one block of memory, items 1 to Count(). It holds copies, never the caller's
/// object.
template <typename T>
class OneBasedList {
  public:
    /// Appends a copy and returns the stored copy. The reference holds until the list grows or shrinks.
    T& Add(const T& item) { return items_.emplace_back(item); }

    /// The stored item itself: writing to it changes the list. Throws ListError unless 1 <= index <= Count().
    [[nodiscard]] T& Item(std::size_t index) { return items_[Checked(index)]; }
    [[nodiscard]] const T& Item(std::size_t index) const { return items_[Checked(index)]; }

    /// The last item. Throws ListError when the list is empty.
    [[nodiscard]] const T& Last() const { return Item(Count()); }

    /// Takes item `index` out; later items move up. Throws ListError unless 1 <= index <= Count().
    void Remove(std::size_t index) {
        items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(Checked(index)));
    }

    [[nodiscard]] std::size_t Count() const { return items_.size(); }

    /// Makes room for `count` items in one go; the list itself is unchanged.
    void Reserve(std::size_t count) { items_.reserve(count); }

    auto begin() { return items_.begin(); }
    auto end() { return items_.end(); }
    auto begin() const { return items_.begin(); }
    auto end() const { return items_.end(); }

  private:
    [[nodiscard]] std::size_t Checked(std::size_t index) const {
        if (index < 1 || index > items_.size()) {
            ThrowNoItem(index, items_.size());
        }
        return index - 1;
    }

    std::vector<T> items_;
};

}  // namespace korvet
