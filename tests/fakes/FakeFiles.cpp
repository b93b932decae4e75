#include "fakes/FakeFiles.h"

#include <algorithm>

#include "base/Text.h"

namespace fakes {
namespace {

constexpr std::size_t kNamesBetweenQuestions = 512;

std::string ParentOf(const std::string& key) {
    const std::size_t slash = key.rfind('/');
    return slash == 0 || slash == std::string::npos ? "/" : key.substr(0, slash);
}

void Sort(std::vector<std::string>& names) {
    std::sort(names.begin(), names.end(), [](const std::string& left, const std::string& right) {
        return base::CompareForSort(left, right) < 0;
    });
}

}  // namespace

FakeFiles::FakeFiles(std::string_view application_folder) : application_folder_(application_folder) {
    nodes_["/"].is_folder = true;
    AddFolder(application_folder);
}

void FakeFiles::AddFile(std::string_view path, std::string_view text) {
    const std::string key = Key(path);
    AddFolders(ParentOf(key));
    nodes_[key] = {false, true, std::string(text), {}};
}

void FakeFiles::AddLink(std::string_view path, std::string_view folder) {
    const std::string key = Key(path);
    AddFolders(ParentOf(key));
    nodes_[key] = {true, true, {}, Key(folder)};
}

void FakeFiles::AddFolder(std::string_view path) {
    AddFolders(Key(path));
}

void FakeFiles::AddFolders(const std::string& key) {
    nodes_[key].is_folder = true;
    if (key != "/") AddFolders(ParentOf(key));
}

void FakeFiles::AddDrive(char letter, std::string_view label) {
    volumes_.push_back({letter, "/media/" + base::TextToBytes(label), std::string(label)});
    AddFolders(volumes_.back().mount_point);
}

void FakeFiles::RemoveDrive(char letter) {
    std::erase_if(volumes_, [letter](const base::Volume& volume) { return volume.letter == letter; });
}

void FakeFiles::Remove(std::string_view path) {
    const std::string key = Key(path);
    std::erase_if(
        nodes_, [&key](const auto& node) { return node.first == key || node.first.starts_with(key + "/"); });
}

void FakeFiles::MakeUnreadable(std::string_view path) {
    if (Node* const node = Find(path)) node->readable = false;
}

std::string FakeFiles::TextOf(std::string_view path) const {
    const Node* const node = Find(path);
    return node == nullptr ? std::string() : node->text;
}

std::string FakeFiles::Key(std::string_view path) const {
    std::string key = ToNative(path);
    if (key.size() > 1 && key.back() == '/') key.pop_back();
    return key;
}

std::string FakeFiles::Resolved(std::string key) const {
    for (std::size_t end = key.find('/', 1);; end = key.find('/', end + 1)) {
        const auto found = nodes_.find(key.substr(0, end));
        if (found != nodes_.end() && !found->second.leads_to.empty()) {
            return Resolved(found->second.leads_to + (end == std::string::npos ? "" : key.substr(end)));
        }
        if (end == std::string::npos) return key;
    }
}

// The folder that the link leads to is `folder` itself or stands on the way down to it.
bool FakeFiles::LeadsBack(const std::string& link, const std::string& folder) const {
    const std::string target = Resolved(link);
    for (std::size_t end = folder.find('/', 1);; end = folder.find('/', end + 1)) {
        if (target == "/" || Resolved(folder.substr(0, end)) == target) return true;
        if (end == std::string::npos) return false;
    }
}

bool FakeFiles::IsSilent(std::string_view path) const {
    const std::string key = Key(path);
    return !silent_.empty() && (key == silent_ || key.starts_with(silent_ + "/"));
}

const FakeFiles::Node* FakeFiles::Find(std::string_view path) const {
    if (IsSilent(path)) return nullptr;
    const auto found = nodes_.find(Resolved(Key(path)));
    if (found == nodes_.end()) return nullptr;
    const bool names_a_folder = !path.empty() && (path.back() == '\\' || path.back() == '/');
    return names_a_folder && !found->second.is_folder ? nullptr : &found->second;
}

FakeFiles::Node* FakeFiles::Find(std::string_view path) {
    return const_cast<Node*>(static_cast<const FakeFiles*>(this)->Find(path));
}

std::optional<int> FakeFiles::GetAttributes(std::string_view path) const {
    const Node* const node = Find(path);
    if (node == nullptr) return std::nullopt;
    const bool hidden = NameInFolder(path).starts_with('.');
    return (node->is_folder ? ports::kFolder : 0) | (hidden ? ports::kHidden : 0);
}

std::optional<ports::FolderListing> FakeFiles::ListFolder(std::string_view path,
                                                          const ports::MayGoOn& may_go_on) const {
    if (!hangs_.empty() && Key(path) == hangs_) {
        silent_ = hangs_;
        constexpr int kQuestionsOfPatience = 1000;
        for (int i = 0; may_go_on && i < kQuestionsOfPatience && may_go_on();)
            ++i;
    }
    const Node* const folder = Find(path);
    if (folder == nullptr || !folder->is_folder || !folder->readable) return std::nullopt;
    ports::FolderListing listing;
    const std::string way = Key(path);
    const std::string key = Resolved(way);
    for (const auto& [name, node] : nodes_) {
        if (name == "/" || ParentOf(name) != key) continue;
        if (!node.leads_to.empty() && LeadsBack(name, way)) continue;
        if (!node.is_folder && !node.readable) continue;
        auto& names = node.is_folder ? listing.SubFolders : listing.Files;
        names.push_back(base::NameToText(std::string_view(name).substr(name.rfind('/') + 1)));
        if (!node.leads_to.empty()) listing.Links.push_back(names.back());
        if (names.size() % kNamesBetweenQuestions == 0 && may_go_on && !may_go_on()) return std::nullopt;
    }
    Sort(listing.Files);
    Sort(listing.SubFolders);
    Sort(listing.Links);
    listing.Identity = {1, std::hash<std::string>()(key)};
    return listing;
}

std::vector<ports::Drive> FakeFiles::Drives() const {
    std::vector<ports::Drive> drives{{'C', ""}};
    for (const base::Volume& volume : volumes_)
        drives.push_back({volume.letter, volume.label});
    return drives;
}

ports::FileResult FakeFiles::MakeFolder(std::string_view path) {
    if (forced_result_ != ports::FileResult::Done) return forced_result_;
    const std::string key = Key(path);
    if (nodes_.contains(key)) return ports::FileResult::AlreadyThere;
    const auto parent = nodes_.find(ParentOf(key));
    if (key.empty() || parent == nodes_.end() || !parent->second.is_folder) return ports::FileResult::Missing;
    nodes_[key].is_folder = true;
    return ports::FileResult::Done;
}

ports::FileResult FakeFiles::DeleteFile(std::string_view path) {
    using ports::FileResult;
    if (forced_result_ != FileResult::Done && forced_result_ != FileResult::DiskFull) return forced_result_;
    const Node* const node = Find(path);
    if (node == nullptr) return ports::FileResult::Missing;
    if (node->is_folder) return ports::FileResult::Failed;
    nodes_.erase(Key(path));
    return ports::FileResult::Done;
}

std::optional<std::string> FakeFiles::ReadText(std::string_view path, std::size_t limit) const {
    const Node* const node = Find(path);
    if (node == nullptr || node->is_folder || !node->readable) return std::nullopt;
    return node->text.substr(0, limit);
}

ports::FileResult FakeFiles::WriteText(std::string_view path, std::string_view bytes) {
    if (forced_result_ != ports::FileResult::Done) return forced_result_;
    const std::string key = Key(path);
    const auto parent = nodes_.find(ParentOf(key));
    if (key.empty() || parent == nodes_.end() || !parent->second.is_folder) return ports::FileResult::Missing;
    const auto there = nodes_.find(key);
    if (there != nodes_.end() && there->second.is_folder) return ports::FileResult::Failed;
    nodes_[key] = {false, true, std::string(bytes), {}};
    return ports::FileResult::Done;
}

std::string FakeFiles::GetShortPathName(std::string_view path) const {
    return Find(path) == nullptr ? std::string() : short_paths_.Shorten(path);
}

std::string FakeFiles::NameInFolder(std::string_view path) const {
    const std::string key = Key(path);
    const bool is_drive =
        key == "/" || std::any_of(volumes_.begin(), volumes_.end(),
                                  [&key](const auto& volume) { return volume.mount_point == key; });
    if (is_drive || Find(path) == nullptr) return {};
    return base::NameToText(std::string_view(key).substr(key.rfind('/') + 1));
}

std::string FakeFiles::ToNative(std::string_view path) const {
    return base::NativePath(short_paths_.Resolve(path), volumes_).value_or(std::string());
}

std::string FakeFiles::FromNative(std::string_view native_path) const {
    return base::DrivePath(native_path, volumes_);
}

}  // namespace fakes
