// The keys and values of a registry, and the text they are kept as.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "ports/Registry.h"

namespace linux {

/// Paths are those of ports::Registry: names between backslashes, whatever their case, a backslash at the end
/// or none.
class KeyTree {
public:
    /// Makes the key and those above it, where they are missing.
    void Make(ports::RegistryRoot root, std::string_view path);
    bool Has(ports::RegistryRoot root, std::string_view path) const;
    /// False when the key is missing or has keys below it.
    bool Delete(ports::RegistryRoot root, std::string_view path);
    /// The key must be there.
    void Set(ports::RegistryRoot root, std::string_view path, std::string_view name, std::string_view text);
    std::optional<std::string> Value(ports::RegistryRoot root, std::string_view path,
                                     std::string_view name) const;

    /// A line for each key and each value, by path.
    std::string ToText() const;
    /// Lines that are no key and no value are left out.
    static KeyTree FromText(std::string_view text);

private:
    struct Spelled {
        std::string name;
        std::string text;
    };
    struct Key {
        std::string path;                                    // as it was spelled first
        std::map<std::string, Spelled, std::less<>> values;  // by the name in lower case
    };

    // Root and path in lower case, without a backslash at the end.
    using Place = std::pair<ports::RegistryRoot, std::string>;
    static Place At(ports::RegistryRoot root, std::string_view path);
    bool HasKeysBelow(const Place& place) const;

    std::map<Place, Key> keys_;
};

}  // namespace linux
