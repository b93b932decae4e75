#include "platform/qt/RowsView.h"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScrollBar>
#include <QToolTip>
#include <algorithm>

#include "base/DrivePath.h"
#include "base/Text.h"
#include "platform/qt/Geometry.h"
#include "platform/qt/Skin.h"

namespace qt {
namespace {

constexpr int kIndent = 9;
/// How far from its old place the row at the top is looked for after a fill.
constexpr int kNearby = 64;
/// Bytes of a row that type-ahead compares at most.
constexpr std::size_t kLongestTyped = 400;

// A row may be a path that is read again; the name of its file need not be UTF-8.
QString Readable(std::string_view row) {
    return ToQt(base::WithoutStandIns(row));
}

}  // namespace

void RowsModel::Sync() {
    beginResetModel();
    count_ = list_.ListCount();
    endResetModel();
}

QVariant RowsModel::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole && role != Qt::AccessibleTextRole) return {};
    return Readable(list_.List(index.row()));
}

RowsView::RowsView(const controls::ListBox& list, QWidget* parent)
    : QListView(parent), list_(list), rows_(new RowsModel(list, this)) {
    setModel(rows_);
    setUniformItemSizes(true);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setFrameShape(QFrame::StyledPanel);
    viewport()->setAutoFillBackground(false);
    viewport()->setAttribute(Qt::WA_Hover);
}

void RowsView::SyncRows() {
    const int chosen = currentIndex().row();
    const int top = WhereTheTopIsNow();
    const int pixels = verticalOffset() - top_row_ * skin::kRowHeight;
    rows_->Sync();
    updateGeometries();
    verticalScrollBar()->setValue(top >= 0 ? top * skin::kRowHeight + pixels : 0);
    if (chosen >= 0 && list_.ListIndex() < 0) gone_row_ = list_.List(chosen) == next_text_ ? chosen : -1;
    RememberTop();
    viewport()->update();
}

void RowsView::RememberTop() {
    top_row_ = verticalOffset() / skin::kRowHeight;
    for (int i = 0; i < 2; ++i)
        top_texts_.at(static_cast<std::size_t>(i)) = list_.List(top_row_ + i);
}

/// Where the row at the top went, or the one below it when that row is gone; -1 when neither is near.
int RowsView::WhereTheTopIsNow() const {
    if (top_row_ == 0) return 0;
    for (const std::string& text : top_texts_) {
        for (int away = 0; away <= kNearby; ++away) {
            for (const int row : {top_row_ - away, top_row_ + away}) {
                if (row >= 0 && row < list_.ListCount() && list_.List(row) == text) return row;
            }
        }
    }
    return -1;
}

void RowsView::ShowChosen(int row, bool reveal) {
    const QModelIndex index = row >= 0 ? rows_->index(row) : QModelIndex();
    if (index.isValid()) {
        gone_row_ = -1;
        next_text_ = list_.List(row + 1);
        selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
        // A view that was not laid out yet does not know what is in view.
        if (reveal && isVisible()) scrollTo(index, EnsureVisible);
        if (reveal && !isVisible()) reveal_when_shown_ = true;
    } else {
        selectionModel()->clear();
    }
    viewport()->update();
}

void RowsView::showEvent(QShowEvent* event) {
    QListView::showEvent(event);
    if (!reveal_when_shown_) return;
    reveal_when_shown_ = false;
    scrollTo(currentIndex(), EnsureVisible);
}

int RowsView::verticalOffset() const {
    return verticalScrollBar()->value();
}

int RowsView::RowAt(int y) const {
    const int row = (y + verticalOffset()) / skin::kRowHeight;
    return y + verticalOffset() >= 0 && row < rows_->rowCount() ? row : -1;
}

QRect RowsView::RowRect(int row) const {
    return {0, row * skin::kRowHeight - verticalOffset(), viewport()->width(), skin::kRowHeight};
}

QRect RowsView::visualRect(const QModelIndex& index) const {
    return index.isValid() ? RowRect(index.row()) : QRect();
}

QModelIndex RowsView::indexAt(const QPoint& point) const {
    const int row = RowAt(point.y());
    return row >= 0 ? rows_->index(row) : QModelIndex();
}

