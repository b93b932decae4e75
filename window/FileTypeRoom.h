// The one file type of the program, ".mp3", in the registry: a double click on such a file starts the program
// with the file as its argument.
//
// Order: what others may have left is deleted, the keys are made one after another, each closed after use,
// and the desktop is notified last. The verbs hang on the extension's own key, which has no default value.
#pragma once

#include <string>
#include <string_view>

#include "ports/Files.h"
#include "ports/Registry.h"
#include "roles/FileType.h"

namespace window {

class FileTypeRoom final : public roles::FileType {
public:
    FileTypeRoom(ports::Registry& registry, const ports::Files& files) : registry_(registry), files_(files) {}

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
};

}  // namespace window
