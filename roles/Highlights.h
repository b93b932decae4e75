// The bright twins of the window's pictures. Why: every ground over which the pointer moves hides them.
#pragma once

namespace roles {

class Highlights {
public:
    virtual ~Highlights() = default;
    /// Hides every bright twin.
    virtual void NoMouseOvers() = 0;
};

}  // namespace roles
