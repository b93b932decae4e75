// A standard error for processes of the program's own, whose lines go to the program's as they are and to the
// log without names.
//
// Only processes that end with the program get it: to one that lives on, a line that nobody reads would be
// the end.
#pragma once

#include <string>
#include <thread>

#include "platform/linux/Descriptor.h"

namespace linux {

class MessageTap final {
public:
    MessageTap();
    /// What was written until now is taken first.
    ~MessageTap();
    MessageTap(const MessageTap&) = delete;
    MessageTap& operator=(const MessageTap&) = delete;

    /// What a process gets as its standard error; the program's own where there is no tap.
    int Number() const;

private:
    void Run() const;
    bool Take(std::string& rest) const;

    Descriptor ours_;
    Descriptor theirs_;
    Descriptor stop_;
    std::thread thread_;
};

}  // namespace linux
