#include "controls/FolderLists.h"

#include <algorithm>

#include "base/Text.h"

namespace controls {
namespace {

constexpr int kIndent = 3;

// "C:" of a drive or a path.
std::string DriveOf(std::string_view path) {
    return base::UCase(base::Left(path, 2));
}

std::string RootOf(std::string_view path) {
    return DriveOf(path) + "\\";
}

// One way to write each folder: a capital letter, single backslashes, none at the end but a root's, and no
// "..".
std::string Tidy(std::string_view path) {
    std::vector<std::string> names;
    for (std::string& name : base::Split(base::Replace(path.substr(2), "/", "\\"), "\\")) {
        if (name == "..") {
            if (!names.empty()) names.pop_back();
        } else if (!name.empty() && name != ".") {
            names.push_back(std::move(name));
        }
    }
    std::string tidy = RootOf(path);
    for (const std::string& name : names)
        tidy = base::BuildPath(tidy, name);
    return tidy;
}

bool BeginsWithDrive(std::string_view path) {
    return path.size() >= 2 && path[1] == ':';
}

// Hidden folders are gone to by their path only.
bool IsHidden(std::string_view name) {
    return base::StartsWith(name, ".");
}

}  // namespace

DriveListBox::DriveListBox(std::string_view name, const ports::Files& files)
    : ListBox(Kind::DriveListBox, name, Sorted::No), files_(files) {
    claims_.Claim(Click, [this] { DriveListBox_Click(); });
    ReadDrives();
}

void DriveListBox::ReadDrives() {
    Clear();
    drives_.clear();
    for (const ports::Drive& drive : files_.Drives()) {
        drives_.push_back({drive.Letter, ':'});
        AddItem(drive.Label.empty() ? drives_.back() : drives_.back() + " [" + drive.Label + "]");
    }
    SetListIndex(std::max(0, RowOf(drive_)));
}

bool DriveListBox::SetDrive(std::string_view drive) {
    const int row = RowOf(DriveOf(drive));
    return row >= 0 && SetListIndex(row);
}

int DriveListBox::RowOf(std::string_view drive) const {
    const auto found = std::find(drives_.begin(), drives_.end(), drive);
    return found == drives_.end() ? -1 : static_cast<int>(found - drives_.begin());
}

void DriveListBox::DriveListBox_Click() {
    const int row = ListIndex();
    if (row < 0 || drives_[static_cast<std::size_t>(row)] == drive_) return;
    drive_ = drives_[static_cast<std::size_t>(row)];
    Change.Raise();
}

DirListBox::DirListBox(std::string_view name, const ports::Files& files)
    : ListBox(Kind::DirListBox, name, Sorted::No), files_(files) {
    claims_.Claim(DblClick, [this] { DirListBox_DblClick(); });
    ShowFolder();
}

bool DirListBox::SetPath(std::string_view path) {
    const std::string wanted = files_.FromNative(path);
    if (!BeginsWithDrive(wanted)) return false;
    std::string folder = Tidy(wanted);
    if (!files_.IsFolder(folder)) return false;
    const bool is_another = folder != path_;
    path_ = std::move(folder);
    ShowFolder();
    if (is_another) Change.Raise();
    return true;
}

bool DirListBox::OpenRow(int row) {
    const std::string path(RowPath(row));
    return !path.empty() && SetPath(path);
}

std::string_view DirListBox::RowPath(int row) const {
    if (row < 0 || row >= ListCount()) return {};
    return row_paths_[static_cast<std::size_t>(row)];
}

void DirListBox::DirListBox_DblClick() {
    const std::string path(RowPath(ListIndex()));
    if (!path.empty() && !SetPath(path)) Unreachable.Raise(path);
}

void DirListBox::ShowFolder() {
    Clear();
    row_paths_.clear();
    AddFolderRow(RootOf(path_), RootOf(path_), 0);
    for (const std::string& name : base::Split(path_.substr(3), "\\")) {
        AddFolderRow(base::BuildPath(row_paths_.back(), name), name, ListCount());
    }
    path_row_ = ListCount() - 1;
    if (const auto listing = files_.ListFolder(path_)) {
        for (const std::string& name : listing->SubFolders) {
            if (!IsHidden(name)) AddFolderRow(base::BuildPath(path_, name), name, path_row_ + 1);
        }
    }
    SetListIndex(path_row_);
}

void DirListBox::AddFolderRow(std::string path, std::string_view text, int level) {
    row_paths_.push_back(std::move(path));
    AddItem(std::string(static_cast<std::size_t>(level * kIndent), ' ').append(text));
}

}  // namespace controls
