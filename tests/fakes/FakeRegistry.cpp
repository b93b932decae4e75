#include "fakes/FakeRegistry.h"

#include "base/Text.h"

namespace fakes {

FakeRegistry::Place FakeRegistry::At(ports::RegistryRoot root, std::string_view path) {
    while (path.ends_with('\\'))
        path.remove_suffix(1);
    return {root, base::LCase(path)};
}

ports::RegistryKey FakeRegistry::Open(const Place& place) {
    open_.emplace(++last_key_, place);
    return last_key_;
}

void FakeRegistry::Make(const Place& place) {
    for (std::size_t end = place.path.find('\\'); end != std::string::npos;
         end = place.path.find('\\', end + 1)) {
        keys_.try_emplace({place.root, place.path.substr(0, end)});
    }
    keys_.try_emplace(place);
}

bool FakeRegistry::HasKeysBelow(const Place& place) const {
    const Place first{place.root, place.path + "\\"};
    const auto next = keys_.lower_bound(first);
    return next != keys_.end() && next->first.root == place.root && next->first.path.starts_with(first.path);
}

const FakeRegistry::Place* FakeRegistry::OpenPlace(ports::RegistryKey key) const {
    const auto found = open_.find(key);
    return found == open_.end() || !keys_.contains(found->second) ? nullptr : &found->second;
}

ports::RegistryKey FakeRegistry::CreateKey(ports::RegistryRoot root, std::string_view path) {
    Operations.push_back("create " + std::string(path));
    if (ReadOnly) return 0;
    const Place place = At(root, path);
    Make(place);
    return Open(place);
}

ports::RegistryKey FakeRegistry::OpenKey(ports::RegistryRoot root, std::string_view path) {
    const Place place = At(root, path);
    return keys_.contains(place) ? Open(place) : 0;
}

bool FakeRegistry::SetValue(ports::RegistryKey key, std::string_view name, std::string_view text) {
    Operations.push_back("set \"" + std::string(name) + "\" " + std::string(text));
    const Place* const place = OpenPlace(key);
    if (place == nullptr || ReadOnly) return false;
    keys_[*place].insert_or_assign(base::LCase(name),
                                   ports::RegistryValue{ports::RegistryType::Text, std::string(text)});
    return true;
}

std::optional<ports::RegistryValue> FakeRegistry::QueryValue(ports::RegistryKey key,
                                                             std::string_view name) const {
    const Place* const place = OpenPlace(key);
    if (place == nullptr) return std::nullopt;
    const Values& values = keys_.at(*place);
    const auto value = values.find(base::LCase(name));
    return value == values.end() ? std::nullopt : std::optional(value->second);
}

void FakeRegistry::CloseKey(ports::RegistryKey key) {
    if (open_.erase(key) > 0) Operations.emplace_back("close");
}

bool FakeRegistry::DeleteKey(ports::RegistryRoot root, std::string_view path) {
    Operations.push_back("delete " + std::string(path));
    const Place place = At(root, path);
    if (ReadOnly || HasKeysBelow(place)) return false;
    return keys_.erase(place) > 0;
}

void FakeRegistry::NotifyAssociationsChanged() {
    Operations.emplace_back("notify");
}

void FakeRegistry::Seed(ports::RegistryRoot root, std::string_view path, std::string_view name,
                        ports::RegistryValue value) {
    const Place place = At(root, path);
    Make(place);
    keys_[place].insert_or_assign(base::LCase(name), std::move(value));
}

std::vector<std::string> FakeRegistry::Contents(ports::RegistryRoot root) const {
    std::vector<std::string> contents;
    for (const auto& [place, values] : keys_) {
        if (place.root != root) continue;
        contents.push_back(place.path);
        for (const auto& [name, value] : values)
            contents.push_back(place.path + "|" + name + "=" + value.bytes);
    }
    return contents;
}

}  // namespace fakes
