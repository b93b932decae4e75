// Kept texts in memory. A program that is killed leaves them.
#pragma once

#include <map>
#include <string>

#include "ports/KeptTexts.h"

namespace fakes {

class FakeKeptTexts final : public ports::KeptTexts {
public:
    std::optional<std::string> Read(std::string_view name) const override {
        const auto found = Texts.find(name);
        return found == Texts.end() ? std::nullopt : std::optional(found->second);
    }
    bool Write(std::string_view name, std::string_view text) override {
        if (DiskIsFull) return false;
        ++Writes;
        Texts[std::string(name)] = text;
        return true;
    }
    bool Append(std::string_view name, std::string_view text) override {
        if (DiskIsFull) return false;
        Texts[std::string(name)] += text;
        return true;
    }
    void Remove(std::string_view name) override {
        Texts.erase(std::string(name));
        Aside.erase(std::string(name));
    }
    void SetAside(std::string_view name) override {
        const auto found = Texts.find(name);
        if (found == Texts.end()) return;
        Aside[found->first] = found->second;
        Texts.erase(found);
    }
    std::vector<std::string> Names(std::string_view prefix) const override {
        std::vector<std::string> names;
        for (const auto& [name, text] : Texts) {
            if (name.starts_with(prefix)) names.push_back(name);
        }
        return names;
    }

    std::map<std::string, std::string, std::less<>> Texts;
    std::map<std::string, std::string, std::less<>> Aside;
    bool DiskIsFull = false;
    int Writes = 0;
};

}  // namespace fakes
