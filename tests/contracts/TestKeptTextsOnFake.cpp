// The stand-in for kept texts keeps to its contract.
#include "contracts/KeptTextsContract.h"
#include "fakes/FakeKeptTexts.h"

namespace contracts {
namespace {

class FakeBench {
public:
    ports::KeptTexts& Texts() { return texts_; }
    void NextRun() {}

private:
    fakes::FakeKeptTexts texts_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, KeptTextsContract, FakeBench);

}  // namespace
}  // namespace contracts
