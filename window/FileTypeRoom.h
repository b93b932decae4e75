// The one file type of the program, ".mp3", in the registry: a double click on such a file starts the program
// with the file as its argument.
//
// Order: what others may have left is deleted, the keys are made one after another, each closed after use,
// and the desktop is notified last. The verbs hang on the extension's own key, which has no default value.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "ports/Files.h"
#include "ports/Registry.h"
#include "roles/FileType.h"

namespace window {

class FileTypeRoom final : public roles::FileType {
public:
    /// `program_folder` is where the program's file lies; its stores may live elsewhere.
    FileTypeRoom(ports::Registry& registry, const ports::Files& files, std::string program_folder)
        : registry_(registry), files_(files), program_folder_(std::move(program_folder)) {}

    // roles::FileType
    void cmdAssociate() override;

private:
    void RemoveFileType(const std::string& name);
    void RegisterFileType(const std::string& key, std::string_view command, std::string_view icon);
    void DeleteKey(const std::string& key);
    void MakeKey(const std::string& key);
    void MakeKey(const std::string& key, std::string_view value);
    std::string InFolder(std::string_view file) const;

    ports::Registry& registry_;
    const ports::Files& files_;
    std::string program_folder_;
};

}  // namespace window
