#include "platform/sqlite/SqliteBench.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>

#include "platform/sqlite/MakeStore.h"
#include "store/Layouts.h"

namespace sqlite_tests {
namespace {

constexpr uid_t kNobody = 65534;

std::filesystem::path NewFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "brindlepost-sqlite-XXXXXX").string();
    EXPECT_NE(::mkdtemp(pattern.data()), nullptr);
    std::filesystem::permissions(pattern, std::filesystem::perms::all);
    return pattern;
}

sqlite::Connection ConnectTo(const std::filesystem::path& file) {
    sqlite::Connection connection;
    const auto result =
        sqlite::Connect(file.string(), SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, connection);
    EXPECT_TRUE(result.Ok()) << result.text;
    return connection;
}

}  // namespace

SqliteBench::SqliteBench()
    : folder_(NewFolder()), database_([this](std::string_view path) { return NativeOf(path).string(); }) {}

SqliteBench::~SqliteBench() {
    locking_.reset();
    std::error_code ignored;
    std::filesystem::permissions(folder_, std::filesystem::perms::all, ignored);
    std::filesystem::remove_all(folder_, ignored);
}

std::filesystem::path SqliteBench::NativeOf(std::string_view path) const {
    return folder_ / path.substr(path.find_last_of('\\') + 1);
}

void SqliteBench::MakeStore(std::string_view path) {
    const auto result = sqlite::MakeStore(NativeOf(path).string(), *store::LayoutOf(path), {});
    ASSERT_TRUE(result.Ok()) << result.text;
}

void SqliteBench::RemoveStore(std::string_view path) {
    std::filesystem::remove(NativeOf(path));
}

bool SqliteBench::RunElsewhere(std::string_view path, const char* sql) {
    const sqlite::Connection connection = ConnectTo(NativeOf(path));
    return sqlite::Execute(connection.get(), sql).Ok();
}

std::vector<std::string> SqliteBench::AskElsewhere(std::string_view path, const std::string& sql) {
    const sqlite::Connection connection = ConnectTo(NativeOf(path));
    const sqlite::Statement statement = sqlite::Prepare(connection.get(), sql);
    EXPECT_NE(statement, nullptr) << sqlite3_errmsg(connection.get());
    std::vector<std::string> rows;
    while (sqlite3_step(statement.get()) == SQLITE_ROW) {
        std::string row;
        for (int i = 0; i < sqlite3_column_count(statement.get()); ++i) {
            const auto* const text = reinterpret_cast<const char*>(sqlite3_column_text(statement.get(), i));
            row += (i > 0 ? "|" : "") + std::string(text == nullptr ? "NULL" : text);
        }
        rows.push_back(row);
    }
    return rows;
}

void SqliteBench::Lock(std::string_view path) {
    locking_ = ConnectTo(NativeOf(path));
    const auto result = sqlite::Execute(locking_.get(), "BEGIN EXCLUSIVE");
    ASSERT_TRUE(result.Ok()) << result.text;
}

void SqliteBench::Unlock() {
    locking_.reset();
}

AsOrdinaryPerson::AsOrdinaryPerson() : before_(::geteuid()) {
    if (before_ == 0) {
        EXPECT_EQ(::seteuid(kNobody), 0);
    }
}

AsOrdinaryPerson::~AsOrdinaryPerson() {
    if (before_ == 0) {
        EXPECT_EQ(::seteuid(before_), 0);
    }
}

}  // namespace sqlite_tests
