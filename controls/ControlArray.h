// Controls of one name, distinguished by an index. Member 0 exists from the start, as the template; further
// members are loaded at the end, one after another, and are never removed or moved in memory.
#pragma once

#include <cassert>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "controls/Control.h"

namespace controls {

template <class T>
class ControlArray {
public:
    explicit ControlArray(std::string_view name) : name_(name) { Append(); }

    int Count() const { return static_cast<int>(members_.size()); }
    T& operator()(int index) {
        assert(index >= 0 && index < Count());
        return *members_[static_cast<std::size_t>(index)];
    }
    const T& operator()(int index) const {
        assert(index >= 0 && index < Count());
        return *members_[static_cast<std::size_t>(index)];
    }
    /// Makes member `index`, which must be the next one: hidden, with the template's place, size and look, in
    /// the template's container.
    T& Load(int index) {
        return Load(index, [](T&) {});
    }
    /// `prepare` gets the member before it is put into the container: a screen that watches looks at once
    /// which of its events are listened to.
    template <class Prepare>
    T& Load(int index, Prepare prepare) {
        assert(index == Count());
        (void)index;
        T& member = Append();
        T& model = *members_.front();
        member.SetVisible(false);
        member.SetLook(model.Look());
        member.Move(model.Left(), model.Top(), model.Width(), model.Height());
        prepare(member);
        if (model.Parent() != nullptr) model.Parent()->Add(member);
        return member;
    }
    const std::string& Name() const { return name_; }

private:
    T& Append() {
        auto member = std::make_unique<T>(name_);
        member->index_ = Count();
        members_.push_back(std::move(member));
        return *members_.back();
    }

    std::string name_;
    std::vector<std::unique_ptr<T>> members_;
};

}  // namespace controls
