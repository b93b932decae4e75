// Files and folders that exist in memory only.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "ports/Files.h"

namespace fakes {

class FakeFiles final : public ports::Files {
public:
    /// "C:" and the application folder are there from the start.
    explicit FakeFiles(std::string_view application_folder = "C:\\Brindlepost");

    /// A file, with the folders above it.
    void AddFile(std::string_view path, std::string_view text = {});
    /// A folder, with those above it.
    void AddFolder(std::string_view path);
    /// A second way to a folder that is there.
    void AddLink(std::string_view path, std::string_view folder);
    void AddDrive(char letter, std::string_view label);
    /// The drive goes, and what is on it can no longer be reached by its letter.
    void RemoveDrive(char letter);
    /// Takes a file, or a folder with all in it, away.
    void Remove(std::string_view path);
    /// A folder's contents, or a file's text, can no longer be read; its attributes still can.
    void MakeUnreadable(std::string_view path);
    /// What is at the path and below it does not answer; no longer, with "".
    void Silence(std::string_view path) { silent_ = path.empty() ? std::string() : Key(path); }
    /// What is at and below this path falls silent when the folder is listed, which cancels that in the end.
    void SilenceWhenListed(std::string_view path) { hangs_ = Key(path); }
    /// What every later write, deletion and new folder results in; Done gives the real result again. A full
    /// disk lets files be deleted.
    void FailChangesWith(ports::FileResult result) { forced_result_ = result; }
    /// The text of a file, empty for a missing one.
    std::string TextOf(std::string_view path) const;

    // ports::Files
    std::optional<int> GetAttributes(std::string_view path) const override;
    bool IsSilent(std::string_view path) const override;
    std::optional<ports::FolderListing> ListFolder(std::string_view path,
                                                   const ports::MayGoOn& may_go_on = {}) const override;
    std::vector<ports::Drive> Drives() const override;
    ports::FileResult MakeFolder(std::string_view path) override;
    ports::FileResult DeleteFile(std::string_view path) override;
    std::optional<std::string> ReadText(std::string_view path, std::size_t limit) const override;
    ports::FileResult WriteText(std::string_view path, std::string_view bytes) override;
    std::string GetShortPathName(std::string_view path) const override;
    std::string NameInFolder(std::string_view path) const override;
    std::string ToNative(std::string_view path) const override;
    std::string FromNative(std::string_view native_path) const override;
    std::string ApplicationFolder() const override { return application_folder_; }
    std::string ApplicationFileName() const override { return "brindlepost"; }

private:
    struct Node {
        bool is_folder = false;
        bool readable = true;
        std::string text;
        std::string leads_to;  // of a link: the folder's native path
    };

    std::string Key(std::string_view path) const;
    /// Without links on the way.
    std::string Resolved(std::string key) const;
    bool LeadsBack(const std::string& link, const std::string& folder) const;
    const Node* Find(std::string_view path) const;
    Node* Find(std::string_view path);
    void AddFolders(const std::string& key);

    std::map<std::string, Node, std::less<>> nodes_;  // by native path
    std::vector<base::Volume> volumes_;
    mutable base::ShortPaths short_paths_;
    std::string application_folder_;
    mutable std::string silent_;
    std::string hangs_;
    ports::FileResult forced_result_ = ports::FileResult::Done;
};

}  // namespace fakes
