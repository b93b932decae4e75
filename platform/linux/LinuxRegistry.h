// The registry on a desktop that has none: a tree of keys in a file of the user, and what the desktop reads
// instead of it.
//
// The keys are read at the first use and written at the notice. The notice also translates the open command
// of ".mp3": into a desktop entry, "brindlepost.desktop", and into the user's choice of programs for that
// kind of file, `mimeapps.list`. A program whose package brought an entry of that name needs none of the
// user's, which would hide the other. Each file is written only where it would differ, and whole or not at
// all; where it may not be written nothing happens.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/linux/KeyTree.h"
#include "ports/Files.h"
#include "ports/Registry.h"

namespace linux {

/// Native paths; an empty one is not known, and nothing is written there.
struct DesktopFolders {
    std::string data;                   ///< $XDG_DATA_HOME
    std::string config;                 ///< $XDG_CONFIG_HOME
    std::vector<std::string> desktops;  ///< names of the running desktop, in lower case
    std::string system = "/usr";        ///< where packages install programs and their desktop entries
    std::string state{};                ///< $XDG_STATE_HOME
};

/// Those of the user who runs the program, as the environment says, else below the home folder.
DesktopFolders FoldersOfUser();

class LinuxRegistry final : public ports::Registry {
public:
    LinuxRegistry(ports::Files& files, DesktopFolders folders);

    ports::RegistryKey CreateKey(ports::RegistryRoot root, std::string_view path) override;
    ports::RegistryKey OpenKey(ports::RegistryRoot root, std::string_view path) override;
    bool SetValue(ports::RegistryKey key, std::string_view name, std::string_view text) override;
    std::optional<ports::RegistryValue> QueryValue(ports::RegistryKey key,
                                                   std::string_view name) const override;
    void CloseKey(ports::RegistryKey key) override;
    bool DeleteKey(ports::RegistryRoot root, std::string_view path) override;
    void NotifyAssociationsChanged() override;

private:
    struct OpenedKey {
        ports::RegistryRoot root;
        std::string path;
    };

    KeyTree& Keys() const;
    const OpenedKey* Opened(ports::RegistryKey key) const;
    ports::RegistryKey Open(ports::RegistryRoot root, std::string_view path);
    std::string DesktopEntry() const;
    bool HasEntryOfPackage() const;
    void ClaimKind(const std::string& list, bool only_where_named);
    std::string ReadNative(const std::string& path) const;
    void WriteNative(const std::string& path, std::string_view text);
    void MakeFolders(const std::string& path);

    ports::Files& files_;
    DesktopFolders folders_;
    mutable std::optional<KeyTree> keys_;
    std::map<ports::RegistryKey, OpenedKey> opened_;
    ports::RegistryKey last_key_ = 0;
};

}  // namespace linux
