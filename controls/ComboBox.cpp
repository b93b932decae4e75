#include "controls/ComboBox.h"

namespace controls {

void ComboBox::AddItem(std::string_view text) {
    rows_.PushBack(text);
    Report(Property::Items);
}

bool ComboBox::RemoveItem(int row) {
    if (row < 0 || row >= ListCount()) return false;
    rows_.Erase(static_cast<std::size_t>(row));
    if (row == list_index_) {
        list_index_ = -1;
        if (style_ == ComboStyle::DropDownList) text_.clear();
    } else if (row < list_index_) {
        --list_index_;
    }
    Report(Property::Items);
    return true;
}

void ComboBox::Clear() {
    if (style_ == ComboStyle::DropDownList) text_.clear();
    list_index_ = -1;
    rows_.Clear();
    Report(Property::Items);
}

std::string_view ComboBox::List(int row) const {
    if (row < 0 || row >= ListCount()) return {};
    return rows_.At(static_cast<std::size_t>(row));
}

bool ComboBox::SetListIndex(int row) {
    if (row < -1 || row >= ListCount()) return false;
    list_index_ = row;
    if (row >= 0) {
        text_ = List(row);
    } else if (style_ == ComboStyle::DropDownList) {
        text_.clear();
    }
    Report(Property::ListIndex);
    Click.Raise();
    return true;
}

void ComboBox::SetText(std::string_view text) {
    if (style_ == ComboStyle::DropDownList) {
        if (text == text_) return;
        for (int row = 0; row < ListCount(); ++row) {
            if (List(row) == text) {
                SetListIndex(row);
                return;
            }
        }
        return;
    }
    if (text == text_) return;
    text_ = text;
    Report(Property::Text);
    Change.Raise();
}

}  // namespace controls
