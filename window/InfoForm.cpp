#include "window/InfoForm.h"

#include "controls/Arrange.h"

namespace window {

InfoForm::InfoForm() {
    constexpr double kRow = controls::Px(24);
    constexpr double kLeft = controls::Px(16);
    constexpr double kWidth = controls::Px(360);
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
