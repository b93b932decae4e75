// What the library asks of its neighbours, answered by the rooms that know.
#pragma once

#include "window/Desk.h"

namespace window {

class LibraryLinks final : public library::ReloadSteps,
                           public library::MusicHistory,
                           public library::LibraryListener,
                           public library::MouseOvers,
                           public library::PlayListBeingBuilt,
                           public library::MainWindow {
public:
    explicit LibraryLinks(Desk& desk) : desk_(desk) {}

    // library::ReloadSteps
    void ShowLoadingStage(std::string_view caption) override;
    void LoadFavs() override;
    void AddMediaFromCommand(std::string_view path) override;

    // library::MusicHistory
    void PopulateHistory(std::string_view hist_type) override;

    // library::LibraryListener
    void OnTracksRefilled() override;
    void OnPlayListsListed() override;
    void OnRemoveKey() override;

    // library::MouseOvers
    void NoMouseOvers() override;

    // library::PlayListBeingBuilt
    void AddMatchedSong(std::string_view song_id, std::string_view artist, std::string_view title) override;

    // library::MainWindow
    void ShowMainWindow() override;
    void Command1() override;
    bool Include_Sub_Folders() const override;

private:
    Desk& desk_;
};

}  // namespace window
