// What all visible controls have in common: place, visibility, tool tip, the mouse, the keyboard, drops.
#pragma once

#include <QDropEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include "platform/qt/Mirror.h"

namespace qt {

class WidgetMirror : public Mirror {
public:
    QWidget* Widget() const override { return widget_; }

    /// Shows every property; called once, after the widget was made.
    void ShowAll();

protected:
    WidgetMirror(Stage& stage, controls::Control& control) : Mirror(stage, control) {}

    /// To be called by the constructor of the kind. `surface` is the part of the widget that the user
    /// points at, when that is another widget.
    void SetWidget(QWidget* widget, QWidget* surface = nullptr);
    /// One more part of the widget that takes the keyboard.
    void WatchInput(QWidget* part);

    bool eventFilter(QObject* watched, QEvent* event) override;
    void Apply(controls::Property property) override;

    /// A widget with no behaviour of its own: the mouse belongs to the control alone.
    virtual bool IsPassive() const { return true; }
    /// What a screen reader says when the control was given no better name.
    virtual QString SpokenName() const;
    virtual void Place();
    /// How far the control's content is scrolled up, in pixels: drops count places in the content.
    virtual int ScrolledUp() const { return 0; }
    /// The row at a height of the surface, in pixels; -1 where there is none.
    virtual int RowAt(int /*y*/) const { return -1; }
    /// Offers a key that may mean the window to the window; true when it is used up there.
    bool PreviewKey(const QKeyEvent& event);
    /// Raises the key at the nearest container that listens; true when the key is used up.
    bool KeyPressed(const QKeyEvent& event);
    /// Enter on the control itself; true when it did something.
    virtual bool PressEnter() { return false; }

private:
    bool MousePressed(const QMouseEvent& event);
    bool MouseDoubled(const QMouseEvent& event);
    bool MouseMoved(const QMouseEvent& event);
    bool MouseReleased(const QMouseEvent& event);
    bool WheelTurned(const QWheelEvent& event);
    bool PressWindowButton(int key_code);
    bool TakeKey(const QKeyEvent& event);
    bool AskForMenu(const QKeyEvent& event);
    bool OpenMenuBar();
    void TellPlaceOfMarker();
    std::function<bool(const std::string&)> FolderTest() const;
    bool DraggedOver(QDropEvent& event);
    bool Dropped(QDropEvent& event);
    void FocusCame(const QFocusEvent& event);
    QPointF Point(const QPointF& in_surface) const;

    QPointer<QWidget> widget_;
    QWidget* surface_ = nullptr;
    bool pressed_ = false;
    int told_percent_ = -1;
    int wheel_rest_ = 0;  // eighths of a degree that do not make a notch yet
};

}  // namespace qt
