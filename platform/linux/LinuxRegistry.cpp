#include "platform/linux/LinuxRegistry.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <utility>

#include "base/Text.h"
#include "platform/linux/MimeApps.h"

namespace linux {
namespace {

constexpr std::string_view kKeysFile = "/brindlepost/registry";
constexpr std::string_view kEntry = "brindlepost.desktop";
constexpr std::string_view kEntryFile = "/applications/brindlepost.desktop";
constexpr std::string_view kListFile = "mimeapps.list";
/// What the desktop knows ".mp3" as.
constexpr std::string_view kKind = "audio/mpeg";
constexpr std::string_view kOpenCommand = ".mp3\\shell\\open\\command";
constexpr std::string_view kIcon = ".mp3\\DefaultIcon";
constexpr std::string_view kPicture = "/images/brindlepost.png";

std::string Variable(const char* name) {
    const char* const text = std::getenv(name);
    return text != nullptr ? text : "";
}

std::string HomeFolder() {
    std::string home = Variable("HOME");
    if (home.starts_with('/')) return home;
    const passwd* const user = ::getpwuid(::geteuid());
    return user != nullptr && user->pw_dir != nullptr ? user->pw_dir : "";
}

/// A folder that the environment names counts only with its whole path.
std::string FolderOr(const char* variable, std::string_view below_home) {
    std::string named = Variable(variable);
    if (named.starts_with('/')) return named;
    const std::string home = HomeFolder();
    return home.empty() ? home : home + std::string(below_home);
}

/// The program of a command `"program.exe" "%1"`; empty for any other.
std::string ProgramOf(std::string_view command) {
    constexpr std::string_view kAfterProgram = ".exe\" \"%1\"";
    if (!command.starts_with('"') || !command.ends_with(kAfterProgram)) return {};
    return std::string(command.substr(1, command.size() - 1 - kAfterProgram.size()));
}

std::string FolderOf(const std::string& native) {
    return native.substr(0, native.rfind('/'));
}

/// A value of a desktop entry: a backslash and what would end the line are escaped.
std::string EntryValue(std::string_view text) {
    std::string out = base::Replace(text, "\\", "\\\\");
    out = base::Replace(out, "\n", "\\n");
    return base::Replace(out, "\r", "\\r");
}

/// One word of a command line in a desktop entry. It is put between quotes only where it must be: some
/// readers take the first word as it is.
std::string CommandWord(const std::string& word) {
    constexpr std::string_view kReserved = " \t\n\"'\\><~|&;$*?#()`";
    std::string out = base::Replace(word, "%", "%%");
    if (out.find_first_of(kReserved) == std::string::npos) return out;
    std::string quoted = "\"";
    for (const char character : out) {
        if (std::string_view("\"`$\\").find(character) != std::string_view::npos) quoted += '\\';
        quoted += character;
    }
    return EntryValue(quoted + "\"");
}

}  // namespace

DesktopFolders FoldersOfUser() {
    DesktopFolders folders{
        FolderOr("XDG_DATA_HOME", "/.local/share"), FolderOr("XDG_CONFIG_HOME", "/.config"), {}};
    folders.state = FolderOr("XDG_STATE_HOME", "/.local/state");
    for (const std::string& name : base::Split(base::LCase(Variable("XDG_CURRENT_DESKTOP")), ":")) {
        if (!name.empty() && !base::Contains(name, "/")) folders.desktops.push_back(name);
    }
    return folders;
}

LinuxRegistry::LinuxRegistry(ports::Files& files, DesktopFolders folders)
    : files_(files), folders_(std::move(folders)) {}

KeyTree& LinuxRegistry::Keys() const {
    if (!keys_) keys_ = KeyTree::FromText(ReadNative(folders_.data + std::string(kKeysFile)));
    return *keys_;
}

ports::RegistryKey LinuxRegistry::Open(ports::RegistryRoot root, std::string_view path) {
    opened_.emplace(++last_key_, OpenedKey{root, std::string(path)});
    return last_key_;
}

const LinuxRegistry::OpenedKey* LinuxRegistry::Opened(ports::RegistryKey key) const {
    const auto found = opened_.find(key);
    if (found == opened_.end()) return nullptr;
    return Keys().Has(found->second.root, found->second.path) ? &found->second : nullptr;
}

ports::RegistryKey LinuxRegistry::CreateKey(ports::RegistryRoot root, std::string_view path) {
    Keys().Make(root, path);
    return Open(root, path);
}

ports::RegistryKey LinuxRegistry::OpenKey(ports::RegistryRoot root, std::string_view path) {
    return Keys().Has(root, path) ? Open(root, path) : 0;
}

bool LinuxRegistry::SetValue(ports::RegistryKey key, std::string_view name, std::string_view text) {
    const OpenedKey* const opened = Opened(key);
    if (opened == nullptr) return false;
    Keys().Set(opened->root, opened->path, name, text);
    return true;
}

std::optional<ports::RegistryValue> LinuxRegistry::QueryValue(ports::RegistryKey key,
                                                              std::string_view name) const {
    const OpenedKey* const opened = Opened(key);
    if (opened == nullptr) return std::nullopt;
    auto text = Keys().Value(opened->root, opened->path, name);
    if (!text) return std::nullopt;
    return ports::RegistryValue{ports::RegistryType::Text, std::move(*text)};
}

void LinuxRegistry::CloseKey(ports::RegistryKey key) {
    opened_.erase(key);
}

bool LinuxRegistry::DeleteKey(ports::RegistryRoot root, std::string_view path) {
    return Keys().Delete(root, path);
}

void LinuxRegistry::NotifyAssociationsChanged() {
    if (!folders_.data.empty()) WriteNative(folders_.data + std::string(kKeysFile), Keys().ToText());
    const std::string entry = DesktopEntry();
    if (entry.empty() || folders_.data.empty() || folders_.config.empty()) return;
    const std::string own_entry = folders_.data + std::string(kEntryFile);
    if (HasEntryOfPackage()) {
        files_.DeleteFile(files_.FromNative(own_entry));
    } else {
        WriteNative(own_entry, entry);
    }
    ClaimKind(folders_.config + "/" + std::string(kListFile), false);
    // The list of the desktop itself, where it has one, comes before that of every desktop.
    for (const std::string& desktop : folders_.desktops)
        ClaimKind(folders_.config + "/" + desktop + "-" + std::string(kListFile), true);
}

/// Several files that are opened at once come as one command: %F. Empty while no command is set.
std::string LinuxRegistry::DesktopEntry() const {
    const auto command = Keys().Value(ports::RegistryRoot::ClassesRoot, kOpenCommand, "");
    const std::string program = command ? files_.ToNative(ProgramOf(*command)) : "";
    if (program.empty()) return {};
    const auto icon = Keys().Value(ports::RegistryRoot::ClassesRoot, kIcon, "");
    std::string entry =
        "[Desktop Entry]\n"
        "Type=Application\n"
        "Name=Brindlepost\n"
        "GenericName=Web Browser and Music Player\n";
    entry += "TryExec=" + EntryValue(program) + "\n";
    entry += "Exec=" + CommandWord(program) + " %F\n";
    if (icon) entry += "Icon=" + EntryValue(FolderOf(files_.ToNative(*icon)) + std::string(kPicture)) + "\n";
    entry += "MimeType=" + std::string(kKind) + ";\n";
    entry += "Categories=AudioVideo;Audio;Player;\n";
    entry += "StartupNotify=true\n";
    entry += "StartupWMClass=Brindlepost\n";
    return entry;
}

/// The program that is claimed for came with a package that has a desktop entry as well.
bool LinuxRegistry::HasEntryOfPackage() const {
    const auto command = Keys().Value(ports::RegistryRoot::ClassesRoot, kOpenCommand, "");
    const std::string program = command ? files_.ToNative(ProgramOf(*command)) : "";
    const std::string entry = folders_.system + "/share" + std::string(kEntryFile);
    return program.starts_with(folders_.system + "/") && files_.FileExists(files_.FromNative(entry));
}

void LinuxRegistry::ClaimKind(const std::string& list, bool only_where_named) {
    const std::string text = ReadNative(list);
    // What could not be read to its end is not written again.
    if (text.size() >= ports::Files::kLongestText) return;
    if (only_where_named && !NamesDefault(text, kKind)) return;
    WriteNative(list, WithClaim(text, {.kind = kKind, .entry = kEntry}));
}

std::string LinuxRegistry::ReadNative(const std::string& path) const {
    return files_.ReadText(files_.FromNative(path)).value_or("");
}

/// A file that its owner made read-only is left alone, and so is anything but a file.
void LinuxRegistry::WriteNative(const std::string& path, std::string_view text) {
    const std::string file = files_.FromNative(path);
    if (const auto bits = files_.GetAttributes(file)) {
        if ((*bits & (ports::kReadOnly | ports::kFolder)) != 0) return;
        const auto there = files_.ReadText(file);
        if (!there || *there == text) return;
    }
    MakeFolders(FolderOf(path));
    files_.WriteText(file, text);
}

void LinuxRegistry::MakeFolders(const std::string& path) {
    for (std::size_t end = path.find('/', 1);; end = path.find('/', end + 1)) {
        files_.MakeFolder(files_.FromNative(path.substr(0, end)));
        if (end == std::string::npos) return;
    }
}

}  // namespace linux
