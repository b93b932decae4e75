// What the toolkit and the engine in this process have to say, for the log.
#pragma once

#include <string_view>

namespace qt {

class Messages final {
public:
    /// Called from any thread.
    using Take = void (*)(std::string_view line);

    /// Each message goes to `take` with its category, and on to where it went before. What pages write to
    /// their console is theirs and does not go to `take`. One object a program.
    explicit Messages(Take take);
    ~Messages();
    Messages(const Messages&) = delete;
    Messages& operator=(const Messages&) = delete;
};

}  // namespace qt
