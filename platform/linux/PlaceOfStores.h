// Where the four stores of the program live.
//
// Beside the program where that folder may be written: a checkout, a stick. A program that belongs to the
// system lies where nobody writes; its stores live in a folder of the user's own, made at the first start
// from those that were shipped beside it.
#pragma once

#include <string>

namespace linux {

struct PlaceOfStores {
    /// The native path of the folder, without a slash at its end.
    std::string folder;
    /// What could not be made there, as text for the user; empty when all is well.
    std::string trouble;
};

/// `program_folder` and `data_home` (the desktop's $XDG_DATA_HOME; may be empty) are native paths. The folder
/// of the user is made with rights for its owner alone. A store that is there stays as it is; one that is
/// missing is copied from the program's folder in one step, so that a start beside another one, or one that
/// is ended, leaves a whole file or none. What was not shipped is not made.
PlaceOfStores FindPlaceOfStores(const std::string& program_folder, const std::string& data_home);

}  // namespace linux
