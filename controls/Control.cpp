#include "controls/Control.h"

#include <algorithm>
#include <cassert>
#include <iterator>

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
    if (parent_ == nullptr) {
        Report(Property::ZOrder);
        return;
    }
    if (!parent_->PutInFront(*this)) return;
    Report(Property::ZOrder);
    parent_->ReportKeptInFront(*this);
}

void Control::KeepInFront(bool kept) {
    kept_in_front_ = kept;
    BringToFront();
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
    children_.insert(children_.begin(), &child);
    PutInFront(child);
    child.Report(Property::Parent);
    // A container that is being watched tells of the newcomer, which nobody watches yet.
    if (child.Observer() == nullptr && Observer() != nullptr)
        Observer()->OnPropertyChanged(child, Property::Parent);
    ReportKeptInFront(child);
}

// Those that are kept in front are the last ones of the row.
bool Container::PutInFront(Control& child) {
    const auto old_place = std::find(children_.begin(), children_.end(), &child);
    const auto old_index = old_place - children_.begin();
    children_.erase(old_place);
    auto place = children_.end();
    while (!child.kept_in_front_ && place != children_.begin() && (*std::prev(place))->kept_in_front_)
        --place;
    place = children_.insert(place, &child);
    return place - children_.begin() != old_index;
}

// The screen raises what came to the front over everything.
void Container::ReportKeptInFront(const Control& over) {
    if (over.kept_in_front_) return;
    for (Control* child : children_) {
        if (child->kept_in_front_) child->Report(Property::ZOrder);
    }
}

void Container::Remove(Control& child) {
    assert(child.parent_ == this);
    children_.erase(std::remove(children_.begin(), children_.end(), &child), children_.end());
    child.parent_ = nullptr;
}

}  // namespace controls
