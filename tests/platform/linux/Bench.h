// A folder to play in, and rights that are not root's, for tests of the real system.
#pragma once

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace linux_tests {

/// A folder of the test's own, gone afterwards.
class PlayFolder {
public:
    PlayFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "brindlepost-test-XXXXXX").string();
        path_ = ::mkdtemp(pattern.data());
    }
    ~PlayFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    PlayFolder(const PlayFolder&) = delete;
    PlayFolder& operator=(const PlayFolder&) = delete;

    const std::string& Path() const { return path_; }
    std::string operator/(const std::string& name) const { return path_ + "/" + name; }
    void Write(const std::string& name, const std::string& text = {}) const {
        std::ofstream(*this / name, std::ios::binary) << text;
    }
    void Make(const std::string& name) const { std::filesystem::create_directories(*this / name); }
    void Link(const std::string& target, const std::string& name) const {
        if (::symlink(target.c_str(), (*this / name).c_str()) != 0) std::abort();
    }

private:
    std::string path_;
};

/// A mount table in which one folder is a share.
inline void WriteMountTable(const std::string& file, const std::string& mount_point) {
    std::ofstream(file) << "22 1 8:1 / / rw,relatime shared:1 - ext4 /dev/sda1 rw\n"
                        << "36 22 0:50 / " << mount_point << " rw,relatime - fuse.sshfs server:/music rw\n";
}

/// Takes root's rights over files away for as long as it lives; the folder is made the other account's own.
class Unprivileged {
public:
    explicit Unprivileged(const PlayFolder& folder) : is_root_(::geteuid() == 0) {
        if (!is_root_) return;
        constexpr uid_t kNobody = 65534;
        if (::chown(folder.Path().c_str(), kNobody, kNobody) != 0 || ::setegid(kNobody) != 0 ||
            ::seteuid(kNobody) != 0) {
            std::abort();
        }
    }
    ~Unprivileged() {
        if (is_root_ && (::seteuid(0) != 0 || ::setegid(0) != 0)) std::abort();
    }
    Unprivileged(const Unprivileged&) = delete;
    Unprivileged& operator=(const Unprivileged&) = delete;

private:
    bool is_root_;
};

}  // namespace linux_tests
