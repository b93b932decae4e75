// What the web subsystem asks of other subjects, answered by the rooms that know.
#pragma once

#include "controls/Form.h"
#include "controls/Menu.h"
#include "window/Desk.h"

namespace window {

class WebLinks final : public roles::Window,
                       public roles::Layout,
                       public roles::Highlights,
                       public roles::MediaKeys,
                       public roles::TrackLists,
                       public roles::MediaIntake,
                       public roles::History,
                       public roles::Start {
public:
    explicit WebLinks(Desk& desk) : desk_(desk) {}

    // roles::Window
    double Left() const override;
    double Top() const override;
    double Width() const override;
    controls::WindowState State() const override;
    void SetState(controls::WindowState state) override;
    void SetCaption(std::string_view caption) override;
    void Show() override;
    void SetEnabled(bool enabled) override;
    void Refresh() override;
    void PopupMenu(controls::Menu& menu) override;
    void ShowMusicPanel(bool shown) override;
    void BringMusicPanelToFront() override;

    // roles::Layout
    void Form_Resize() override;
    void PlaceBelowSplitter() override;
    void PlaceFavouritesPanel() override;

    // roles::Highlights
    void NoMouseOvers() override;

    // roles::MediaKeys
    void KeyDown(int key_code, int shift) override;

    // roles::TrackLists
    void Command1() override;
    void RefillIfEmpty() override;

    // roles::MediaIntake. Play list files are not read yet.
    void AddMediaFromCommand(std::string_view path) override;
    void AddPlayList(std::string_view path) override;
    void OfferToAddMedia() override;

    // roles::History
    void AddSiteToHistory(roles::HistoryKind kind, std::string_view text) override;
    void PopulateHistory(roles::HistoryKind kind) override;

    // roles::Start
    bool IsLoading() const override;
    void SetStage(std::string_view stage) override;

private:
    BrowserForm& Form() const { return desk_.windows.frmBrowser; }
    Rooms& Room() const { return desk_.rooms; }

    Desk& desk_;
};

}  // namespace window
