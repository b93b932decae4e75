// The desktop's registry: a tree of keys with values, in which programs claim file types and leave facts for
// one another.
//
// Why: the system speaks of registry keys, and a desktop may have none; whoever answers keeps the keys that
// the system writes and translates them, at the notice, into what the desktop reads.
//
// A path is names with a backslash between them; a backslash at the end changes nothing, and neither does the
// case of a name. Nothing throws; every failure is in the result.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ports {

enum class RegistryRoot { ClassesRoot, LocalMachine };

enum class RegistryType {
    Text = 1,    ///< bytes of a text, with or without an end mark
    Number = 4,  ///< bytes of a number, the lowest first
};

struct RegistryValue {
    RegistryType type = RegistryType::Text;
    std::string bytes;

    bool operator==(const RegistryValue&) const = default;
};

/// An open key; 0 is none.
using RegistryKey = std::int64_t;

class Registry {
public:
    virtual ~Registry() = default;
    /// Opens a key, after it and every key above it was made where it is missing. 0 without the right.
    virtual RegistryKey CreateKey(RegistryRoot root, std::string_view path) = 0;
    /// 0 when there is no such key.
    virtual RegistryKey OpenKey(RegistryRoot root, std::string_view path) = 0;
    /// Sets a text, kept as long as it is, without an end mark. The empty name is the key's default value.
    /// False when the key is not open or was deleted.
    virtual bool SetValue(RegistryKey key, std::string_view name, std::string_view text) = 0;
    /// Nothing when the key is not open or was deleted, or has no such value.
    virtual std::optional<RegistryValue> QueryValue(RegistryKey key, std::string_view name) const = 0;
    /// A key that is not open is ignored.
    virtual void CloseKey(RegistryKey key) = 0;
    /// Deletes a key and its values. False, and nothing is deleted, when it is missing or has keys below it.
    virtual bool DeleteKey(RegistryRoot root, std::string_view path) = 0;
    /// The file types changed: makes what was set last, and lets the desktop read it.
    virtual void NotifyAssociationsChanged() = 0;
};

}  // namespace ports
