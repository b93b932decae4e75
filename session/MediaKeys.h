// The multimedia keys of the keyboard, wherever the focus is.
#pragma once

#include "roles/FrontPage.h"
#include "roles/MediaKeys.h"
#include "roles/PageOpener.h"
#include "roles/Transport.h"

namespace session {

class MediaKeys final : public roles::MediaKeys {
public:
    MediaKeys(roles::Transport& transport, roles::FrontPage& page, roles::PageOpener& opener)
        : transport_(transport), page_(page), opener_(opener) {}

    void KeyDown(int key_code, int shift) override;

private:
    void PlayOrPause();

    roles::Transport& transport_;
    roles::FrontPage& page_;
    roles::PageOpener& opener_;
};

}  // namespace session
