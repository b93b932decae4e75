// The open stores of the program: the images of their tables, shared by all data sources, and the writing of
// changes.
//
// A table is read into memory at its first use and stays there. Changes are made in the image at once and
// written at the end of the handler that made them, before its next yield: all changes of one handler in one
// file are one transaction. What could not be written stays in the image and in the journal, and is tried
// again at the ends of later handlers; the listener is notified of every trouble once.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "ports/Database.h"
#include "ports/EventLoop.h"
#include "store/Table.h"

namespace store {

/// Notified when a file cannot be opened or written.
class StoreTrouble {
public:
    virtual ~StoreTrouble() = default;
    /// `file` is the full path, `message` plain words for a box. Called once for a trouble, and again after
    /// it was over or became another one. The call may come from the end of a handler, where no box may open:
    /// show it from an event of its own.
    virtual void OnStoreTrouble(std::string_view file, ports::DatabaseError error,
                                std::string_view message) = 0;
};

class Stores final {
public:
    /// All three must outlive the stores.
    Stores(ports::Database& database, ports::EventLoop& loop, StoreTrouble& trouble);
    ~Stores();
    Stores(const Stores&) = delete;
    Stores& operator=(const Stores&) = delete;

    /// The image of a table, by the path of its store and its name without regard to case; read from the file
    /// at the first call. Null when there is no such table, or the file cannot be read. Stays in place as
    /// long as the stores.
    Table* TableOf(std::string_view path, std::string_view name);
    /// Reads some thousand rows more of a table that is not read yet; true when there may be more of them.
    /// Whoever asks for the table before it is read gets the rest at once.
    bool ReadPiece(std::string_view path, std::string_view name);

    /// Writes every change now. False when a file could not be written; its changes are kept.
    bool CommitAll();
    /// Writes every change and closes the files. A file that could not be written stays open, and the result
    /// is false. The images stay usable, and a later change opens its file again.
    bool Close();
    /// Why changes are not in their files, a sentence and a line a file, for a box; empty when all are.
    std::string WhyUnwritten() const;

private:
    struct Store;
    enum class Reading { More, Done, Failed };
    struct TablePlace {
        Store* store = nullptr;
        std::size_t table = 0;
    };

    Store* StoreAt(std::string_view path);
    TablePlace PlaceOf(std::string_view path, std::string_view name);
    bool IsOpen(Store& store, int wait_milliseconds);
    Reading Read(Store& store, std::size_t table, std::size_t most);
    void CommitAtHandlerEnd();
    bool Commit(Store& store, int wait_milliseconds);
    void Tell(Store& store, const ports::DatabaseResult& result, bool writing);

    ports::Database& database_;
    StoreTrouble& trouble_;
    std::vector<std::unique_ptr<Store>> stores_;
    // The loop keeps its callbacks for as long as it lives; this tells them that the stores are gone.
    std::shared_ptr<Stores*> self_;
};

}  // namespace store
