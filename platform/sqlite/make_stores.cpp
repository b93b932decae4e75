// Makes the four store files with the content they are shipped with, in the folder that the command line
// names. Files of a former build go first.

#include <cstdio>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

#include "base/Number.h"
#include "platform/sqlite/MakeStore.h"
#include "store/Layouts.h"
#include "store/Settings.h"
#include "store/StartingContent.h"

namespace {

using Rows = std::vector<sqlite::StartingRow>;

Rows RowsOf(const ports::StoreLayout& layout, const std::vector<std::string>& ids) {
    Rows rows;
    if (layout.file == store::kFavouritesStore) {
        rows.push_back({0, {store::kStartingFavourite.begin(), store::kStartingFavourite.end()}});
    }
    if (layout.file == store::kHistoryStore) {
        for (std::size_t i = 0; i < ids.size(); ++i)
            rows.push_back({0, {ids[i], store::kSettingsType, store::kSettings[i].shipped}});
    }
    return rows;
}

}  // namespace

int main(int argument_count, char** arguments) {
    if (argument_count != 2) {
        std::fprintf(stderr, "usage: brindlepost_make_stores FOLDER\n");
        return 2;
    }
    const std::filesystem::path folder = arguments[1];
    std::error_code ignored_if_there;
    std::filesystem::create_directories(folder, ignored_if_there);
    std::vector<std::string> ids;
    ids.reserve(store::kSettings.size());
    for (const store::Setting& setting : store::kSettings)
        ids.push_back(base::ToText(store::NumberOf(setting.row)));
    for (const ports::StoreLayout& layout : store::kStoreLayouts) {
        const std::filesystem::path file = folder / layout.file.substr(1);
        std::error_code ignored_if_missing;
        std::filesystem::remove(file, ignored_if_missing);
        const ports::DatabaseResult result = sqlite::MakeStore(file.string(), layout, RowsOf(layout, ids));
        if (result.Ok()) continue;
        std::fprintf(stderr, "%s: %s\n", file.c_str(), result.text.c_str());
        return 1;
    }
    return 0;
}
