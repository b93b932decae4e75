// What the library asks of its neighbours, answered by the rooms that know.
#pragma once

#include "window/Desk.h"

namespace window {

class LibraryLinks final : public roles::Start,
                           public roles::Favourites,
                           public roles::History,
                           public roles::Highlights {
public:
    explicit LibraryLinks(Desk& desk) : desk_(desk) {}

    // roles::Start
    bool IsLoading() const override;
    void SetStage(std::string_view stage) override;

    // roles::Favourites
    void LoadFavs() override;
    void SettleAtStart() override;
    bool IsPanelClosed() const override;
    void TogglePanel() override;

    // roles::History
    void AddSiteToHistory(roles::HistoryKind kind, std::string_view text) override;
    void PopulateHistory(roles::HistoryKind kind) override;

    // roles::Highlights
    void NoMouseOvers() override;

private:
    Desk& desk_;
};

}  // namespace window
