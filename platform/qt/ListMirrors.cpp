#include "platform/qt/ListMirrors.h"

#include <QAbstractItemView>
#include <QAction>
#include <QDrag>
#include <QPainter>
#include <QSignalBlocker>

#include "platform/qt/Drops.h"
#include "platform/qt/Geometry.h"
#include "platform/qt/Loop.h"
#include "platform/qt/Signs.h"
#include "platform/qt/Skin.h"
#include "platform/qt/Spoken.h"

namespace qt {

using controls::Property;

/// The rows of a combo box, counted when told to.
class ComboModel final : public QAbstractListModel {
public:
    ComboModel(const controls::ComboBox& combo, QObject* parent)
        : QAbstractListModel(parent), combo_(combo) {}
    void Sync() {
        beginResetModel();
        count_ = combo_.ListCount();
        endResetModel();
    }
    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : count_; }
    QVariant data(const QModelIndex& index, int role) const override {
        if (role == Qt::SizeHintRole) return QSize(0, skin::kRowHeight);
        if (role != Qt::DisplayRole && role != Qt::EditRole) return {};
        return ToQt(combo_.List(index.row()));
    }

private:
    const controls::ComboBox& combo_;
    int count_ = 0;
};

namespace {

/// A line of text in a well of its own, or in one that is drawn already: the address lies in its combo box.
class TextView final : public QLineEdit {
public:
    TextView(const controls::TextBox& text, QWidget* parent)
        : QLineEdit(parent), inset_(text.Look() == "inset"), selects_(text.Look() == "address") {
        // Without the frame, which is a pixel wide, the words keep their place.
        setTextMargins(inset_ ? 3 : selects_ ? 6 : 5, 0, 4, 0);
        setFrame(!inset_ && !selects_);
        if (text.IsPassword()) setEchoMode(Password);
    }

    /// Shows a text that nobody typed here, from its beginning.
    void ShowText(const QString& text) {
        setText(text);
        if (!hasFocus()) setCursorPosition(0);
        if (hasFocus() && selects_) selectAll();
    }

    /// Where typing is to replace what is there.
    void SelectWhole() {
        if (selects_) selectAll();
    }

protected:
    void focusInEvent(QFocusEvent* event) override {
        QLineEdit::focusInEvent(event);
        if (selects_ && event->reason() == Qt::OtherFocusReason) selectAll();
    }

    void paintEvent(QPaintEvent* event) override {
        QLineEdit::paintEvent(event);
        if (!hasFocus() || (!inset_ && !selects_)) return;
        QPainter painter(this);
        if (selects_) {
            skin::FocusRing(painter, rect());
            return;
        }
        painter.fillRect(QRect(6, height() - 2, width() - 12, 1), QColor(skin::Colours().accent));
    }

private:
    bool inset_;
    bool selects_;
};

}  // namespace

ListMirror::ListMirror(Stage& stage, controls::ListBox& list, QWidget* container)
    : WidgetMirror(stage, list), list_(list), view_(new RowsView(list, container)) {
    SetWidget(view_, view_->viewport());
    // A list that belongs to a box leaves the keyboard there.
    if (list.Look() == "popup") view_->setFocusPolicy(Qt::NoFocus);
    view_->OnPick = [this](int row) { list_.SetListIndex(row); };
    view_->OnDouble = [this] { list_.DblClick.Raise(); };
    view_->OnDrag = [this] { DragOut(); };
}

// Nobody sees the rows of a hidden list; some are filled row by row over many yields, and reading a sorted
// one puts it in order each time.
void ListMirror::Apply(Property property) {
    switch (property) {
        case Property::Items:
            is_behind_ = !list_.Visible();
            if (!is_behind_) ShowRows();
            break;
        case Property::ListIndex:
            if (list_.Visible()) view_->ShowChosen(list_.ListIndex(), true);
            break;
        case Property::Visible:
            if (list_.Visible() && is_behind_) ShowRows();
            WidgetMirror::Apply(property);
            break;
        case Property::Refresh:
            view_->viewport()->update();
            break;
        default:
            WidgetMirror::Apply(property);
    }
}

void ListMirror::ShowRows() {
    is_behind_ = false;
    view_->SyncRows();
    view_->ShowChosen(list_.ListIndex(), false);
}

bool ListMirror::PressEnter() {
    if (list_.ListIndex() < 0 || !list_.DblClick.IsClaimed()) return false;
    list_.DblClick.Raise();
    return true;
}

void ListMirror::DragOut() {
    if (list_.DragText.empty()) return;
    auto* drag = new QDrag(view_);
    drag->setMimeData(DragOf(list_.DragText).release());
    const Loop::Nested nested(stage_.Events());
    drag->exec(Qt::CopyAction);
}

