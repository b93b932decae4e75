// What the program passes to the page module.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace webengine {

struct PageSettings {
    /// Where downloads go: a native path of a folder that exists.
    std::string download_folder;
    /// The native path of a path in drive form; empty when there is none.
    std::function<std::string(std::string_view)> to_native_path;
};

}  // namespace webengine
