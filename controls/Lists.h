// List box and combo box.
//
// Assigning ListIndex raises Click, as a person's choice does. Text of a list is the selected row, or empty.
// Clearing sets ListIndex to -1 and raises nothing. A sorted list is put in order when it is next read, once
// for any number of rows added before.
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
    /// Removes a row; a row that is not there changes nothing and gives false. The selection stays on its
    /// row; when the selected row goes, ListIndex becomes -1, without a Click.
    bool RemoveItem(int row);
    void Clear();
    /// Clears the list and adds every row of another one, in its order.
    void CopyRowsFrom(const ListBox& other);

    int ListCount() const { return static_cast<int>(rows_.Size()); }
    /// Text of a row; empty for a row that is not there. The view holds until the list changes.
    std::string_view List(int row) const;
    /// -1 when no row is selected.
    int ListIndex() const;
    /// Selects a row (-1 for none) and raises Click. A row that is not there changes nothing and gives false.
    bool SetListIndex(int row);
    /// The selected row's text, or empty.
    std::string_view Text() const { return List(ListIndex()); }
    /// Selects the first row with just this text; false, and no change, when there is none.
    bool SelectText(std::string_view text);

    bool IsSorted() const { return sorted_ == Sorted::Yes; }

    /// A muted text that the screen draws while the list is empty.
    const std::string& Hint() const { return hint_; }
    void SetHint(std::string_view hint);

    /// A drag of rows out of the list: the text that the selected row carries. Empty forbids the drag.
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

enum class ComboStyle {
    DropDown,     ///< a text box with a list: the text is free
    DropDownList  ///< only rows of the list: the text is the selected row
};

class ComboBox : public Control {
public:
    explicit ComboBox(std::string_view name, ComboStyle style = ComboStyle::DropDown)
        : Control(Kind::ComboBox, name), style_(style) {}

    ComboStyle Style() const { return style_; }
    void AddItem(std::string_view text);
    bool RemoveItem(int row);
    /// Empties the list; a free text stays.
    void Clear();
    int ListCount() const { return static_cast<int>(rows_.Size()); }
    std::string_view List(int row) const;
    int ListIndex() const { return list_index_; }
    /// Selects a row, takes its text over and raises Click; a row that is not there changes nothing and gives
    /// false.
    bool SetListIndex(int row);
    /// The free text, or the selected row of a DropDownList.
    const std::string& Text() const { return text_; }
    /// A free text raises Change when it is another one; a DropDownList selects the row with that text and
    /// raises Click, and ignores a text it has no row for.
    void SetText(std::string_view text);

    const std::string& Hint() const { return hint_; }
    void SetHint(std::string_view hint);

    Event<> Change;

private:
    ComboStyle style_;
    base::RowTexts rows_;
    int list_index_ = -1;
    std::string text_;
    std::string hint_;
};

}  // namespace controls
