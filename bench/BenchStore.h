// A store in a folder of its own, opened by a program of its own; its folder goes with it.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/Number.h"
#include "platform/sqlite/MakeStore.h"
#include "platform/sqlite/SqliteDatabase.h"
#include "ports/EventLoop.h"
#include "store/DataSource.h"
#include "store/Layouts.h"
#include "store/Stores.h"

namespace bench {

class HandlerEnds final : public ports::EventLoop {
public:
    void Yield() override {}
    void AtHandlerEnd(std::function<void()> work) override { work_.push_back(std::move(work)); }
    bool IsEnding() const override { return false; }
    void End() {
        for (const auto& work : work_)
            work();
    }

private:
    std::vector<std::function<void()>> work_;
};

class EndInTrouble final : public store::StoreTrouble {
    void OnStoreTrouble(std::string_view, ports::DatabaseError, std::string_view) override { std::abort(); }
};

/// The four stores, without a row at first.
class BenchStore {
public:
    explicit BenchStore(const std::string& name) : folder_(MakeFolder(name)) {
        for (const ports::StoreLayout& layout : store::kStoreLayouts) {
            const std::string file = File(layout.file);
            if (!sqlite::MakeStore(file, layout, {}).Ok()) std::abort();
        }
        Start();
    }
    ~BenchStore() {
        stores_.reset();
        std::filesystem::remove_all(folder_);
    }
    BenchStore(const BenchStore&) = delete;
    BenchStore& operator=(const BenchStore&) = delete;

    /// Reads the files anew.
    void Start() {
        stores_.reset();
        stores_ = std::make_unique<store::Stores>(database_, loop_, trouble_);
    }
    void Bind(store::DataSource& source, std::string_view store_path) {
        source.SetDatabaseName(*stores_, store_path);
    }
    store::Stores& Stores() { return *stores_; }
    ports::EventLoop& Loop() { return loop_; }
    /// Writes what was changed.
    void EndHandler() { loop_.End(); }
    std::string File(std::string_view store_path) const {
        return (folder_ / std::string(store_path.substr(1))).string();
    }

private:
    // Two stores may stand beside each other: a number tells their folders apart.
    static std::filesystem::path MakeFolder(const std::string& name) {
        static int stores = 0;
        const std::filesystem::path folder =
            std::filesystem::temp_directory_path() / ("brindlepost-" + name + base::ToText(++stores));
        std::filesystem::remove_all(folder);
        std::filesystem::create_directories(folder);
        return folder;
    }

    std::filesystem::path folder_;
    sqlite::SqliteDatabase database_{[this](std::string_view path) { return File(path); }};
    HandlerEnds loop_;
    EndInTrouble trouble_;
    std::unique_ptr<store::Stores> stores_;
};

}  // namespace bench
