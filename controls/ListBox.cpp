#include "controls/ListBox.h"

namespace controls {

void ListBox::AddItem(std::initializer_list<std::string_view> parts) {
    rows_.PushBack(parts);
    if (sorted_ == Sorted::Yes) out_of_order_ = true;
    Report(Property::Items);
}

bool ListBox::RemoveItem(int row) {
    if (row < 0 || row >= ListCount()) return false;
    PutInOrder();
    rows_.Erase(static_cast<std::size_t>(row));
    if (row == list_index_) {
        list_index_ = -1;
    } else if (row < list_index_) {
        --list_index_;
    }
    Report(Property::Items);
    return true;
}

void ListBox::Clear() {
    if (rows_.Empty()) return;
    rows_.Clear();
    out_of_order_ = false;
    list_index_ = -1;
    Report(Property::Items);
}

void ListBox::CopyRowsFrom(const ListBox& other) {
    other.PutInOrder();
    rows_.CopyFrom(other.rows_);
    out_of_order_ = sorted_ == Sorted::Yes;
    list_index_ = -1;
    Report(Property::Items);
}

std::string_view ListBox::List(int row) const {
    if (row < 0 || row >= ListCount()) return {};
    PutInOrder();
    return rows_.At(static_cast<std::size_t>(row));
}

int ListBox::ListIndex() const {
    PutInOrder();
    return list_index_;
}

bool ListBox::SetListIndex(int row) {
    if (row < -1 || row >= ListCount()) return false;
    PutInOrder();
    list_index_ = row;
    Report(Property::ListIndex);
    Click.Raise();
    return true;
}

bool ListBox::SelectText(std::string_view text) {
    for (int row = 0; row < ListCount(); ++row) {
        if (List(row) == text) return SetListIndex(row);
    }
    return false;
}

void ListBox::PutInOrder() const {
    if (!out_of_order_) return;
    out_of_order_ = false;
    if (list_index_ < 0) {
        rows_.Sort();
        return;
    }
    const std::string selected(rows_.At(static_cast<std::size_t>(list_index_)));
    rows_.Sort();
    list_index_ = static_cast<int>(rows_.LowerBound(selected));
}

}  // namespace controls
