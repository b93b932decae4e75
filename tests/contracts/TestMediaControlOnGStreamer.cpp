#include "contracts/RealMediaBench.h"
#include "platform/gstreamer/MediaEngine.h"

namespace contracts {
INSTANTIATE_TYPED_TEST_SUITE_P(OnGStreamer, MediaControlContract, RealMediaBench<gstreamer::MediaEngine>);
}  // namespace contracts
