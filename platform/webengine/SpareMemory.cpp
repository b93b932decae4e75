#include "platform/webengine/SpareMemory.h"

#include <malloc.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <utility>

namespace webengine {

namespace {

#ifdef __GLIBC__
/// What this process has in memory that is no file's, less what is in use. Stacks and memory that libraries
/// take from the system themselves are counted as well.
std::int64_t Kept() {
    std::int64_t all = 0;
    std::int64_t resident = 0;
    std::int64_t shared = 0;
    std::ifstream("/proc/self/statm") >> all >> resident >> shared;
    const struct mallinfo2 info = mallinfo2();
    return (resident - shared) * sysconf(_SC_PAGESIZE) -
           static_cast<std::int64_t>(info.uordblks + info.hblkhd);
}
#endif

}  // namespace

Allocator SystemAllocator() {
#ifdef __GLIBC__
    return {.kept = Kept, .give_back = [] { malloc_trim(0); }};
#else
    return {.kept = [] { return std::int64_t{0}; }, .give_back = [] {}};
#endif
}

SpareMemory::SpareMemory(Allocator allocator) : allocator_(std::move(allocator)), least_(allocator_.kept()) {}

void SpareMemory::Look() {
    const std::int64_t kept = allocator_.kept();
    least_ = std::min(least_, kept);
    if (kept - least_ >= kMuch) GiveBack();
}

void SpareMemory::GiveBack() {
    allocator_.give_back();
    least_ = allocator_.kept();
}

}  // namespace webengine
