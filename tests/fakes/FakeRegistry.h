// A registry in memory, which notes what is asked of it.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "ports/Registry.h"

namespace fakes {

class FakeRegistry final : public ports::Registry {
public:
    ports::RegistryKey CreateKey(ports::RegistryRoot root, std::string_view path) override;
    ports::RegistryKey OpenKey(ports::RegistryRoot root, std::string_view path) override;
    bool SetValue(ports::RegistryKey key, std::string_view name, std::string_view text) override;
    std::optional<ports::RegistryValue> QueryValue(ports::RegistryKey key,
                                                   std::string_view name) const override;
    void CloseKey(ports::RegistryKey key) override;
    bool DeleteKey(ports::RegistryRoot root, std::string_view path) override;
    void NotifyAssociationsChanged() override;

    /// Puts a value into a key, which is made if it is missing. Not noted.
    void Seed(ports::RegistryRoot root, std::string_view path, std::string_view name,
              ports::RegistryValue value);
    /// Every key with its values: "path" or "path|name=bytes", in lower case but for the bytes, by path.
    std::vector<std::string> Contents(ports::RegistryRoot root) const;

    /// Nothing can be made, set or deleted.
    bool ReadOnly = false;
    /// The operations that change something or notify, in order, as in "create .mp3\shell".
    std::vector<std::string> Operations;
    /// Keys that were opened and not closed yet.
    std::size_t OpenKeys() const { return open_.size(); }

private:
    using Values = std::map<std::string, ports::RegistryValue, std::less<>>;
    struct Place {
        ports::RegistryRoot root = ports::RegistryRoot::ClassesRoot;
        std::string path;  // in lower case, without a backslash at its end

        bool operator<(const Place& other) const {
            return std::tie(root, path) < std::tie(other.root, other.path);
        }
    };

    static Place At(ports::RegistryRoot root, std::string_view path);
    ports::RegistryKey Open(const Place& place);
    void Make(const Place& place);
    bool HasKeysBelow(const Place& place) const;
    const Place* OpenPlace(ports::RegistryKey key) const;

    std::map<Place, Values> keys_;
    std::map<ports::RegistryKey, Place> open_;
    ports::RegistryKey last_key_ = 0;
};

}  // namespace fakes
