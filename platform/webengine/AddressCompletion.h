// What a browser makes of an address as the user types it.
#pragma once

#include <QUrl>
#include <functional>
#include <string>
#include <string_view>

namespace webengine {

/// The native path of a path in drive form; empty when there is none.
using ToNativePath = std::function<std::string(std::string_view)>;

/// "example.org" and "127.0.0.1:8080/x" get a scheme, a native or a drive path becomes a file address, a
/// whole address stays. An address without a meaning, an empty one, and one that would run a script give an
/// invalid QUrl.
QUrl CompleteAddress(std::string_view typed, const ToNativePath& to_native_path);

}  // namespace webengine
