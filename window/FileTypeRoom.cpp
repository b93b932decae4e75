#include "window/FileTypeRoom.h"

namespace window {
namespace {

constexpr ports::RegistryRoot kRoot = ports::RegistryRoot::ClassesRoot;

std::string Quoted(std::string_view text) {
    return std::string("\"").append(text).append("\"");
}

}  // namespace

// The icon's file has the name that the program is shipped under, whatever the running one is called.
void FileTypeRoom::cmdAssociate() {
    RemoveFileType("mp3");
    const std::string program = InFolder(files_.ApplicationFileName()).append(".exe");
    RegisterFileType(".mp3", Quoted(program).append(" ").append(Quoted("%1")), InFolder("Brindlepost.exe,0"));
}

void FileTypeRoom::RemoveFileType(const std::string& name) {
    DeleteKey("." + name + "\\DefaultIcon\\");
    DeleteKey(name + "file\\DefaultIcon\\");
    DeleteKey(name + "_auto_file\\DefaultIcon\\");
    DeleteKey("." + name);
    DeleteKey(name + "file");
    DeleteKey(name + "_auto_file");
}

void FileTypeRoom::RegisterFileType(const std::string& key, std::string_view command, std::string_view icon) {
    MakeKey(key);
    MakeKey(key + "\\shell\\");
    MakeKey(key + "\\shell\\open\\");
    MakeKey(key + "\\shell\\open\\command", command);
    MakeKey(key + "\\shell\\play\\");
    MakeKey(key + "\\shell\\play\\command\\", command);
    if (!icon.empty()) MakeKey(key + "\\DefaultIcon\\", icon);
    registry_.NotifyAssociationsChanged();
}

// A key that is missing, or that has keys below it, stays as it is.
void FileTypeRoom::DeleteKey(const std::string& key) {
    registry_.DeleteKey(kRoot, key);
}

void FileTypeRoom::MakeKey(const std::string& key) {
    registry_.CloseKey(registry_.CreateKey(kRoot, key));
}

void FileTypeRoom::MakeKey(const std::string& key, std::string_view value) {
    const ports::RegistryKey made = registry_.CreateKey(kRoot, key);
    registry_.SetValue(made, "", value);
    registry_.CloseKey(made);
}

std::string FileTypeRoom::InFolder(std::string_view file) const {
    return files_.BuildPath(program_folder_, file);
}

}  // namespace window
