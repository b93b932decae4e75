// Kept texts as files of one folder, which only its owner may look into.
//
// The folder is made when the first text is written.
#pragma once

#include <string>

#include "ports/KeptTexts.h"

namespace linux {

class KeptFiles final : public ports::KeptTexts {
public:
    /// A native path. Empty: nothing can be kept.
    explicit KeptFiles(std::string folder) : folder_(std::move(folder)) {}

    std::optional<std::string> Read(std::string_view name) const override;
    bool Write(std::string_view name, std::string_view text) override;
    bool Append(std::string_view name, std::string_view text) override;
    void Remove(std::string_view name) override;
    void SetAside(std::string_view name) override;
    std::vector<std::string> Names(std::string_view prefix) const override;

    /// The folder of the program whose stores lie in `stores_folder`.
    static std::string FolderOf(const std::string& data_folder, const std::string& stores_folder);

private:
    std::string PathOf(std::string_view name) const;
    bool MakeFolder() const;

    std::string folder_;
};

}  // namespace linux
