#include "contracts/RealMediaBench.h"
#include "real/sound/Engine.h"

namespace contracts {
INSTANTIATE_TYPED_TEST_SUITE_P(OnProcesses, MediaControlContract, RealMediaBench<sound::Engine>);
}  // namespace contracts
