// The fake database keeps to the contract of the real one.
#include "contracts/DatabaseContract.h"
#include "fakes/FakeDatabase.h"

namespace contracts {
namespace {

class FakeBench final : public DatabaseBench {
public:
    ports::Database& Database() override { return database_; }
    std::string PathOf(std::string_view file) override { return "C:\\app" + std::string(file); }
    void MakeStore(std::string_view path) override { database_.MakeStore(path); }
    void RemoveStore(std::string_view path) override { database_.Remove(path); }
    void PutFolder(std::string_view path) override {
        database_.FailOpen(path, ports::DatabaseError::IsFolder);
    }
    void PutGarbage(std::string_view path) override {
        database_.FailOpen(path, ports::DatabaseError::Damaged);
    }
    void PutOtherTables(std::string_view path) override {
        database_.FailOpen(path, ports::DatabaseError::OtherKind);
    }
    void Lock(std::string_view path) override { database_.FailApply(path, ports::DatabaseError::Locked); }
    void Unlock(std::string_view path) override { database_.FailApply(path, ports::DatabaseError::None); }

private:
    fakes::FakeDatabase database_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, DatabaseContract, FakeBench);

}  // namespace
}  // namespace contracts
