// The real database keeps to its contract.
#include <fstream>

#include "contracts/DatabaseContract.h"
#include "platform/sqlite/SqliteBench.h"

namespace contracts {
namespace {

class RealBench final : public DatabaseBench {
public:
    ports::Database& Database() override { return bench_.Database(); }
    std::string PathOf(std::string_view file) override { return sqlite_tests::SqliteBench::PathOf(file); }
    void MakeStore(std::string_view path) override { bench_.MakeStore(path); }
    void RemoveStore(std::string_view path) override { bench_.RemoveStore(path); }
    void PutFolder(std::string_view path) override {
        std::filesystem::create_directory(bench_.NativeOf(path));
    }
    void PutGarbage(std::string_view path) override {
        std::ofstream(bench_.NativeOf(path)) << std::string(5000, 'g');
    }
    void PutOtherTables(std::string_view path) override {
        ASSERT_TRUE(bench_.RunElsewhere(path, "CREATE TABLE tblOther (ID INTEGER)"));
    }
    void Lock(std::string_view path) override { bench_.Lock(path); }
    void Unlock(std::string_view) override { bench_.Unlock(); }

private:
    sqlite_tests::SqliteBench bench_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Sqlite, DatabaseContract, RealBench);

}  // namespace
}  // namespace contracts
