// The borderless window that shows video and light shows: over the hole of the main window, floating, or
// maximised.
#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Image.h"
#include "controls/Label.h"
#include "controls/PictureBox.h"
#include "controls/Timer.h"

namespace player {

struct VideoForm : controls::Form {
    VideoForm();

    controls::PictureBox picVid{"picVid"};  ///< parent of both aliases
    controls::Image imgAnim1{"imgAnim1", "anim1"};
    controls::Image imgAnim2{"imgAnim2", "anim2"};
    controls::Label lblVideoCaption{"lblVideoCaption"};
    controls::CommandButton cmdMax{"cmdMax",
                                   "^"};  ///< "^" while the window is normal, "v" while it is maximised
    controls::Timer tmrVisual{"tmrVisual", 50};
};

}  // namespace player
