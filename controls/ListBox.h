// A list of rows, one of them selected.
//
// Assigning ListIndex raises Click, as the user's choice does. Text is the selected row, or empty. Clearing
// sets ListIndex to -1 and raises nothing. A sorted list is put in order when it is next read, once for any
// number of rows added before.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

#include "base/RowTexts.h"
#include "controls/Control.h"

namespace controls {

enum class Sorted { No, Yes };

class ListBox : public Control {
public:
    explicit ListBox(std::string_view name, Sorted sorted = Sorted::No)
        : ListBox(Kind::ListBox, name, sorted) {}

    /// Adds a row at the end, or in its place in a sorted list. No Click.
    void AddItem(std::string_view text) { AddItem({text}); }
    /// The parts joined as one row.
    void AddItem(std::initializer_list<std::string_view> parts);
    /// Removes a row; for a row that does not exist it changes nothing and returns false. The selection stays
    /// on its row; when the selected row is removed, ListIndex becomes -1, without a Click.
    bool RemoveItem(int row);
    void Clear();
    /// Clears the list and adds every row of another one, in its order.
    void CopyRowsFrom(const ListBox& other);

    int ListCount() const { return static_cast<int>(rows_.Size()); }
    /// Text of a row; empty for a row that does not exist. The view is valid until the list changes.
    std::string_view List(int row) const;
    /// -1 when no row is selected.
    int ListIndex() const;
    /// Selects a row (-1 for none) and raises Click. For a row that does not exist it changes nothing and
    /// returns false.
    bool SetListIndex(int row);
    /// The selected row's text, or empty.
    std::string_view Text() const { return List(ListIndex()); }
    /// Selects the first row with exactly this text; returns false, and changes nothing, if there is none.
    bool SelectText(std::string_view text);

    /// A muted text that the screen draws while the list is empty.
    const std::string& Hint() const { return hint_; }
    void SetHint(std::string_view hint) { Assign(hint_, hint, Property::Refresh); }

    /// The text that a drag of the selected row carries. Empty forbids the drag.
    std::string DragText;

protected:
    ListBox(Kind kind, std::string_view name, Sorted sorted) : Control(kind, name), sorted_(sorted) {}

private:
    void PutInOrder() const;

    Sorted sorted_;
    mutable base::RowTexts rows_;
    mutable bool out_of_order_ = false;
    mutable int list_index_ = -1;
    std::string hint_;
};

}  // namespace controls
