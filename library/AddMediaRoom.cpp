#include "library/AddMediaRoom.h"

#include "base/DrivePath.h"
#include "base/MediaKinds.h"
#include "base/Number.h"
#include "base/Text.h"
#include "library/AddMediaLayout.h"
#include "library/Naming.h"
#include "library/TableRows.h"
#include "store/Tables.h"

namespace library {
namespace {

constexpr std::string_view kNoneFound = "None Found";
constexpr std::string_view kGone = "The folder is not there any more.";
constexpr std::string_view kSilent = "The folder does not answer. Try again later.";
constexpr int kTicksBeforeSearch = 5;
constexpr std::size_t kRowsBetweenProgress = 100;

// A path as it is in a list of paths to read.
std::string OnOneLine(const std::string& shown_path) {
    return base::Replace(shown_path, "\n", " ");
}

}  // namespace

AddMediaRoom::AddMediaRoom(AddMediaForm& form, store::Stores& stores, std::string_view app_path,
                           const bool& Include_Sub_Folders, roles::Window& window, roles::TrackLists& lists,
                           AddMediaPorts ports)
    : form_(form),
      stores_(stores),
      app_path_(app_path),
      window_(window),
      lists_(lists),
      ports_(ports),
      walk_({form.lstPattern, form.lstFiles, form.lblTotalFiles, form.lblDirectory}, Include_Sub_Folders,
            ports.files, ports.dialogs, ports.loop) {
    ClaimWindow();
    ClaimPictures();
    ClaimBackgrounds();
}

void AddMediaRoom::ClaimWindow() {
    claims_.Claim(form_.frmAddMedia.Load, [this] { Form_Load(); });
    claims_.Claim(form_.frmAddMedia.Activate, [this] { Form_Activate(); });
    claims_.Claim(form_.frmAddMedia.Resize, [this] { Form_Resize(); });
    claims_.Claim(form_.frmAddMedia.Unload, [this](bool&) { Form_Unload(); });
    claims_.Claim(form_.frmAddMedia.KeyDown, [this](int key_code, int) { Form_KeyDown(key_code); });
    claims_.Claim(form_.Drive1.Change, [this] { Drive1_Change(); });
    claims_.Claim(form_.Dir1.Unreachable, [this](std::string_view folder) { Dir1_Unreachable(folder); });
    claims_.Claim(form_.cmdGetFiles.Click, [this] { cmdGetFiles_Click(); });
    claims_.Claim(form_.cmdCancel.Click, [this] { cmdCancel_Click(); });
    claims_.Claim(form_.tmrSearch.Tick, [this] { tmrSearch_Tick(); });
}

void AddMediaRoom::ClaimPictures() {
    ClaimTwin(form_.imgAdd, form_.imgAddOver);
    claims_.Claim(form_.imgAddOver.Click, [this] { imgAddOver_Click(); });
    ClaimTwin(form_.imgAddAll, form_.imgAddAllOver);
    claims_.Claim(form_.imgAddAllOver.Click, [this] { imgAddAllOver_Click(); });
    ClaimTwin(form_.imgBack, form_.imgBackOver);
    claims_.Claim(form_.imgBackOver.Click, [this] { imgBackOver_Click(); });
}

void AddMediaRoom::ClaimTwin(controls::Image& plain, controls::Image& over) {
    claims_.Claim(plain.MouseMove, [this, &over] {
        NoMouseOvers();
        over.SetVisible(true);
    });
}

void AddMediaRoom::ClaimBackgrounds() {
    for (controls::Control* background : std::initializer_list<controls::Control*>{
             &form_.frmAddMedia, &form_.imgBG, &form_.Drive1, &form_.Dir1, &form_.lstPattern, &form_.lstFiles,
             &form_.fraControls, &form_.fraSearch}) {
        claims_.Claim(background->MouseMove, [this] { NoMouseOvers(); });
    }
}

void AddMediaRoom::NoMouseOvers() {
    form_.imgAddOver.SetVisible(false);
    form_.imgAddAllOver.SetVisible(false);
    form_.imgBackOver.SetVisible(false);
}

void AddMediaRoom::Form_Load() {
    const std::string media_store = app_path_ + std::string(store::kMediaStore);
    form_.datFolder.SetDatabaseName(stores_, media_store);
    form_.datAdd.SetDatabaseName(stores_, media_store);
    form_.Dir1.SetPath(base::Left(form_.Dir1.Path(), 3));
}

// A volume may have been mounted or taken away since the dialog was last looked at.
void AddMediaRoom::Form_Activate() {
    form_.Drive1.ReadDrives();
}

void AddMediaRoom::Form_Resize() {
    if (form_.frmAddMedia.State() == controls::WindowState::Minimised) return;
    if (!KeepLeastSize(form_.frmAddMedia)) PlaceControls(form_);
}

void AddMediaRoom::Form_Unload() {
    StopTask();
    NoMouseOvers();
}

void AddMediaRoom::Drive1_Change() {
    const std::string drive = form_.Drive1.Drive();
    form_.lblNotice.SetCaption("");
    if (form_.Dir1.SetPath(drive + "\\")) return;
    form_.Drive1.ReadDrives();
    form_.Drive1.SetDrive(form_.Dir1.Path());
    const bool is_silent = ports_.files.IsSilent(drive + "\\");
    form_.lblNotice.SetCaption("The drive " + drive +
                               (is_silent ? " does not answer." : " can not be read."));
}

void AddMediaRoom::Dir1_Unreachable(std::string_view folder) {
    form_.lblNotice.SetCaption(ports_.files.IsSilent(folder) ? kSilent : kGone);
}

void AddMediaRoom::Form_KeyDown(int key_code) {
    if (key_code == controls::kKeyEscape) imgBackOver_Click();
}

void AddMediaRoom::cmdGetFiles_Click() {
    if (task_ != Task::None) return;
    BeginTask(Task::Searching, "SEARCHING");
    form_.lblDirectory.SetCaption("");
    form_.lstFiles.Clear();
    form_.lblTotalFiles.SetCaption("0");
    ticks_ = 0;
    form_.tmrSearch.SetEnabled(true);
}

void AddMediaRoom::tmrSearch_Tick() {
    ++ticks_;
    if (ticks_ < kTicksBeforeSearch) return;
    form_.tmrSearch.SetEnabled(false);
    const std::string folder = form_.Dir1.Path();
    walk_.Search(folder);
    if (ports_.loop.IsEnding()) return;
    ShowResult(folder);
    EndTask();
}

void AddMediaRoom::ShowResult(const std::string& folder) {
    form_.lblTotalFiles.SetCaption(base::ToText(form_.lstFiles.ListCount()));
    if (form_.lstFiles.ListCount() == 0) form_.lstFiles.AddItem(kNoneFound);
    form_.lblNotice.SetCaption(NoticeOfSearch(folder));
}

std::string AddMediaRoom::NoticeOfSearch(const std::string& folder) const {
    if (walk_.WasCancelled()) return "The search was stopped. There may be more files.";
    if (!ports_.files.IsFolder(folder)) return std::string(ports_.files.IsSilent(folder) ? kSilent : kGone);
    const int unreadable = walk_.UnreadableFolders();
    if (unreadable == 0) return {};
    return base::ToText(unreadable) + (unreadable == 1 ? " folder" : " folders") + " could not be read.";
}

void AddMediaRoom::BeginTask(Task task, std::string_view heading) {
    task_ = task;
    stopped_ = false;
    form_.lblSearch.SetCaption(heading);
    form_.lblNotice.SetCaption("");
    form_.lblProgress.SetCaption("");
    form_.lblDirectory.SetVisible(task == Task::Searching);
    form_.lblProgress.SetVisible(task == Task::Adding);
    form_.pbProgress.SetVisible(task == Task::Adding);
    form_.fraSearch.SetVisible(true);
    form_.fraSearch.BringToFront();
}

void AddMediaRoom::EndTask() {
    task_ = Task::None;
    form_.fraSearch.SetVisible(false);
}

void AddMediaRoom::StopTask() {
    stopped_ = true;
    walk_.Cancel();
    if (!form_.tmrSearch.Enabled()) return;
    // The walk has not begun, so the task ends here.
    form_.tmrSearch.SetEnabled(false);
    EndTask();
}

void AddMediaRoom::cmdCancel_Click() {
    StopTask();
}

void AddMediaRoom::imgBackOver_Click() {
    StopTask();
    NoMouseOvers();
    form_.frmAddMedia.Hide();
    window_.Show();
}

void AddMediaRoom::imgAddAllOver_Click() {
    if (task_ != Task::None) return;
    if (form_.lstFiles.ListCount() == 0 || form_.lstFiles.List(0) == kNoneFound) return;
    AddFiles(FilesFound());
}

// The list may change while its files are added.
std::vector<std::string> AddMediaRoom::FilesFound() const {
    std::vector<std::string> paths;
    paths.reserve(static_cast<std::size_t>(form_.lstFiles.ListCount()));
    for (int row = 0; row < form_.lstFiles.ListCount(); ++row)
        paths.emplace_back(form_.lstFiles.List(row));
    return paths;
}

void AddMediaRoom::imgAddOver_Click() {
    if (task_ != Task::None) return;
    const std::string path = ChosenPath();
    if (!path.empty()) AddFiles({path});
}

// The selected file, or the one that the user names; empty when there is none to add.
std::string AddMediaRoom::ChosenPath() {
    std::string path(form_.lstFiles.Text());
    if (!path.empty()) return base::IsScanFile(path) ? path : std::string();
    path =
        ports_.files.FromNative(ports_.dialogs.InputBox("What is the path of the song you would like to add?",
                                                        "Adding Media", base::Left(form_.Dir1.Path(), 3)));
    return FileExists(ports_.files, path) && base::IsScanFile(path) ? path : std::string();
}

void AddMediaRoom::AddFiles(const std::vector<std::string>& paths) {
    std::string rejected;
    BeginTask(Task::Adding, "ADDING TO LIBRARY");
    AddEach(paths, rejected);
    if (ports_.loop.IsEnding()) return;
    EndTask();
    ShowRejected(rejected);
    // A file that is opened from outside loads the dialog again, unseen.
    if (form_.frmAddMedia.Visible()) window_.Show();
    lists_.Command1();
    NoMouseOvers();
    form_.frmAddMedia.Hide();
}

void AddMediaRoom::AddEach(const std::vector<std::string>& paths, std::string& rejected) {
    for (std::size_t i = 0; i < paths.size() && !IsStopped(); ++i) {
        if (i % kRowsBetweenProgress == 0) ShowProgress(i, paths.size());
        if (!base::IsScanFile(paths[i])) continue;
        AddByName(paths[i], rejected);
        ports_.loop.Yield();
    }
}

void AddMediaRoom::AddByName(std::string_view path, std::string& rejected) {
    const SongName name = SongNameFromPath(path);
    form_.Label1.SetCaption(name.artist);
    form_.Label2.SetCaption(name.title);
    addfile(path, form_.Label1.Caption(), form_.Label2.Caption(), rejected);
}

void AddMediaRoom::addfile(std::string_view path, std::string_view artist, std::string_view title,
                           std::string& rejected) {
    form_.frmAddMedia.LoadWindow();
    const auto name = CleanSongName(path, {std::string(artist), std::string(title)});
    if (!name || !form_.datAdd.Open(store::kAllSongs)) return;
    store::RecordSet& songs = form_.datAdd.Recordset();
    if (!AddNewWithKey(songs, store::tblSong::SongID, form_.lblEntryCount)) return;
    if (!FitsLibrary(path, *name)) {
        rejected.append(path).append("\r\n");
        songs.CancelUpdate();
        return;
    }
    songs.Set(store::tblSong::artist, base::Trim(name->artist));
    songs.Set(store::tblSong::title, base::Trim(name->title));
    songs.Set(store::tblSong::FilePath, base::Trim(path));
    songs.Update();
}

void AddMediaRoom::ShowProgress(std::size_t added, std::size_t total) {
    form_.lblProgress.SetCaption(base::ToText(static_cast<std::int64_t>(added)) + " of " +
                                 base::ToText(static_cast<std::int64_t>(total)) + " files");
    form_.pbProgress.SetValue(static_cast<int>(added * 100 / total));
}

void AddMediaRoom::ShowRejected(const std::string& rejected) {
    if (rejected.empty()) return;
    std::string text = "The following files could not be added because of long filenames\r\n";
    for (const std::string& path : base::Split(rejected, "\r\n"))
        if (!path.empty()) text += OnOneLine(ports_.files.DisplayPath(path)) + "\r\n";
    ports_.dialogs.MsgBox(text);
}

}  // namespace library
