// Mirror of a window.
//
// The window is made on the screen when it is first to be seen (or when the screen has nothing else to do),
// so that the start pays for one window only; its timers run from the start. A new size or place that the
// user or the window manager gives is written back once events have settled for a turn of the loop; what
// the window's own rules answer (a least size) is put on the screen when the dragging has paused.
#pragma once

#include <QMenuBar>
#include <QTimer>

#include "controls/Form.h"
#include "platform/qt/WidgetMirror.h"

namespace qt {

class FormMirror final : public WidgetMirror {
public:
    FormMirror(Stage& stage, controls::Form& form);
    ~FormMirror() override;

    /// Makes the window and everything in it, if that has not been done.
    void Realise();
    /// Keeps the window over the main window, if it is on the screen.
    void LieOver(QWidget& main_window);
    /// A window without a frame that may lie under the others: it shows a picture.
    bool IsPicture() const;
    /// It is to be seen through the hole of the main window, if that has one, from right below.
    bool IsAtHole() const;
    /// Moves the window with the one it is seen through, before the control learns of its new place.
    void GoAlong(const QPoint& by);
    bool WasShown() const { return was_shown_; }
    bool IsRealised() const { return Widget() != nullptr; }
    QWidget* Inside() const override { return content_; }
    controls::Form& Window() const { return form_; }

private:
    class FormWindow;

    void OnPropertyChanged(controls::Control& control, controls::Property property) override;
    void Apply(controls::Property property) override;
    void AdoptTimers(controls::Container& container);
    void FillMenuBar();
    void ShowWindow();
    void ShowState();
    void StackPicture();
    void ComeToFront();
    void Centre();
    void FocusFirst();
    void PutOnScreen();
    void Lay();

    void OnMoved(const QPoint& by);
    void OnWindowChanged();
    void WriteBack();
    void OnStateChanged();
    void OnCloseBox();
    void OnKeyboardCame();

    controls::Form& form_;
    FormWindow* window_ = nullptr;
    QWidget* content_ = nullptr;
    QMenuBar* menu_bar_ = nullptr;
    QTimer settle_;
    QTimer put_back_;
    QRect before_full_;  // where the window was before it filled the screen
    bool was_shown_ = false;
    bool placing_ = false;
    bool changing_state_ = false;
};

}  // namespace qt
