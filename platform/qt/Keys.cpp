#include "platform/qt/Keys.h"

#include "controls/Control.h"
#include "controls/KeyCodes.h"

namespace qt {
namespace {

struct KeyPair {
    int key;
    int code;
};

constexpr KeyPair kNamedKeys[] = {
    {Qt::Key_Backspace, 8},
    {Qt::Key_Tab, 9},
    {Qt::Key_Backtab, 9},
    {Qt::Key_Return, controls::kKeyEnter},
    {Qt::Key_Enter, controls::kKeyEnter},
    {Qt::Key_Shift, 16},
    {Qt::Key_Control, 17},
    {Qt::Key_Alt, 18},
    {Qt::Key_Pause, 19},
    {Qt::Key_CapsLock, 20},
    {Qt::Key_Escape, controls::kKeyEscape},
    {Qt::Key_Space, 32},
    {Qt::Key_PageUp, 33},
    {Qt::Key_PageDown, 34},
    {Qt::Key_End, 35},
    {Qt::Key_Home, 36},
    {Qt::Key_Left, 37},
    {Qt::Key_Up, 38},
    {Qt::Key_Right, 39},
    {Qt::Key_Down, 40},
    {Qt::Key_Print, 44},
    {Qt::Key_Insert, 45},
    {Qt::Key_Delete, controls::kKeyDelete},
    {Qt::Key_Menu, 93},
    {Qt::Key_Back, 166},
    {Qt::Key_Forward, 167},
    {Qt::Key_Refresh, 168},
    {Qt::Key_Reload, 168},
    {Qt::Key_Stop, 169},
    {Qt::Key_Search, 170},
    {Qt::Key_Favorites, 171},
    {Qt::Key_HomePage, 172},
    {Qt::Key_VolumeMute, 173},
    {Qt::Key_VolumeDown, 174},
    {Qt::Key_VolumeUp, 175},
    {Qt::Key_MediaNext, 176},
    {Qt::Key_MediaPrevious, 177},
    {Qt::Key_MediaStop, 178},
    {Qt::Key_MediaPlay, 179},
    {Qt::Key_MediaPause, 179},
    {Qt::Key_MediaTogglePlayPause, 179},
    {Qt::Key_LaunchMail, 180},
    {Qt::Key_LaunchMedia, 181},
};

constexpr int kBrowserBack = 166;
constexpr int kBrowserRefresh = 168;
constexpr int kBrowserHome = 172;
constexpr int kMediaPlayPause = 179;

}  // namespace

int KeyCode(int key, Qt::KeyboardModifiers modifiers) {
    for (const KeyPair& pair : kNamedKeys) {
        if (pair.key == key) return pair.code;
    }
    if (key >= Qt::Key_0 && key <= Qt::Key_9) {
        const bool pad = modifiers.testFlag(Qt::KeypadModifier);
        return pad ? controls::kKeyPadZero + (key - Qt::Key_0) : key;
    }
    if (key >= Qt::Key_A && key <= Qt::Key_Z) return key;
    if (key == Qt::Key_Plus || key == Qt::Key_Equal)
        return modifiers.testFlag(Qt::KeypadModifier) ? controls::kKeyPadPlus : controls::kKeyPlus;
    if (key == Qt::Key_Minus)
        return modifiers.testFlag(Qt::KeypadModifier) ? controls::kKeyPadMinus : controls::kKeyMinus;
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return controls::kKeyF1 + (key - Qt::Key_F1);
    return 0;
}

bool IsMediaKey(int key_code) {
    return (key_code >= kBrowserBack && key_code <= kBrowserRefresh) ||
           (key_code >= kBrowserHome && key_code <= kMediaPlayPause);
}

bool MayMeanWindow(int key_code, int shift) {
    if (key_code == 0) return false;
    if ((shift & (controls::kControlMask | controls::kAltMask)) != 0) return true;
    return key_code == controls::kKeyEscape ||
           (key_code >= controls::kKeyF1 && key_code <= controls::kKeyF24);
}

bool MayRepeat(int key_code) {
    return key_code == controls::kKeyTab || key_code == controls::kKeyPlus ||
           key_code == controls::kKeyMinus || key_code == controls::kKeyPadPlus ||
           key_code == controls::kKeyPadMinus;
}

int ShiftState(Qt::KeyboardModifiers modifiers) {
    int state = 0;
    if (modifiers.testFlag(Qt::ShiftModifier)) state |= controls::kShiftMask;
    if (modifiers.testFlag(Qt::ControlModifier)) state |= controls::kControlMask;
    if (modifiers.testFlag(Qt::AltModifier)) state |= controls::kAltMask;
    return state;
}

int ButtonNumber(Qt::MouseButton button) {
    switch (button) {
        case Qt::LeftButton:
            return controls::kLeftButton;
        case Qt::RightButton:
            return controls::kRightButton;
        case Qt::MiddleButton:
            return controls::kMiddleButton;
        default:
            return 0;
    }
}

int ButtonNumbers(Qt::MouseButtons buttons) {
    int sum = 0;
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        if (buttons.testFlag(button)) sum |= ButtonNumber(button);
    }
    return sum;
}

}  // namespace qt
