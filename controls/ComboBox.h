// A text with a list of rows to choose it from.
//
// Assigning ListIndex raises Click, as the user's choice does. Clearing sets ListIndex to -1 and raises
// nothing.
#pragma once

#include <string>
#include <string_view>

#include "base/RowTexts.h"
#include "controls/Control.h"

namespace controls {

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
    /// Selects a row, takes over its text and raises Click; for a row that does not exist it changes nothing
    /// and returns false.
    bool SetListIndex(int row);
    /// The free text, or the selected row of a DropDownList.
    const std::string& Text() const { return text_; }
    /// A free text raises Change if it is another one; a DropDownList selects the row with that text and
    /// raises Click, and ignores a text that it has no row for.
    void SetText(std::string_view text);

    const std::string& Hint() const { return hint_; }
    void SetHint(std::string_view hint) { Assign(hint_, hint, Property::Refresh); }

    Event<> Change;

private:
    ComboStyle style_;
    base::RowTexts rows_;
    int list_index_ = -1;
    std::string text_;
    std::string hint_;
};

}  // namespace controls
