#include "RoomsPage.h"

#include <cxxabi.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <typeinfo>

#include "WindowWalk.h"
#include "base/Text.h"

namespace rooms_page {
namespace {

using Names = std::vector<std::string>;
using Address = const char*;

constexpr std::string_view kHead = R"(# Rooms

Which room owns a control, and what it listens to there. The group is the struct that the control is a member of; what a
room may touch besides its group is what its constructor takes (`folder/<Room>.h`). The program `print_rooms` walks the
live windows and prints this page; `tests/window/TestRooms.cpp` compares it, and fails on a control of no group and on a
room that is not there. Of a control array the row tells what a loaded member does. After a change:

    cmake --build --preset debug --target print_rooms && build/debug/tests/window/print_rooms --write

* "menu tree": an entry that only opens others, or a separator; `window/MenuTree.cpp` makes the tree.
* The player reads `lstTracks` and `lstMaybe` of the library and answers the double click there. Where a control has two
  rooms, each listens to other events of it.
* A drive list answers its own click and a folder list its own double click; the room listens to what came of it.
* Place and size of everything in `frmBrowser` belong to `window/BrowserLayout`, but for the lists that open over a page
  (`lstSuggestions`, `fraTabFinder`), which their rooms place; events of the windows themselves are answered by
  `StartUpRoom` (load), `SessionRoom` (unload, activation, keys), `ViewRoom` (resize) and `MainWindow` (end, key preview).
)";

struct Group {
    std::string name;
    std::string rooms;
    Address begin;
    std::size_t size;

