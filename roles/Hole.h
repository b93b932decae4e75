// The hole in the main window through which the video window shows. Why: whoever shows or hides `picVideo`
// has to cut or close it.
#pragma once

namespace roles {

class Hole {
public:
    virtual ~Hole() = default;
    /// Lets the video window show through where `picVideo` is, and brings that window there.
    virtual void MakeHole() = 0;
    virtual void CloseHole() = 0;
};

}  // namespace roles