void RowsView::scrollTo(const QModelIndex& index, ScrollHint hint) {
    if (!index.isValid()) return;
    const QRect rect = RowRect(index.row());
    const int height = viewport()->height();
    int move = 0;
    if (rect.bottom() >= height) move = rect.bottom() - height + 1;
    if (rect.top() < move) move = rect.top();
    if (hint == PositionAtCenter) move = rect.center().y() - height / 2;
    verticalScrollBar()->setValue(verticalOffset() + move);
}

void RowsView::doItemsLayout() {
    // The list view's own layout walks over every row.
    QAbstractItemView::doItemsLayout();  // NOLINT(bugprone-parent-virtual-call)
}

QRegion RowsView::visualRegionForSelection(const QItemSelection& selection) const {
    QRegion region;
    for (const QItemSelectionRange& range : selection)
        region += RowRect(range.top()) | RowRect(range.bottom());
    return region;
}

void RowsView::updateGeometries() {
    const int page = viewport()->height();
    const int all = rows_ != nullptr ? rows_->rowCount() * skin::kRowHeight : 0;
    verticalScrollBar()->setSingleStep(skin::kRowHeight);
    verticalScrollBar()->setPageStep(page);
    verticalScrollBar()->setRange(0, std::max(0, all - page));
    QAbstractItemView::updateGeometries();  // NOLINT(bugprone-parent-virtual-call)
}

void RowsView::scrollContentsBy(int /*dx*/, int /*dy*/) {
    RememberTop();
    viewport()->update();
}

QRect RowsView::TextRect(const QRect& row_rect) const {
    return row_rect.adjusted(kIndent, 0, -kIndent / 2, 0);
}

bool RowsView::IsCutOff(int row) const {
    return fontMetrics().horizontalAdvance(Readable(list_.List(row))) > TextRect(RowRect(row)).width();
}

void RowsView::DrawRow(QPainter& painter, int row, const QRect& rect) const {
    const bool chosen = row == list_.ListIndex();
    if (chosen) {
        painter.fillRect(rect, QColor(isEnabled() ? skin::Colours().accent_deep : skin::Colours().raised));
        // Where grounds hardly differ, a line tells them apart.
        if (skin::Colours().high_contrast) {
            painter.setPen(QColor(skin::Colours().line));
            painter.drawRect(rect.adjusted(0, 0, -1, -1));
        }
    } else if (row == hovered_) {
        painter.fillRect(rect, QColor(skin::Colours().panel));
    } else if (row % 2 != 0) {
        painter.fillRect(rect, QColor(skin::Colours().well_odd));
    }
    const QColor ink = chosen ? QColor(skin::Colours().knob) : QColor(skin::Colours().text);
    painter.setPen(isEnabled() ? ink : QColor(skin::Colours().disabled));
    const QRect place = TextRect(rect);
    // Only the beginning of a very long row can be seen.
    const QString text = Readable(list_.List(row)).left(1000);
    painter.drawText(place, Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(text, Qt::ElideRight, place.width()));
}

void RowsView::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    QPainterPath inside;
    // The ring of the focus is drawn a pixel into the rows, the wide one two. Without it a pixel is left all
    // the same: at a scale like 1.25 the line around the list is drawn into it.
    const int ring = hasFocus() && skin::Colours().high_contrast ? 2 : 1;
    inside.addRoundedRect(viewport()->rect().adjusted(ring, ring, -ring, -ring), skin::kCorner - 1,
                          skin::kCorner - 1);
    painter.setClipPath(inside);
    const int count = std::min(rows_->rowCount(), list_.ListCount());
    const int first = std::max(0, (event->rect().top() + verticalOffset()) / skin::kRowHeight);
    for (int row = first; row < count; ++row) {
        const QRect rect = RowRect(row);
        if (rect.top() > event->rect().bottom()) break;
        DrawRow(painter, row, rect);
    }
    if (count == 0 && !list_.Hint().empty()) {
        painter.setPen(QColor(skin::Colours().muted));
        painter.drawText(viewport()->rect().adjusted(kIndent, 7, -kIndent, -7),
                         Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, ToQt(list_.Hint()));
    }
}