    bool Contains(const void* member) const {
        const std::less<> before;
        const auto at = static_cast<Address>(member);
        return !before(at, begin) && before(at, begin + size);
    }
};

/// The type's name without its namespace.
std::string NameOf(const std::type_info& type) {
    const std::unique_ptr<char, decltype(&std::free)> whole(
        abi::__cxa_demangle(type.name(), nullptr, nullptr, nullptr), &std::free);
    const std::string name = whole.get();
    return name.substr(name.rfind(':') + 1);
}

/// `T` is said where the object is several groups at once.
template <class T>
Group Of(const std::type_identity_t<T>& group, std::string_view rooms) {
    return {NameOf(typeid(T)), std::string(rooms), reinterpret_cast<Address>(&group), sizeof(T)};
}

template <class T>
Group With(const T& group, std::string_view rooms) {
    return Of<T>(group, rooms);
}

/// A control that has another room than its group, or all that is in a frame.
struct Exception {
    const controls::Control* control;
    std::string rooms;
    bool and_what_is_in_it = false;
};

struct Section {
    const controls::Form* window;
    std::vector<Group> groups;
    std::vector<const store::DataSource*> data;
    std::vector<Exception> exceptions;
};

void AddLibraryGroups(const library::LibraryControls& library, std::vector<Group>& into) {
    into.insert(into.end(), {With(library.sources, "LibraryListsRoom"),
                             With(library.lists, "LibraryListsRoom"), With(library.playlists, "PlayListRoom"),
                             With(library.search, "SearchRoom"), With(library.opened, "OpenedMediaRoom"),
                             Of<library::TaskPanelControls>(library.task, "TaskRoom"),
                             Of<library::CleanUpControls>(library.task, "CleanUpRoom"),
                             With(library.track_import, "PlayListImportRoom")});
}

void AddPlayerGroups(const player::PlayerControls& player, std::vector<Group>& into) {
    into.insert(into.end(),
                {Of<player::PlayButtonControls>(player.transport, "PlayButtonsRoom"),
                 Of<player::PlayModeControls>(player.transport, "PlayModeRoom"),
                 Of<player::TitleControls>(player.transport, "TitleRoom"),
                 Of<player::ProgressControls>(player.transport, "TransportRoom"),
                 Of<player::PanelControls>(player.transport, "TransportRoom"),
                 Of<player::FadeControls>(player.levels, "FadeRoom"),
                 Of<player::VolumeControls>(player.levels, "VolumeRoom"),
                 Of<player::SpeedControls>(player.levels, "SpeedRoom"),
                 Of<player::PanningControls>(player.levels, "PanningRoom"),
                 Of<player::PlayOrderControls>(player.queue, "PlayOrder"),
                 Of<player::CueControls>(player.queue, "QueueRoom"), With(player.splitter, "SplitterRoom"),
                 With(player.resume, "ResumeRoom"), With(player.video, "VideoRoom")});
}

void AddWebGroups(const web::WebControls& web, std::vector<Group>& into) {
    into.insert(into.end(), {With(web.tabs, "TabRoom"), With(web.address, "AddressRoom"),
                             With(web.completion, "CompletionRoom"), With(web.finder, "TabFinderRoom"),
                             With(web.navigation, "BrowserEventsRoom"), With(web.refresh, "RefreshRoom"),
                             With(web.help, "WebCommandsRoom")});
}

void AddMenuGroups(const window::WindowMenu& menus, std::vector<Group>& into) {
    into.insert(into.end(), {Of<player::PlayButtonMenu>(menus, "PlayButtonsRoom"),
                             Of<player::PlayModeMenu>(menus, "PlayModeRoom"),
                             Of<player::CueMenu>(menus, "QueueRoom"),
                             Of<player::FadeMenu>(menus, "FadeRoom"),
                             Of<player::VolumeMenu>(menus, "VolumeRoom"),
                             Of<player::SpeedMenu>(menus, "SpeedRoom"),
                             Of<player::PanningMenu>(menus, "PanningRoom"),
                             Of<player::VisualMenu>(menus, "VisualisationRoom"),
                             Of<player::VideoMenu>(menus, "VideoRoom"),
                             Of<player::SpeakerTestMenu>(menus, "SpeakerTestRoom"),
                             Of<web::TabMenu>(menus, "TabRoom"),
                             Of<web::NavigationMenu>(menus, "BrowserEventsRoom"),
                             Of<web::RefreshMenu>(menus, "RefreshRoom"),
                             Of<web::WebCommandsMenu>(menus, "WebCommandsRoom"),
                             Of<library::PlayListMenu>(menus, "PlayListRoom"),
                             Of<library::SearchMenu>(menus, "SearchRoom"),
                             Of<library::CleanUpMenu>(menus, "CleanUpRoom"),
                             Of<library::OpenedMediaMenu>(menus, "OpenedMediaRoom"),
                             Of<places::FavouritesMenu>(menus, "FavouritesRoom"),
                             Of<places::HistoryMenu>(menus, "HistoryRoom"),
                             Of<session::SessionMenu>(menus, "SessionRoom"),
                             Of<session::PreferencesMenu>(menus, "PreferencesRoom"),
                             Of<session::HandOffMenu>(menus, "HandOffRoom"),
                             Of<window::ViewMenu>(menus, "ViewRoom"),
                             Of<window::AboutMenu>(menus, "AboutRoom"),
                             Of<window::OpeningMenu>(menus, kMenuTree),
                             Of<window::SeparatorMenu>(menus, kMenuTree)});
}

Section BrowserSection(const window::Windows& windows) {
    const window::BrowserForm& window = windows.frmBrowser;
    Section section{&window, {With(window, "StartUpRoom, SessionRoom, ViewRoom, MainWindow")}, {}, {}};
    AddLibraryGroups(window.library, section.groups);
    AddPlayerGroups(window.player, section.groups);
    AddWebGroups(window.web, section.groups);
    section.groups.insert(section.groups.end(),
                          {With(window.hand_off, "HandOffRoom"), With(window.favourites, "FavouritesRoom"),
                           With(windows.history, "HistoryRoom"), With(windows.start_up, "StartUpRoom"),
                           With(windows.trouble, "StoreTroubleRoom"), With(window.chrome, "SkinRoom")});
    AddMenuGroups(window.menus, section.groups);
    section.data = {&window.library.sources.datSong, &window.library.sources.datPlayList,
                    &window.favourites.datFav, &windows.history.datHistory};
    section.exceptions = {
        {&window.library.lists.lstTracks, "LibraryListsRoom, MediaDropRoom, PlayButtonsRoom"},
        {&window.library.lists.lstPlayLists, "LibraryListsRoom, MediaDropRoom"},
        {&window.library.search.cmdAddToLibrary, "OpenedMediaRoom"},
        {&window.web.tabs.BrowserBG, "BrowserEventsRoom"},
        {&window.menus.mnuTab, kMenuTree},
        {&window.menus.mnuMusicPlayer, kMenuTree},
        {&window.menus.mnuHelp, kMenuTree},
        {&window.menus.mnuSep11, kMenuTree},
        {&window.menus.mnuCrossfade, kMenuTree}};
    for (int i = 0; i < window.web.tabs.Browser.Count(); ++i)
        section.exceptions.push_back({&window.web.tabs.Browser(i), "BrowserEventsRoom"});
    return section;
}

std::vector<Section> SectionsOf(const window::Windows& windows) {
    return {
        BrowserSection(windows),
        {&windows.activate.frmActivate, {With(windows.activate, "ActivateRoom")}, {}, {}},
        {&windows.login.frmLogin,
         {With(windows.login, "LoginRoom")},
         {&windows.login.datLogin, &windows.login.datHistory},
         {{&windows.login.cmdNew, "NewUserRoom"},
          {&windows.login.fraNew, "NewUserRoom", true},
          {&windows.login.fraSetup, "NewUserRoom", true},
          {&windows.login.last_run.fraLastRun, "LastRunRoom", true}}},
        {&windows.add.frmAdd, {With(windows.add, "AddFavouriteRoom")}, {}, {}},
        {&windows.add_media.frmAddMedia,
         {With(windows.add_media, "AddMediaRoom")},
         {&windows.add_media.datAdd, &windows.add_media.datFolder},
         {}},
        {&windows.frmVideo,
         {With(windows.frmVideo, "VideoRoom")},
         {},
         {{&windows.frmVideo, "VideoRoom, VisualisationRoom"},
          {&windows.frmVideo.tmrVisual, "VisualisationRoom"}}},
        {&windows.frmSpeakerTest, {With(windows.frmSpeakerTest, "SpeakerTestRoom")}, {}, {}},
        {&windows.info.frmInfo,
         {With(windows.info, "PreferencesRoom"), With(windows.info.options, "SettingsRoom, PreferencesRoom"),
          With(windows.info.maintenance, "MaintenanceRoom"), With(windows.info.back_up, "BackUpRoom")},
         {&windows.info.datHistory, &windows.info.datSong, &windows.info.datPlayList,
          &windows.info.datFolder},
         {}},
        {&windows.about.frmAbout, {With(windows.about, "AboutRoom")}, {}, {}},
    };
}

/// The smallest group with that member; past the last when there is none.
std::size_t GroupWith(const std::vector<Group>& groups, const void* member) {
    std::size_t smallest = groups.size();
    for (std::size_t i = 0; i < groups.size(); ++i) {
        const bool smaller = smallest == groups.size() || groups[i].size < groups[smallest].size;
        if (groups[i].Contains(member) && smaller) smallest = i;
    }
    return smallest;
}

/// The members of an array lie outside of their group; all arrays are those of the tabs.
std::size_t GroupOf(const std::vector<Group>& groups, const controls::Control& control) {
    if (control.Index() < 0) return GroupWith(groups, &control);
    const auto tabs = std::find_if(groups.begin(), groups.end(),
                                   [](const Group& group) { return group.name == "TabControls"; });
    return static_cast<std::size_t>(tabs - groups.begin());
}

std::optional<std::string> ExceptionOf(const Section& section, const controls::Control& control) {
    for (const Exception& one : section.exceptions) {
        if (one.control == &control) return one.rooms;
        if (!one.and_what_is_in_it) continue;
        for (const controls::Control* around = control.Parent(); around != nullptr; around = around->Parent())
            if (around == one.control) return one.rooms;
    }
    return {};
}

Names Listed(const std::string& text) {
    Names names;
    for (const std::string& name : base::Split(text, ","))
        if (!base::Trim(name).empty()) names.emplace_back(base::Trim(name));
    return names;
}

std::string Joined(const Names& names) {
    std::string text;
    for (const std::string& name : names)
        text += (text.empty() ? "" : ", ") + name;
    return text;
}

/// The control of a name once; of an array the last member.
std::vector<const controls::Control*> OneOfAName(const controls::Form& window) {
    std::vector<const controls::Control*> controls;
    std::map<std::string, std::size_t> arrays;
    for (const controls::Control* control : window_tests::ControlsOf(window)) {
        if (control->Index() < 0) {
            controls.push_back(control);
            continue;
        }
        const auto [at, is_new] = arrays.emplace(control->Name(), controls.size());
        if (is_new) {
            controls.push_back(control);
        } else if (control->Index() > controls[at->second]->Index()) {
            controls[at->second] = control;
        }
    }
    return controls;
}

struct PlacedRow {
    std::size_t group;
    Address address;
    Row row;
};

PlacedRow RowOf(const Section& section, std::size_t group, const void* member, const std::string& name) {
    const bool known = group < section.groups.size();
    return {group,
            static_cast<Address>(member),
            {name,
             known ? section.groups[group].name : "",
             known ? Listed(section.groups[group].rooms) : Names{},
             {}}};
}

/// Group after group, the controls of a group in the order of its struct.
Table TableOf(const Section& section) {
    std::vector<PlacedRow> placed;
    for (const controls::Control* control : OneOfAName(*section.window)) {
        PlacedRow one = RowOf(section, GroupOf(section.groups, *control), control, control->Name());
        // The heap has no order that stays.
        if (control->Index() >= 0) one.address = nullptr;
        if (const auto rooms = ExceptionOf(section, *control)) one.row.rooms = Listed(*rooms);
        one.row.events = window_tests::ClaimedEvents(*control);
        placed.push_back(std::move(one));
    }
    for (const store::DataSource* data : section.data)
        placed.push_back(RowOf(section, GroupWith(section.groups, data), data, data->Name()));
    std::stable_sort(placed.begin(), placed.end(), [](const PlacedRow& a, const PlacedRow& b) {
        if (a.group != b.group) return a.group < b.group;
        return std::less<>()(a.address, b.address);
    });
    Table table{section.window->Name(), {}};
    for (PlacedRow& one : placed)
        table.rows.push_back(std::move(one.row));
    return table;
}

}  // namespace

std::vector<Table> TablesOf(window::Windows& windows) {
    std::vector<Table> tables;
    for (const Section& section : SectionsOf(windows))
        tables.push_back(TableOf(section));
    return tables;
}

std::string PageOf(const std::vector<Table>& tables) {
    std::string page(kHead);
    for (const Table& table : tables) {
        page += "\n## " + table.window +
                "\n\n| control | group | room | listens to |\n| --- | --- | --- | --- |\n";
        for (const Row& row : table.rows) {
            page += "| `" + row.control + "` | " + row.group + " | " + Joined(row.rooms) + " | " +
                    Joined(row.events) + " |\n";
        }
    }
    return page;
}

RunningProgram::RunningProgram() {
    computer.AddUser("Ann", "pw");
    program.StartAndLogIn("Ann", "pw");
    program.GoTo("example.org");
}

}  // namespace rooms_page
