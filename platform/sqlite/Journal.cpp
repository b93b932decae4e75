#include "platform/sqlite/Journal.h"

#include <array>
#include <charconv>
#include <vector>

namespace sqlite {
namespace {

using ports::ChangeKind;
using ports::DatabaseResult;

constexpr std::size_t kKinds = 3;

// The row number is parameter 1 of every statement; the fields follow in their order.
std::string InsertText(const ports::TableLayout& table) {
    std::string names = "rowid";
    std::string values = "?1";
    int parameter = 2;
    for (const ports::FieldLayout& field : table.fields) {
        names += ", " + Quoted(field.name);
        values += ", ?" + std::to_string(parameter++);
    }
    return "INSERT INTO " + Quoted(table.name) + " (" + names + ") VALUES (" + values + ")";
}

std::string UpdateText(const ports::TableLayout& table) {
    std::string sets;
    int parameter = 2;
    for (const ports::FieldLayout& field : table.fields) {
        sets += (sets.empty() ? "" : ", ") + Quoted(field.name) + " = ?" + std::to_string(parameter++);
    }
    return "UPDATE " + Quoted(table.name) + " SET " + sets + " WHERE rowid = ?1";
}

std::string TextOf(ChangeKind kind, const ports::TableLayout& table) {
    if (kind == ChangeKind::Insert) return InsertText(table);
    if (kind == ChangeKind::Update) return UpdateText(table);
    return "DELETE FROM " + Quoted(table.name) + " WHERE rowid = ?1";
}

// The text need only hold until the statement has run.
void Bind(sqlite3_stmt* statement, int parameter, const ports::FieldLayout& field, std::string_view value) {
    if (field.is_integer) {
        if (value.empty()) {
            sqlite3_bind_null(statement, parameter);
            return;
        }
        std::int64_t number = 0;
        const auto parsed = std::from_chars(value.data(), value.data() + value.size(), number);
        if (parsed.ec == std::errc() && parsed.ptr == value.data() + value.size()) {
            sqlite3_bind_int64(statement, parameter, number);
            return;
        }
    }
    const char* const text = value.data() == nullptr ? "" : value.data();
    sqlite3_bind_text64(statement, parameter, text, value.size(), SQLITE_STATIC, SQLITE_UTF8);
}

class JournalWriter {
public:
    JournalWriter(sqlite3* connection, const ports::StoreLayout& layout)
        : connection_(connection), layout_(layout), statements_(layout.tables.size()) {}

    DatabaseResult Write(const ports::RowChange& change) {
        const bool has_fields = !layout_.tables[change.table].fields.empty();
        if (change.kind == ChangeKind::Update && !has_fields) return {};
        DatabaseResult result = Run(change.kind, change);
        const bool is_taken = sqlite3_extended_errcode(connection_) == SQLITE_CONSTRAINT_ROWID;
        if (!result.Ok() && is_taken && MoveAway(change)) result = Run(change.kind, change);
        const bool was_gone = change.kind == ChangeKind::Update && sqlite3_changes(connection_) == 0;
        if (result.Ok() && was_gone) result = Run(ChangeKind::Insert, change);
        return result;
    }

private:
    DatabaseResult Run(ChangeKind kind, const ports::RowChange& change) {
        const ports::TableLayout& table = layout_.tables[change.table];
        Statement& statement = statements_[change.table][static_cast<std::size_t>(kind)];
        if (statement == nullptr) statement = Prepare(connection_, TextOf(kind, table));
        if (statement == nullptr) return LastError(connection_);
        sqlite3_bind_int64(statement.get(), 1, change.row);
        for (std::size_t i = 0; i < change.values.size(); ++i) {
            Bind(statement.get(), static_cast<int>(i) + 2, table.fields[i], change.values[i]);
        }
        sqlite3_step(statement.get());
        const int code = sqlite3_reset(statement.get());
        return code == SQLITE_OK ? DatabaseResult{} : LastError(connection_);
    }

    // Another program has added a row of that number meanwhile. Its row goes behind all others and is kept.
    bool MoveAway(const ports::RowChange& change) {
        const std::string table = Quoted(layout_.tables[change.table].name);
        const std::string row = std::to_string(change.row);
        return Execute(connection_, ("UPDATE " + table + " SET rowid = (SELECT max(rowid) + 1 FROM " + table +
                                     ") WHERE rowid = " + row)
                                        .c_str())
            .Ok();
    }

    sqlite3* connection_;
    const ports::StoreLayout& layout_;
    std::vector<std::array<Statement, kKinds>> statements_;
};

DatabaseResult WriteAll(sqlite3* connection, const ports::StoreLayout& layout,
                        const ports::NextChange& changes) {
    JournalWriter writer(connection, layout);
    while (const ports::RowChange* change = changes()) {
        DatabaseResult result = writer.Write(*change);
        if (!result.Ok()) return result;
    }
    return {};
}

}  // namespace

DatabaseResult ApplyChanges(sqlite3* connection, const ports::StoreLayout& layout,
                            const ports::NextChange& changes) {
    DatabaseResult result = Execute(connection, "BEGIN IMMEDIATE");
    if (!result.Ok()) return result;
    result = WriteAll(connection, layout, changes);
    if (result.Ok()) result = Execute(connection, "COMMIT");
    const bool still_open = sqlite3_get_autocommit(connection) == 0;  // some errors have rolled back already
    if (!result.Ok() && still_open) sqlite3_exec(connection, "ROLLBACK", nullptr, nullptr, nullptr);
    return result;
}

}  // namespace sqlite
