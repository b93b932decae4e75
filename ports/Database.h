// The engine under the stores: files of tables, read whole and changed by journals.
//
// Why: the logic walks images of the tables in memory; all it needs of an engine is to load a table once and
// to make a handler's changes last. Values are UTF-8 texts; a number is its decimal text, an empty value is
// the empty text. Paths are drive-letter paths. No call shows anything or throws; all run on the
// user-interface thread.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace ports {

enum class DatabaseError {
    None,
    Missing,    ///< no such file, or it was taken away while it was open
    IsFolder,   ///< a folder of that name is there
    Damaged,    ///< no database, or a damaged one
    OtherKind,  ///< a sound database without the tables or fields of this store
    ReadOnly,   ///< the file or its folder cannot be written
    DiskFull,
    Locked,       ///< another program holds it
    InputOutput,  ///< anything else that went wrong
};

struct DatabaseResult {
    DatabaseError error = DatabaseError::None;
    std::string text;  ///< the engine's own words; empty without an error

    bool Ok() const { return error == DatabaseError::None; }
};

struct FieldLayout {
    std::string_view name;
    bool is_integer = false;  ///< kept as an integer; an empty one as no value at all
};

struct TableLayout {
    std::string_view name;
    std::span<const FieldLayout> fields;
};

struct StoreLayout {
    std::string_view file;  ///< as it is appended to the application folder
    std::span<const TableLayout> tables;
    bool owner_only = false;  ///< only the owner may read the file
};

/// Takes the rows of a table: the engine's row number, and one value a field. The values hold during the
/// call.
using RowSink = std::function<void(std::int64_t row, std::span<const std::string_view> values)>;

enum class ChangeKind { Insert, Update, Delete };

/// One changed row. `values` has one value a field, none for Delete.
struct RowChange {
    ChangeKind kind = ChangeKind::Insert;
    std::size_t table = 0;  ///< place in the store's layout
    std::int64_t row = 0;
    std::span<const std::string_view> values;
};

/// Gives the changes of a journal one after another, null at the end. What it points to holds until the next
/// call.
using NextChange = std::function<const RowChange*()>;

/// How long an engine waits for another program to let a file go.
inline constexpr int kPatientMilliseconds = 400;
inline constexpr int kNoWaiting = 0;

/// Rows of a table: those of higher numbers than `after`, or all; `most` of them at most.
struct RowPiece {
    std::optional<std::int64_t> after;
    std::size_t most = std::numeric_limits<std::size_t>::max();
};

/// One open store. Closing is ending it; everything applied is in the file already.
class StoreFile {
public:
    virtual ~StoreFile() = default;
    /// Gives rows of a table, by its place in the layout, in table order: rising row numbers. Fewer than
    /// `most` are the last there are. After an error some rows may have been given already.
    virtual DatabaseResult ReadRows(std::size_t table, const RowPiece& piece, const RowSink& sink) = 0;
    /// Makes all the changes last, or none of them; they have reached the disk when it returns. Row numbers
    /// of inserted rows are the caller's. An Update of a row that is gone inserts it; a Delete of one does
    /// nothing. Tables and fields outside of the layout are left alone.
    virtual DatabaseResult Apply(const NextChange& changes, int wait_milliseconds) = 0;
};

struct OpenedStore {
    std::unique_ptr<StoreFile> file;  ///< null after an error
    DatabaseResult result;
};

class Database {
public:
    virtual ~Database() = default;
    /// Opens an existing file; never makes one. The layout must outlive the file. A store that cannot be
    /// written opens for reading; its first Apply returns ReadOnly.
    virtual OpenedStore Open(std::string_view path, const StoreLayout& layout, int wait_milliseconds) = 0;
};

}  // namespace ports
