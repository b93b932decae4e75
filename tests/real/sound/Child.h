// A program that a test starts, and ends by its own process number.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace sound {

class Child final {
public:
    Child() = default;
    /// Starts `words[0]` with the rest as arguments; `output`, when given, becomes a descriptor to read its
    /// output from.
    explicit Child(const std::vector<std::string>& words, int* output = nullptr);
    /// Ends it for good and collects it.
    ~Child();
    Child(Child&& other) noexcept;
    Child& operator=(Child&& other) noexcept;

    /// Its process number; negative when it did not start.
    pid_t Id() const { return pid_; }
    bool IsRunning();
    void Signal(int signal) const;
    void Kill();
    /// Its exit code, waiting at most `seconds`; -1 when it did not end by itself.
    int Wait(double seconds);

private:
    pid_t pid_ = -1;
    int exit_code_ = -1;
};

}  // namespace sound
