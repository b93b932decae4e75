// Drive list and folder list, as open dialogs of old had them.
//
// A drive list has one row for each drive; choosing one makes it the drive. A folder list shows the way from
// the drive down to its folder, one row each, and below it the folders that stand in it, indented by depth;
// the row of the folder itself is selected. Choosing a row raises Click and no more; a double click opens it.
// Both listen to their own choosing event, so a room listens to Change.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "controls/ListBox.h"
#include "ports/Files.h"

namespace controls {

class DriveListBox : public ListBox {
public:
    /// Selects "C:". `files` must outlive the list.
    DriveListBox(std::string_view name, const ports::Files& files);

    /// The selected drive, "C:".
    const std::string& Drive() const { return drive_; }
    /// Selects the drive that a text begins with, such as a path, and raises Change when it is another one. A
    /// drive that is not there changes nothing and gives false.
    bool SetDrive(std::string_view drive);
    /// Reads the drives again. A selected drive that is gone gives way to "C:".
    void ReadDrives();

    /// Another drive is selected.
    Event<> Change;

private:
    void DriveListBox_Click();
    int RowOf(std::string_view drive) const;

    const ports::Files& files_;
    std::vector<std::string> drives_;
    std::string drive_ = "C:";
    EventClaims claims_;
};

class DirListBox : public ListBox {
public:
    /// Begins at "C:\". `files` must outlive the list.
    DirListBox(std::string_view name, const ports::Files& files);

    /// The folder, without a separator at its end unless it is a drive's root: "C:\", "C:\Music".
    const std::string& Path() const { return path_; }
    /// Goes to a folder and reads it, and raises Change when it is another one. "D:" is that drive's root; a
    /// native path will do. What is no folder changes nothing and gives false. A folder that cannot be read
    /// shows no sub folders.
    bool SetPath(std::string_view path);
    /// Goes to the folder of a row; false when there is no such row or its folder is gone.
    bool OpenRow(int row);
    /// The full path of a row; empty for a row that is not there.
    std::string_view RowPath(int row) const;
    /// The row of the folder itself.
    int PathRow() const { return path_row_; }

    /// Path is another one.
    Event<> Change;

private:
    void DirListBox_DblClick();
    void ShowFolder();
    void AddFolderRow(std::string path, std::string_view text, int level);

    const ports::Files& files_;
    std::string path_ = "C:\\";
    int path_row_ = 0;
    std::vector<std::string> row_paths_;
    EventClaims claims_;
};

}  // namespace controls
