#include "player/VideoForm.h"

namespace player {

VideoForm::VideoForm() : controls::Form("frmVideo", "Video", controls::BorderStyle::None) {
    Add(picVid, lblVideoCaption, cmdMax, tmrVisual);
    picVid.Add(imgAnim1, imgAnim2);
    picVid.SetAccessibleName("Video");
    imgAnim1.Move(0, 0, 1920, 1920);
    imgAnim2.Move(0, 0, 1920, 1920);
    imgAnim1.SetVisible(false);
    imgAnim2.SetVisible(false);
    lblVideoCaption.SetCaption("Video");
    lblVideoCaption.SetLook("strip");
    cmdMax.SetLook("chevron");
    picVid.SetLook("video");
    cmdMax.SetAccessibleName("Full screen, or back into the main window");
    cmdMax.SetToolTipText("Full screen, or back into the main window");
    Move(0, 0, 4800, 3600);
}

}  // namespace player
