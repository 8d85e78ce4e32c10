// Arrays that can be unsized, resized with or without their contents, and read past their end.
#pragma once

#include <cstddef>
#include <vector>

#include "platform/RunTimeError.h"

namespace sorvane {

// Elements 0 to UBound. An array never sized, or an index outside it, raises error 9.
template <class T>
class Array {
  public:
    // Empties and sizes to 0..upper (upper -1 leaves no element; below raises 9 and changes nothing).
    void Redim(int upper) {
        const std::size_t count = Count(upper);
        items_.clear();
        Resize(count);
    }
    // Sizes to 0..upper as Redim does; elements that stay keep their contents, new ones are zero or empty.
    void RedimPreserve(int upper) { Resize(Count(upper)); }
    bool Sized() const { return sized_; }
    int UBound() const {
        if (!sized_) Raise(ErrorNumber::SubscriptOutOfRange);
        return static_cast<int>(items_.size()) - 1;
    }
    T& operator()(int index) { return items_[At(index)]; }
    const T& operator()(int index) const { return items_[At(index)]; }

  private:
    static std::size_t Count(int upper) {
        if (upper < -1) Raise(ErrorNumber::SubscriptOutOfRange);
        return upper < 0 ? 0 : static_cast<std::size_t>(upper) + 1;
    }
    void Resize(std::size_t count) {
        items_.resize(count);
        sized_ = true;
    }
    std::size_t At(int index) const {
        if (!sized_ || index < 0 || static_cast<std::size_t>(index) >= items_.size())
            Raise(ErrorNumber::SubscriptOutOfRange);
        return static_cast<std::size_t>(index);
    }
    std::vector<T> items_;
    bool sized_ = false;
};

}  // namespace sorvane
