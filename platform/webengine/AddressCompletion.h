// What a browser makes of a text as the user types it: an address, or words to search for.
#pragma once

#include <QUrl>
#include <functional>
#include <string>
#include <string_view>

namespace webengine {

/// The native path of a path in drive form; empty when there is none.
using ToNativePath = std::function<std::string(std::string_view)>;

struct AddressRules {
    ToNativePath to_native_path = {};
    /// The address of a search for words, which come escaped. Left empty, nothing becomes a search.
    std::function<std::string(std::string_view)> search_address = {};
    /// A bare host is asked for on https before http.
    bool https_first = true;
};

struct Completed {
    QUrl address;     ///< invalid when the text means nothing
    QUrl on_refusal;  ///< what to ask for where `address` is refused; empty as a rule
};

/// A native or a drive path becomes a file address; a whole address stays; one that would run a script, and
/// an empty text, mean nothing.
///
/// A name with a dot and nothing before it ("example.org/x") is a host: it is asked for on https, and on http
/// where that is refused. "localhost", numbers ("127.0.0.1"), a name with a port or with a slash after it
/// ("intranet/") belong to this computer or its neighbours and are asked for on http at once.
///
/// What cannot be a host is searched for: several words, a single one, signs that no name has.
Completed CompleteAddress(std::string_view typed, const AddressRules& rules);

/// The server cannot be reached this way, but perhaps another: the engine's code for a refused or broken
/// connection. A certificate that is no good, or a name that is not found, is no refusal.
bool IsRefusal(int error_code);

}  // namespace webengine
