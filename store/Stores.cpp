#include "store/Stores.h"

#include <algorithm>
#include <cstddef>
#include <deque>
#include <limits>
#include <optional>
#include <utility>

#include "base/Text.h"
#include "store/Layouts.h"
#include "store/StoreWords.h"

namespace store {
namespace {

using ports::DatabaseError;

// After a failed write, this many ends of handlers at most pass before the next try: about a second of
// playing.
constexpr int kLongestPause = 31;
// Read in one or two milliseconds.
constexpr std::size_t kRowsOfPiece = 4096;
constexpr std::size_t kAllRows = std::numeric_limits<std::size_t>::max();

struct TableImage {
    explicit TableImage(const ports::TableLayout& layout) : table(layout) {}

    Table table;
    bool is_loaded = false;
    std::optional<std::int64_t> last_read;  // of the rows that are read so far
};

std::string Sentence(std::string_view file, const ports::DatabaseResult& result, bool writing) {
    const std::string_view name = file.substr(file.find_last_of("\\/") + 1);
    std::string sentence =
        "The file \"" + std::string(name) + "\" can not be " + (writing ? "written" : "opened");
    sentence += ": " + std::string(ReasonOf(result.error)) + ".";
    if (result.error == DatabaseError::InputOutput && !result.text.empty())
        sentence += "\n(" + result.text + ")";
    return sentence;
}

std::string Message(std::string_view file, const ports::DatabaseResult& result, bool writing) {
    std::string message = Sentence(file, result, writing);
    if (writing) {
        message +=
            "\nYour changes are kept while the program runs, and saved as soon as the file can be written.";
    }
    return message;
}

// Gives the changes of all tables of a store, one after another.
class JournalReader {
public:
    explicit JournalReader(const std::deque<TableImage>& images) : images_(images) {}

    const ports::RowChange* Next() {
        for (; table_ < images_.size(); ++table_, place_ = 0) {
            const Table& table = images_[table_].table;
            while (place_ < table.Journal().size()) {
                change_.table = table_;
                if (table.ChangeOf(table.Journal()[place_++], change_, values_)) return &change_;
            }
        }
        return nullptr;
    }

private:
    const std::deque<TableImage>& images_;
    std::size_t table_ = 0;
    std::size_t place_ = 0;
    ports::RowChange change_;
    std::vector<std::string_view> values_;
};

}  // namespace

struct Stores::Store {
    std::string path;
    const ports::StoreLayout* layout = nullptr;
    std::unique_ptr<ports::StoreFile> file;
    std::deque<TableImage> images;
    ports::DatabaseResult told;  // the trouble that the listener knows of
    int pause = 0;               // length of the pause after the next failed write
    int pausing = 0;             // ends of handlers still to pass before the next try

