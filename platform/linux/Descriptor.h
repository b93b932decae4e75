// A file descriptor that is closed when its owner goes.
#pragma once

#include <unistd.h>

#include <utility>

namespace linux {

class Descriptor {
public:
    Descriptor() = default;
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        if (this != &other) {
            Close();
            number_ = std::exchange(other.number_, -1);
        }
        return *this;
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { Close(); }

    bool IsOpen() const { return number_ >= 0; }
    int Number() const { return number_; }
    /// False when closing brought a late failure of a write to light.
    bool Close() { return number_ < 0 || ::close(std::exchange(number_, -1)) == 0; }
    /// Gives the number away; nothing closes it then.
    int Release() { return std::exchange(number_, -1); }

private:
    int number_ = -1;
};

}  // namespace linux
