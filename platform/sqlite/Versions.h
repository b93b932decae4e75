// The versions of the stores, and how each became the next one.
//
// A store carries the number of its version (user_version). Stores were made before they were numbered; a
// store without a number is version 1. A change of what a store holds is one more step at the end of its row
// here and the new layout in store/Layouts.h; steps that were shipped are never changed.
#pragma once

#include <array>
#include <span>
#include <string_view>

namespace sqlite {

/// Statements that make a store of the next version out of one of the version before. They run in the one
/// transaction that brings the store up, and must not begin or end one.
using Step = const char*;

struct StoreVersions {
    std::string_view file;  ///< its name in the folder
    std::span<const Step> steps;

    constexpr int Current() const { return 1 + static_cast<int>(steps.size()); }
};

inline constexpr std::array kStoreVersions{
    StoreVersions{"dbMedia.mdb", {}},
    StoreVersions{"dbFavs.mdb", {}},
    StoreVersions{"dbHistory.mdb", {}},
    StoreVersions{"dbLogin.mdb", {}},
};

}  // namespace sqlite
