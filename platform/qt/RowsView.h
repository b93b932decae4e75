// A list of rows of one height that asks for the text of the rows it draws and for no other, so that a
// million rows cost what a screenful costs. It has no selection of its own: what the user picks is notified
// through the callbacks, and the row shown as chosen is set from outside.
//
// A list that is filled again with much the same rows keeps its place: the row at the top is looked for near
// where it was. Any other fill begins at the top. Where the choice went with its row, the arrow keys go on
// from there.
#pragma once

#include <QAbstractListModel>
#include <QElapsedTimer>
#include <QListView>
#include <array>
#include <functional>
#include <string>

#include "controls/ListBox.h"

namespace qt {

/// The rows of a list box; their number is taken over by a call.
class RowsModel final : public QAbstractListModel {
public:
    RowsModel(const controls::ListBox& list, QObject* parent) : QAbstractListModel(parent), list_(list) {}
    /// Takes over how many rows there are now.
    void Sync();
    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : count_; }
    QVariant data(const QModelIndex& index, int role) const override;

private:
    const controls::ListBox& list_;
    int count_ = 0;
};

class RowsView final : public QListView {
public:
    RowsView(const controls::ListBox& list, QWidget* parent);

    std::function<void(int row)> OnPick;
    std::function<void()> OnDouble;
    std::function<void()> OnDrag;

    /// The number of rows or their texts have changed.
    void SyncRows();
    /// Shows that row as chosen, in view if `reveal`.
    void ShowChosen(int row, bool reveal);
    int RowAt(int y) const;
    /// How far the rows are scrolled up, in pixels.
    int Offset() const { return verticalOffset(); }

    QRect visualRect(const QModelIndex& index) const override;
    void scrollTo(const QModelIndex& index, ScrollHint hint) override;
    QModelIndex indexAt(const QPoint& point) const override;
    void doItemsLayout() override;
    void keyboardSearch(const QString& search) override;

protected:
    int horizontalOffset() const override { return 0; }
    int verticalOffset() const override;
    bool isIndexHidden(const QModelIndex& /*index*/) const override { return false; }
    QRegion visualRegionForSelection(const QItemSelection& selection) const override;
    void updateGeometries() override;
    void scrollContentsBy(int dx, int dy) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    int RowForKey(int key) const;
    void DrawRow(QPainter& painter, int row, const QRect& rect) const;
    QRect RowRect(int row) const;
    QRect TextRect(const QRect& row_rect) const;
    bool IsCutOff(int row) const;
    void RememberTop();
    int WhereTheTopIsNow() const;
    int RowThatBegins(const QString& typed, int from) const;

    const controls::ListBox& list_;
    RowsModel* rows_;
    int hovered_ = -1;
    bool may_drag_ = false;
    bool reveal_when_shown_ = false;
    QPoint pressed_at_;
    std::array<std::string, 2> top_texts_;  // of the two rows at the top, as they were last shown
    int top_row_ = 0;
    std::string next_text_;  // of the row below the chosen one
    int gone_row_ = -1;      // where the choice was when its row went
    QString typed_;          // letters typed shortly after one another
    QElapsedTimer since_typed_;
};

}  // namespace qt
