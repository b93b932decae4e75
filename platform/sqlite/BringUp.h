// Makes stores of older versions fit this program, before anything of it opens them.
#pragma once

#include <optional>
#include <span>
#include <string>

#include "platform/sqlite/Versions.h"
#include "ports/Database.h"

namespace sqlite {

/// A store that this program must not open.
struct UnfitStore {
    std::string file;              ///< its name in the folder
    int version = 0;               ///< of a newer store; 0: an older one that could not be brought up
    int known = 0;                 ///< the version that the program knows
    std::string copy{};            ///< of a newer store: the name of a copy that fits, empty without one
    ports::DatabaseResult result;  ///< why an older one could not be brought up
};

/// Looks at all stores first: where one is newer than the program, nothing is changed in any of them. Then
/// each older one becomes the present version in one transaction, after a copy of it was kept beside it for
/// its owner alone: "dbMedia.mdb.version-1", or "dbMedia.mdb.version-1.2" where another file has that name. A
/// store that cannot be brought up stays as it was, and ends the work. What is missing, is no database or
/// cannot be opened is passed over: whoever opens it tells that.
std::optional<UnfitStore> BringUpStores(const std::string& native_folder,
                                        std::span<const StoreVersions> stores = kStoreVersions);

}  // namespace sqlite
