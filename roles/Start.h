// The start of the program as others see it.
#pragma once

#include <string_view>

namespace roles {

class Start {
public:
    virtual ~Start() = default;
    /// The start-up timer `tmrLoad` runs: the lists are not loaded yet.
    virtual bool IsLoading() const = 0;
    /// The text on the splash that says what is being loaded. Loads the splash window if it never was.
    virtual void SetStage(std::string_view stage) = 0;
    /// The start was refused, or the windows unload: nothing is loaded any more and no store is opened.
    virtual bool IsOver() const = 0;
};

}  // namespace roles
