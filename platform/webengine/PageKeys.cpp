#include "platform/webengine/PageKeys.h"

#include "controls/Control.h"
#include "controls/KeyCodes.h"
#include "platform/webengine/EnginePage.h"
#include "platform/webengine/PageTools.h"

namespace webengine {

namespace {

constexpr int kPlain = 0;
constexpr int kShift = controls::kShiftMask;
constexpr int kControl = controls::kControlMask;
constexpr int kControlShift = controls::kControlMask | controls::kShiftMask;

bool OpenFind(EnginePage& page) {
    page.Chrome()->Find().Open();
    return true;
}

bool FindNext(EnginePage& page) {
    page.Chrome()->Find().Next();
    return true;
}

bool FindPrevious(EnginePage& page) {
    page.Chrome()->Find().Previous();
    return true;
}

bool ZoomIn(EnginePage& page) {
    page.Chrome()->Zoom().Step(1);
    return true;
}

bool ZoomOut(EnginePage& page) {
    page.Chrome()->Zoom().Step(-1);
    return true;
}

bool ZoomAsUsual(EnginePage& page) {
    page.Chrome()->Zoom().Reset();
    return true;
}

bool ShowSecurity(EnginePage& page) {
    page.ShowSecurity();
    return true;
}

bool Escape(EnginePage& page) {
    return page.Chrome()->Escape();
}

struct PageKey {
    int key_code;
    int shift;
    /// True if the key is used up; one that does not apply just now goes on.
    bool (*act)(EnginePage&);
};

bool With(EnginePage& page, void (PageTools::*act)()) {
    if (page.Tools() == nullptr) return false;
    (page.Tools()->*act)();
    return true;
}

/// One row a key.
constexpr PageKey kKeys[] = {
    {'F', kControl, OpenFind},
    {controls::kKeyF3, kPlain, FindNext},
    {controls::kKeyF3, kShift, FindPrevious},
    {controls::kKeyPlus, kControl, ZoomIn},
    {controls::kKeyPlus, kControlShift, ZoomIn},
    {controls::kKeyPadPlus, kControl, ZoomIn},
    {controls::kKeyMinus, kControl, ZoomOut},
    {controls::kKeyPadMinus, kControl, ZoomOut},
    {'0', kControl, ZoomAsUsual},
    {controls::kKeyPadZero, kControl, ZoomAsUsual},
    {'L', kControlShift, ShowSecurity},
    {controls::kKeyEscape, kPlain, Escape},
    {'P', kControl, [](EnginePage& page) { return With(page, &PageTools::Print); }},
    {'S', kControl, [](EnginePage& page) { return With(page, &PageTools::SavePage); }},
    {'U', kControl, [](EnginePage& page) { return With(page, &PageTools::ShowSource); }},
    {controls::kKeyF12, kPlain,
     [](EnginePage& page) { return With(page, &PageTools::ToggleDeveloperTools); }},
};

}  // namespace

bool TakePageKey(EnginePage& page, int key_code, int shift) {
    for (const PageKey& key : kKeys) {
        if (key.key_code == key_code && key.shift == shift) return key.act(page);
    }
    return false;
}

}  // namespace webengine