ComboMirror::ComboMirror(Stage& stage, controls::ComboBox& combo, QWidget* container)
    : WidgetMirror(stage, combo), combo_(combo), box_(new QComboBox(container)) {
    rows_ = new ComboModel(combo, box_);
    box_->setEditable(combo.Style() == controls::ComboStyle::DropDown);
    box_->setInsertPolicy(QComboBox::NoInsert);
    box_->setMaxVisibleItems(16);
    SetWidget(box_);
    Speak(*box_, {.role = [] { return QAccessible::ComboBox; },
                  .add_state =
                      [this](QAccessible::State& state) {
                          const bool is_open = box_->view()->isVisible();
                          state.expandable = true;
                          state.expanded = is_open;
                          state.collapsed = !is_open;
                          state.editable = box_->isEditable();
                      },
                  .press = [this] { box_->showPopup(); },
                  .list = [this] { return box_->view(); },
                  .content =
                      [this] {
                          const QString text = box_->currentText();
                          return text.isEmpty() ? ToQt(combo_.Hint()) : text;
                      }});
    if (QLineEdit* edit = box_->lineEdit()) {
        box_->setCompleter(nullptr);
        edit->setFrame(false);
        edit->setAccessibleName(ToQt(combo.AccessibleName()));
        WatchInput(edit);
        // Qt takes a text that equals a row for a choice of that row when the box is left; nobody chose it.
        QObject::disconnect(edit, &QLineEdit::editingFinished, box_, nullptr);
        QObject::disconnect(edit, &QLineEdit::returnPressed, box_, nullptr);
        connect(edit, &QLineEdit::textEdited, this,
                [this](const QString& text) { combo_.SetText(text.toStdString()); });
    }
    box_->setModel(rows_);
    connect(box_, &QComboBox::activated, this, [this](int row) { combo_.SetListIndex(row); });
}

QString ComboMirror::SpokenName() const {
    return ToQt(combo_.Hint());
}

void ComboMirror::ShowText() {
    const QSignalBlocker quiet(box_);
    box_->setCurrentIndex(combo_.ListIndex());
    const QString text = ToQt(combo_.Text());
    if (box_->isEditable() && box_->currentText() != text) box_->setEditText(text);
    TellNewContent(*box_);
}

void ComboMirror::Apply(Property property) {
    switch (property) {
        case Property::Items: {
            const QSignalBlocker quiet(box_);
            rows_->Sync();
            ShowText();
            box_->update();
            break;
        }
        case Property::Text:
        case Property::ListIndex:
            ShowText();
            break;
        case Property::Refresh:
            if (box_->lineEdit() != nullptr) {
                box_->lineEdit()->setPlaceholderText(ToQt(combo_.Hint()));
            } else {
                // It is what the box stands for until a row is chosen, so it looks like a choice.
                QPalette palette = box_->palette();
                palette.setColor(QPalette::PlaceholderText, QColor(skin::Colours().text));
                box_->setPalette(palette);
                box_->setPlaceholderText(ToQt(combo_.Hint()));
            }
            break;
        default:
            WidgetMirror::Apply(property);
    }
}

TextMirror::TextMirror(Stage& stage, controls::TextBox& text, QWidget* container)
    : WidgetMirror(stage, text), text_(text), edit_(new TextView(text, container)) {
    SetWidget(edit_);
    connect(edit_, &QLineEdit::textEdited, this,
            [this](const QString& typed) { text_.SetText(typed.toStdString()); });
}

QString TextMirror::SpokenName() const {
    return ToQt(text_.Hint());
}

void TextMirror::ShowSign() {
    const std::string sign = text_.Sign();
    if (sign.empty()) {
        delete sign_;
        sign_ = nullptr;
        return;
    }
    if (sign_ == nullptr) {
        sign_ = edit_->addAction(QIcon(), QLineEdit::LeadingPosition);
        connect(sign_, &QAction::triggered, this, [this] { text_.SignClick.Raise(); });
    }
    if (sign_->data().toString() == ToQt(sign)) return;
    sign_->setData(ToQt(sign));
    sign_->setIcon(PictureOfSign(sign));
    sign_->setText(WordsOfSign(sign));
}

void TextMirror::Apply(Property property) {
    switch (property) {
        case Property::Text: {
            const QString text = ToQt(text_.Text());
            if (edit_->text() != text) static_cast<TextView*>(edit_)->ShowText(text);
            ShowSign();
            break;
        }
        case Property::Picture:
            ShowSign();
            break;
        case Property::Refresh:
            edit_->setPlaceholderText(ToQt(text_.Hint()));
            break;
        case Property::Focus:
            WidgetMirror::Apply(property);
            static_cast<TextView*>(edit_)->SelectWhole();
            break;
        default:
            WidgetMirror::Apply(property);
    }
}

bool TextMirror::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason) text_.LostFocus.Raise();
    }
    return WidgetMirror::eventFilter(watched, event);
}

}  // namespace qt
