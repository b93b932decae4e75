#include "window/InfoForm.h"

namespace window {

InfoForm::InfoForm() {
    constexpr double kRow = 24 * controls::kTwipsPerPixel;
    constexpr double kLeft = 16 * controls::kTwipsPerPixel;
    constexpr double kWidth = 360 * controls::kTwipsPerPixel;
    frmInfo.SetContentSize(kWidth + 4 * kLeft, 14 * kRow + 2 * kLeft);
    frmInfo.Add(fraOptions);
    fraOptions.Move(kLeft, kLeft, kWidth + 2 * kLeft, 14 * kRow);
    double top = kLeft;
    for (const session::Option& option : session::kOptions) {
        controls::CheckBox& box = options.*option.box;
        fraOptions.Add(box);
        box.Move(kLeft, top, kWidth, kRow);
        top += kRow;
    }
    fraOptions.Add(options.cmdNewUser);
    options.cmdNewUser.Move(kLeft, top + kLeft / 2, kWidth / 2, kRow + kLeft / 4);
}

}  // namespace window