    bool HasChanges() const {
        return std::any_of(images.begin(), images.end(),
                           [](const TableImage& image) { return !image.table.Journal().empty(); });
    }
    // A file in trouble is tried without waiting, so that the program stays quick.
    int Waiting() const { return told.Ok() ? ports::kPatientMilliseconds : ports::kNoWaiting; }
    void Recover() {
        told = {};
        pause = pausing = 0;
    }
};

Stores::Stores(ports::Database& database, ports::EventLoop& loop, StoreTrouble& trouble)
    : database_(database), trouble_(trouble), self_(std::make_shared<Stores*>(this)) {
    loop.AtHandlerEnd([weak = std::weak_ptr<Stores*>(self_)] {
        if (const auto self = weak.lock()) (*self)->CommitAtHandlerEnd();
    });
}

Stores::~Stores() = default;

Stores::Store* Stores::StoreAt(std::string_view path) {
    for (const auto& store : stores_) {
        if (store->path == path) return store.get();
    }
    const ports::StoreLayout* const layout = LayoutOf(path);
    if (layout == nullptr) return nullptr;
    stores_.push_back(std::make_unique<Store>());
    Store& store = *stores_.back();
    store.path = path;
    store.layout = layout;
    for (const ports::TableLayout& table : layout->tables)
        store.images.emplace_back(table);
    return &store;
}

Stores::TablePlace Stores::PlaceOf(std::string_view path, std::string_view name) {
    Store* const store = StoreAt(path);
    if (store == nullptr) return {};
    for (std::size_t i = 0; i < store->images.size(); ++i) {
        if (base::EqualIgnoringCase(store->images[i].table.Layout().name, name)) return {store, i};
    }
    return {};
}

Table* Stores::TableOf(std::string_view path, std::string_view name) {
    const TablePlace place = PlaceOf(path, name);
    if (place.store == nullptr) return nullptr;
    const bool is_there = Read(*place.store, place.table, kAllRows) == Reading::Done;
    return is_there ? &place.store->images[place.table].table : nullptr;
}

bool Stores::ReadPiece(std::string_view path, std::string_view name) {
    const TablePlace place = PlaceOf(path, name);
    return place.store != nullptr && Read(*place.store, place.table, kRowsOfPiece) == Reading::More;
}

bool Stores::IsOpen(Store& store, int wait_milliseconds) {
    if (store.file != nullptr) return true;
    ports::OpenedStore opened = database_.Open(store.path, *store.layout, wait_milliseconds);
    store.file = std::move(opened.file);
    if (!opened.result.Ok()) Tell(store, opened.result, store.HasChanges());
    return store.file != nullptr;
}

Stores::Reading Stores::Read(Store& store, std::size_t table, std::size_t most) {
    TableImage& image = store.images[table];
    if (image.is_loaded) return Reading::Done;
    if (!IsOpen(store, store.Waiting())) return Reading::Failed;
    std::size_t came = 0;
    const auto sink = [&image, &came](std::int64_t row, std::span<const std::string_view> values) {
        image.table.Load(row, values);
        image.last_read = row;
        ++came;
    };
    const auto result = store.file->ReadRows(table, {.after = image.last_read, .most = most}, sink);
    if (!result.Ok()) {
        image.table.Clear();
        image.last_read.reset();
        Tell(store, result, false);
        return Reading::Failed;
    }
    if (came == most) return Reading::More;
    image.is_loaded = true;
    if (!store.HasChanges()) store.Recover();
    return Reading::Done;
}

void Stores::CommitAtHandlerEnd() {
    for (std::size_t i = 0; i < stores_.size(); ++i) {
        Store& store = *stores_[i];
        if (!store.HasChanges()) continue;
        if (store.pausing > 0) {
            --store.pausing;
        } else {
            Commit(store, store.Waiting());
        }
    }
}

bool Stores::Commit(Store& store, int wait_milliseconds) {
    if (!store.HasChanges()) return true;
    if (!IsOpen(store, wait_milliseconds)) return false;
    JournalReader journal(store.images);
    const auto result = store.file->Apply([&journal] { return journal.Next(); }, wait_milliseconds);
    if (!result.Ok()) {
        Tell(store, result, true);
        return false;
    }
    for (TableImage& image : store.images)
        image.table.ForgetJournal();
    store.Recover();
    return true;
}

void Stores::Tell(Store& store, const ports::DatabaseResult& result, bool writing) {
    store.pausing = store.pause;
    store.pause = std::min(store.pause * 2 + 1, kLongestPause);
    if (std::exchange(store.told, result).error == result.error) return;
    trouble_.OnStoreTrouble(store.path, result.error, Message(store.path, result, writing));
}

bool Stores::CommitAll() {
    bool all = true;
    for (std::size_t i = 0; i < stores_.size(); ++i)
        all = Commit(*stores_[i], ports::kPatientMilliseconds) && all;
    return all;
}

std::string Stores::WhyUnwritten() const {
    std::string why;
    for (const auto& store : stores_) {
        if (!store->HasChanges() || store->told.Ok()) continue;
        if (!why.empty()) why += "\n";
        why += Sentence(store->path, store->told, true);
    }
    return why;
}

bool Stores::Close() {
    const bool all = CommitAll();
    for (const auto& store : stores_) {
        if (!store->HasChanges()) store->file.reset();
    }
    return all;
}

}  // namespace store
