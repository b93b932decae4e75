// Memory that was freed and that the allocator keeps for what comes.
//
// Pages leave much of it, one that is discarded as well as one that goes on to the next document, or that
// sent more than was read. What is kept is looked at now and then; when it has grown by kMuch since it was
// given back last, it is given back again.
#pragma once

#include <cstdint>
#include <functional>

namespace webengine {

/// In bytes; how much of this process lies in memory without being in use is known only roughly, but the same
/// way each time.
struct Allocator {
    std::function<std::int64_t()> kept;
    std::function<void()> give_back;
};

/// That of the C library. Without one that can be asked: keeps nothing.
Allocator SystemAllocator();

class SpareMemory final {
public:
    static constexpr std::int64_t kMuch = std::int64_t{64} << 20;

    explicit SpareMemory(Allocator allocator);
    /// Gives back when it is worth it.
    void Look();
    void GiveBack();

private:
    Allocator allocator_;
    std::int64_t least_;  // kept since it was given back
};

}  // namespace webengine
