#include "controls/Control.h"

#include <algorithm>
#include <cassert>

namespace controls {

Control::Control(Kind kind, std::string_view name) : kind_(kind), name_(name) {}

Control::~Control() {
    if (parent_ != nullptr) parent_->Remove(*this);
}

bool Control::IsShown() const {
    for (const Control* control = this; control != nullptr; control = control->Parent()) {
        if (!control->Visible()) return false;
    }
    return true;
}

void Control::Move(double left, double top, double width, double height) {
    width = std::max(0.0, width);
    height = std::max(0.0, height);
    if (left == left_ && top == top_ && width == width_ && height == height_) return;
    left_ = left;
    top_ = top;
    width_ = width;
    height_ = height;
    Report(Property::Geometry);
}

void Control::BringToFront() {
    if (parent_ != nullptr) {
        auto& siblings = parent_->children_;
        if (siblings.back() == this) return;
        siblings.erase(std::find(siblings.begin(), siblings.end(), this));
        siblings.push_back(this);
    }
    Report(Property::ZOrder);
}

void Control::SetFocus() {
    Report(Property::Focus);
}

void Control::Refresh() {
    Report(Property::Refresh);
}

void Control::Report(Property property) {
    if (observer_ != nullptr) observer_->OnPropertyChanged(*this, property);
}

Container::~Container() {
    for (Control* child : children_)
        child->parent_ = nullptr;
}

void Container::Add(Control& child) {
    assert(&child != this);
    if (child.parent_ != nullptr) child.parent_->Remove(child);
    child.parent_ = this;
    children_.push_back(&child);
    child.Report(Property::Parent);
    // A container that is being watched tells of the newcomer, which nobody watches yet.
    if (child.Observer() == nullptr && Observer() != nullptr)
        Observer()->OnPropertyChanged(child, Property::Parent);
}

void Container::Remove(Control& child) {
    assert(child.parent_ == this);
    children_.erase(std::remove(children_.begin(), children_.end(), &child), children_.end());
    child.parent_ = nullptr;
}

}  // namespace controls