void RowsView::mousePressEvent(QMouseEvent* event) {
    if (focusPolicy() != Qt::NoFocus) setFocus(Qt::MouseFocusReason);
    const int row = RowAt(event->position().toPoint().y());
    may_drag_ = event->button() == Qt::LeftButton && row >= 0;
    pressed_at_ = event->position().toPoint();
    if (may_drag_ && OnPick) OnPick(row);
}

void RowsView::mouseMoveEvent(QMouseEvent* event) {
    const QPoint at = event->position().toPoint();
    const int row = RowAt(at.y());
    if (row != hovered_) {
        hovered_ = row;
        viewport()->update();
    }
    if (!may_drag_ || !event->buttons().testFlag(Qt::LeftButton)) return;
    if ((at - pressed_at_).manhattanLength() < QApplication::startDragDistance()) return;
    may_drag_ = false;
    if (OnDrag) OnDrag();
}

void RowsView::mouseReleaseEvent(QMouseEvent* /*event*/) {
    may_drag_ = false;
}

void RowsView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && RowAt(event->position().toPoint().y()) >= 0 && OnDouble)
        OnDouble();
}

int RowsView::RowForKey(int key) const {
    const int last = rows_->rowCount() - 1;
    const int row = list_.ListIndex();
    const int page = std::max(1, viewport()->height() / skin::kRowHeight - 1);
    switch (key) {
        case Qt::Key_Up:
            if (row < 0) return gone_row_ < 0 ? last : std::clamp(gone_row_ - 1, 0, std::max(0, last));
            return row - 1;
        case Qt::Key_Down:
            return row < 0 && gone_row_ >= 0 ? std::min(gone_row_, last) : row + 1;
        case Qt::Key_PageUp:
            return std::max(0, row - page);
        case Qt::Key_PageDown:
            return std::min(last, row + page);
        case Qt::Key_Home:
            return 0;
        case Qt::Key_End:
            return last;
        default:
            return -1;
    }
}

void RowsView::keyPressEvent(QKeyEvent* event) {
    const bool plain = (event->modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)) == Qt::NoModifier;
    const int row = plain ? RowForKey(event->key()) : -1;
    if (row >= 0 && row < rows_->rowCount() && row != list_.ListIndex()) {
        if (OnPick) OnPick(row);
        return;
    }
    const QString text = event->text();
    if (plain && !text.isEmpty() && text[0].isPrint()) {
        keyboardSearch(text);
        return;
    }
    event->ignore();
}

// One letter again and again goes through the rows that begin with it.
void RowsView::keyboardSearch(const QString& search) {
    const bool goes_on =
        since_typed_.isValid() && since_typed_.elapsed() < QApplication::keyboardInputInterval();
    if (!goes_on && search.trimmed().isEmpty()) return;
    typed_ = goes_on ? typed_ + search : search;
    since_typed_.start();
    const bool is_one_letter = typed_.count(typed_[0]) == typed_.size();
    const int from = std::max(0, list_.ListIndex() + (is_one_letter ? 1 : 0));
    const int row = RowThatBegins(is_one_letter ? typed_.left(1) : typed_, from);
    if (row >= 0 && row != list_.ListIndex() && OnPick) OnPick(row);
}

/// Blanks in front of a row do not count, nor does the bracket of the rows that stand for a view.
int RowsView::RowThatBegins(const QString& typed, int from) const {
    const int count = rows_->rowCount();
    for (int step = 0; step < count; ++step) {
        const int row = (from + step) % count;
        std::string_view text = base::Trim(list_.List(row)).substr(0, kLongestTyped);
        if (text.starts_with('[') && !typed.startsWith(QLatin1Char('['))) text.remove_prefix(1);
        if (Readable(text).startsWith(typed, Qt::CaseInsensitive)) return row;
    }
    return -1;
}

bool RowsView::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const int row = RowAt(help->pos().y());
        if (row >= 0 && IsCutOff(row)) {
            const QString text = Readable(list_.List(row)).trimmed().left(1000);
            QToolTip::showText(help->globalPos(), text, viewport(), RowRect(row));
        } else {
            QToolTip::showText(help->globalPos(), toolTip(), viewport());
        }
        return true;
    }
    if (event->type() == QEvent::Leave) {
        hovered_ = -1;
        viewport()->update();
    }
    return QListView::viewportEvent(event);
}

}  // namespace qt
