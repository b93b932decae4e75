// Mirrors of the list box, the combo box and the text box.
#pragma once

#include <QComboBox>
#include <QLineEdit>

#include "controls/ComboBox.h"
#include "controls/ListBox.h"
#include "controls/TextBox.h"
#include "platform/qt/RowsView.h"
#include "platform/qt/WidgetMirror.h"

namespace qt {

class ListMirror final : public WidgetMirror {
public:
    ListMirror(Stage& stage, controls::ListBox& list, QWidget* container);

private:
    void Apply(controls::Property property) override;
    bool IsPassive() const override { return false; }
    bool PressEnter() override;
    int ScrolledUp() const override { return view_->Offset(); }
    int RowAt(int y) const override { return view_->RowAt(y); }
    void DragOut();
    void ShowRows();
    controls::ListBox& list_;
    RowsView* view_;
    bool is_behind_ = false;  // rows changed while the list was hidden
};

class ComboMirror final : public WidgetMirror {
public:
    ComboMirror(Stage& stage, controls::ComboBox& combo, QWidget* container);

private:
    void Apply(controls::Property property) override;
    bool IsPassive() const override { return false; }
    QString SpokenName() const override;
    void ShowText();
    controls::ComboBox& combo_;
    QComboBox* box_;
    class ComboModel* rows_;
};

class TextMirror final : public WidgetMirror {
public:
    TextMirror(Stage& stage, controls::TextBox& text, QWidget* container);

private:
    void Apply(controls::Property property) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool IsPassive() const override { return false; }
    QString SpokenName() const override;
    void ShowSign();
    controls::TextBox& text_;
    QLineEdit* edit_;
    QAction* sign_ = nullptr;
};

}  // namespace qt
