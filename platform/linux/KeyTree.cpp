#include "platform/linux/KeyTree.h"

#include <array>
#include <utility>

#include "base/Text.h"

namespace linux {
namespace {

constexpr std::array<std::pair<ports::RegistryRoot, std::string_view>, 2> kRoots{
    {{ports::RegistryRoot::ClassesRoot, "HKEY_CLASSES_ROOT\\"},
     {ports::RegistryRoot::LocalMachine, "HKEY_LOCAL_MACHINE\\"}}};

constexpr std::array<std::pair<char, char>, 4> kEscapes{{{'\\', '\\'}, {'"', '"'}, {'\n', 'n'}, {'\r', 'r'}}};

std::string_view NameOf(ports::RegistryRoot root) {
    for (const auto& [known, name] : kRoots)
        if (known == root) return name;
    return {};
}

std::string Quoted(std::string_view text) {
    std::string out = "\"";
    for (const char character : text) {
        char written = character;
        for (const auto& [plain, escaped] : kEscapes) {
            if (character != plain) continue;
            out += '\\';
            written = escaped;
        }
        out += written;
    }
    return out + '"';
}

/// The text between quotes at the front of a line, which is cut off there; nothing when it does not end.
std::optional<std::string> TakeQuoted(std::string_view& line) {
    if (!line.starts_with('"')) return std::nullopt;
    std::string out;
    for (std::size_t at = 1; at < line.size(); ++at) {
        if (line[at] == '"') {
            line.remove_prefix(at + 1);
            return out;
        }
        char character = line[at];
        if (character == '\\' && at + 1 < line.size()) {
            ++at;
            for (const auto& [plain, escaped] : kEscapes)
                if (line[at] == escaped) character = plain;
        }
        out += character;
    }
    return std::nullopt;
}

}  // namespace

KeyTree::Place KeyTree::At(ports::RegistryRoot root, std::string_view path) {
    while (path.ends_with('\\'))
        path.remove_suffix(1);
    return {root, base::LCase(path)};
}

bool KeyTree::HasKeysBelow(const Place& place) const {
    const std::string below = place.second + "\\";
    const auto next = keys_.lower_bound({place.first, below});
    return next != keys_.end() && next->first.first == place.first && next->first.second.starts_with(below);
}

void KeyTree::Make(ports::RegistryRoot root, std::string_view path) {
    while (path.ends_with('\\'))
        path.remove_suffix(1);
    for (std::size_t end = path.find('\\'); end != std::string_view::npos; end = path.find('\\', end + 1))
        keys_.try_emplace(At(root, path.substr(0, end)), Key{std::string(path.substr(0, end)), {}});
    keys_.try_emplace(At(root, path), Key{std::string(path), {}});
}

bool KeyTree::Has(ports::RegistryRoot root, std::string_view path) const {
    return keys_.contains(At(root, path));
}

bool KeyTree::Delete(ports::RegistryRoot root, std::string_view path) {
    const Place place = At(root, path);
    return !HasKeysBelow(place) && keys_.erase(place) > 0;
}

void KeyTree::Set(ports::RegistryRoot root, std::string_view path, std::string_view name,
                  std::string_view text) {
    keys_.at(At(root, path))
        .values.insert_or_assign(base::LCase(name), Spelled{std::string(name), std::string(text)});
}

std::optional<std::string> KeyTree::Value(ports::RegistryRoot root, std::string_view path,
                                          std::string_view name) const {
    const auto key = keys_.find(At(root, path));
    if (key == keys_.end()) return std::nullopt;
    const auto value = key->second.values.find(base::LCase(name));
    return value == key->second.values.end() ? std::nullopt : std::optional(value->second.text);
}

std::string KeyTree::ToText() const {
    std::string text;
    for (const auto& [place, key] : keys_) {
        text.append("[").append(NameOf(place.first)).append(key.path).append("]\n");
        for (const auto& [name, value] : key.values)
            text.append(Quoted(value.name)).append("=").append(Quoted(value.text)).append("\n");
    }
    return text;
}

KeyTree KeyTree::FromText(std::string_view text) {
    KeyTree tree;
    std::optional<std::pair<ports::RegistryRoot, std::string>> key;
    for (const std::string& whole : base::Split(text, "\n")) {
        std::string_view line = whole;
        if (line.starts_with('[')) {
            key.reset();
            for (const auto& [root, name] : kRoots) {
                const bool is_key = line.substr(1).starts_with(name) && line.ends_with(']');
                if (is_key)
                    key = {root, std::string(line.substr(1 + name.size(), line.size() - name.size() - 2))};
            }
            if (key) tree.Make(key->first, key->second);
            continue;
        }
        const auto name = TakeQuoted(line);
        if (!key || !name || !line.starts_with('=')) continue;
        line.remove_prefix(1);
        if (const auto value = TakeQuoted(line)) tree.Set(key->first, key->second, *name, *value);
    }
    return tree;
}

}  // namespace linux
