// Drive list and folder list of an open dialog.
//
// A drive list has one row for each drive; choosing one makes it the current drive. A folder list shows the
// path from the drive down to its folder, one row for each step, and below it the sub folders, indented by
// depth; the row of the folder itself is selected. Choosing a row only raises Click; a double click opens it.
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
    /// Selects the drive that a text begins with, such as a path, and raises Change if it is another one. For
    /// a drive that does not exist it changes nothing and returns false.
    bool SetDrive(std::string_view drive);
    /// Reads the drives again. If the selected drive no longer exists, "C:" is selected.
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
    /// Goes to a folder and reads it, and raises Change if it is another one. "D:" is that drive's root; a
    /// native path is accepted. For a path that is not a folder it changes nothing and returns false. A
    /// folder that cannot be read shows no sub folders.
    bool SetPath(std::string_view path);
    /// Goes to the folder of a row; returns false if the row or its folder does not exist.
    bool OpenRow(int row);
    /// The full path of a row; empty for a row that does not exist.
    std::string_view RowPath(int row) const;
    /// The row of the folder itself.
    int PathRow() const { return path_row_; }

    /// Path has changed.
    Event<> Change;
    /// The folder of a row that was double clicked cannot be gone to; with its path.
    Event<std::string_view> Unreachable;

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
