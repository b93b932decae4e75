#include "contracts/BrowserControlContract.h"
#include "platform/webengine/EngineWorld.h"

namespace contracts {

namespace {

std::unique_ptr<BrowserWorld> MakeEngineWorld() {
    return std::make_unique<webengine_tests::EngineWorld>();
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(Engine, BrowserControlContract, testing::Values(&MakeEngineWorld));

}  // namespace contracts
