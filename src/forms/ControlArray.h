// Controls under one name, told apart by an index.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/KeyFilter.h"
#include "platform/RunTimeError.h"

namespace sorvane::forms {

// Elements are loaded one by one, in any order, with holes or not; their names are "chkNumb(0)" and so on. A
// handler attached here serves all elements, those loaded later too, and is told the index.
template <class T>
class ControlArray {
  public:
    explicit ControlArray(std::string_view name) : name_(name) {}

    // Makes the element, or gives the one that is there. A negative index raises 9. Further arguments go to
    // the control's constructor behind the name.
    template <class... Args>
    T& Load(int index, Args&&... args) {
        if (index < 0) Raise(ErrorNumber::SubscriptOutOfRange);
        const auto at = static_cast<std::size_t>(index);
        if (at >= items_.size()) items_.resize(at + 1);
        if (!items_[at]) {
            items_[at] =
                std::make_unique<T>(name_ + "(" + std::to_string(index) + ")", std::forward<Args>(args)...);
            for (const auto& attach : attach_) attach(*items_[at], index);
        }
        return *items_[at];
    }
    bool IsLoaded(int index) const {
        return index >= 0 && static_cast<std::size_t>(index) < items_.size() &&
               items_[static_cast<std::size_t>(index)];
    }
    // Raises 9 for an index that is not loaded.
    T& operator()(int index) const {
        if (!IsLoaded(index)) Raise(ErrorNumber::SubscriptOutOfRange);
        return *items_[static_cast<std::size_t>(index)];
    }
    // How many elements are loaded.
    int Count() const {
        int count = 0;
        for (const auto& item : items_) count += item ? 1 : 0;
        return count;
    }
    // The highest index loaded, -1 without any.
    int UBound() const { return static_cast<int>(items_.size()) - 1; }
    // visit(element, index) for each loaded element, upwards.
    template <class Visit>
    void ForEach(Visit visit) const {
        for (std::size_t at = 0; at < items_.size(); ++at)
            if (items_[at]) visit(*items_[at], static_cast<int>(at));
    }

    using Handler = std::function<void(int index)>;
    void OnClick(Handler handler) {
        Attach([h = std::move(handler)](T& item, int i) { item.OnClick([h, i] { h(i); }); });
    }
    void OnChange(Handler handler) {
        Attach([h = std::move(handler)](T& item, int i) { item.OnChange([h, i] { h(i); }); });
    }
    void OnGotFocus(Handler handler) {
        Attach([h = std::move(handler)](T& item, int i) { item.OnGotFocus([h, i] { h(i); }); });
    }
    void OnLostFocus(Handler handler) {
        Attach([h = std::move(handler)](T& item, int i) { item.OnLostFocus([h, i] { h(i); }); });
    }
    void OnKeyPress(std::function<void(int index, KeyPress&)> handler) {
        Attach([h = std::move(handler)](T& item, int i) {
            item.OnKeyPress([h, i](KeyPress& key) { h(i, key); });
        });
    }

  private:
    void Attach(std::function<void(T&, int)> attach) {
        ForEach(attach);
        attach_.push_back(std::move(attach));
    }
    std::string name_;
    std::vector<std::unique_ptr<T>> items_;
    std::vector<std::function<void(T&, int)>> attach_;
};

}  // namespace sorvane::forms
