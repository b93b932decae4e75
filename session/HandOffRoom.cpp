#include "session/HandOffRoom.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/MediaKinds.h"
#include "base/Text.h"
#include "library/Naming.h"
#include "web/Addresses.h"

namespace session {
namespace {

constexpr std::string_view kReady = "Ready for command";
constexpr std::string_view kQuote = "\"";
/// What is between two quoted texts of a command line.
constexpr std::string_view kBetweenEntries = "\" \"";
constexpr std::string_view kShortFormMark = "~";
/// Entries of one command that are taken.
constexpr std::size_t kMostEntries = 1001;
/// Ticks of tmrOpenWith, a tenth of a second each, before the first file plays.
constexpr int kTicksToPlay = 10;
constexpr std::size_t kExtension = 4;
/// What the dialog of `mnuOpenMediaFile` offers: the kinds that can be played.
constexpr std::array<std::string_view, 12> kOfferedEndings{".mp3", ".wma", ".mpg", ".wav", ".wmv", ".mid",
                                                           ".mp4", ".m4a", ".mov", ".avi", ".vob", ".mpeg"};
/// What makes a text an address.
constexpr std::array<std::string_view, 8> kAddressMarks{".com",    ".uk",      ".net", ".org",
                                                        "http://", "https://", "www.", web::MakerSiteUrl};
/// Files that are pages. Desktops open them with the program that opens addresses.
constexpr std::array<std::string_view, 3> kPageKinds{"html", "htm", "xhtml"};

std::string WithoutQuotes(std::string_view text) {
    return base::Replace(text, kQuote, "");
}

std::string_view WithoutLast(std::string_view text, std::size_t count) {
    const std::size_t length = base::Len(text);
    return base::Left(text, length > count ? length - count : 0);
}

bool HasAddressMark(std::string_view text) {
    const std::string lower = base::LCase(text);
    return std::any_of(kAddressMarks.begin(), kAddressMarks.end(),
                       [&lower](std::string_view mark) { return base::Contains(lower, mark); });
}

/// A page in a file is entered as an address is: it is no media file.
bool IsPageFile(const std::string& text, const ports::Files& files) {
    return base::HasExtension(text, kPageKinds) && files.FileExists(text);
}

/// A command that is one playlist file, closed by a quote, or an address. A media file whose path has what
/// makes an address is one.
bool IsTextCommand(const std::string& command) {
    return base::IsPlayListFile(WithoutLast(command, 1)) || HasAddressMark(command);
}

/// The list of another player is one only where its file is: an address may end so, too.
bool IsForeignPlayList(const std::string& text, const ports::Files& files) {
    return base::IsForeignPlayListFile(text) && files.FileExists(text);
}

/// Among several, what is there as a file is no address: otherwise each file of a folder that is named after
/// a site would cut the one before it off.
bool IsTextAmongOthers(const std::string& text, const ports::Files& files) {
    return base::IsPlayListFile(text) || (HasAddressMark(text) && !files.FileExists(text));
}

}  // namespace

HandOffControls::HandOffControls() {
    cmdDummy.SetVisible(false);
    Text1.SetVisible(false);
    lstOpenWith.SetVisible(false);
}

void HandOffControls::PutInto(controls::Container& container) {
    container.Add(cmdDummy, Text1, lstOpenWith, tmrOpenWith, tmrWaiting);
}

std::vector<std::string> EntriesOf(std::string_view command) {
    return base::Split(command, kBetweenEntries);
}

HandOffRoom::HandOffRoom(HandOffControls& controls, HandOffMenu& menu, HandOffState state, HandOffRoles roles,
                         HandOffPorts ports, std::function<void()> bring_to_front)
    : controls_(controls),
      state_(state),
      roles_(roles),
      ports_(ports),
      bring_to_front_(std::move(bring_to_front)) {
    claims_.Claim(controls_.cmdDummy.Click, [this] { cmdDummy_Click(); });
    claims_.Claim(controls_.tmrOpenWith.Tick, [this] { tmrOpenWith_Tick(); });
    claims_.Claim(controls_.tmrWaiting.Tick, [this] { tmrWaiting_Tick(); });
    claims_.Claim(menu.mnuOpenMediaFile.Click, [this] { mnuOpenMediaFile_Click(); });
    ports_.instance.SetListener(this);
}

HandOffRoom::~HandOffRoom() {
    ports_.instance.SetListener(nullptr);
}

void HandOffRoom::Prepare() {
    controls_.cmdDummy.SetVisible(false);
    controls_.Text1.SetText("");
}

void HandOffRoom::OnBringToFront() {
    bring_to_front_();
}

// The caption may hold a command that is processed now, so the text does not go there yet.
void HandOffRoom::OnCommandText(std::string_view text) {
    arrived_ = text;
}

void HandOffRoom::OnTrigger() {
    waiting_.push_back(std::move(arrived_));
    arrived_.clear();
    TakeWaiting();
}

void HandOffRoom::mnuOpenMediaFile_Click() {
    OpenFiles(ports_.dialogs.OpenFiles("Open Media File", "Media files", kOfferedEndings));
}

void HandOffRoom::OpenFiles(const std::vector<std::string>& native_paths) {
    std::string command;
    for (const std::string& file : native_paths) {
        if (!command.empty()) command += ' ';
        command.append(kQuote).append(base::QuoteFree(ports_.files.FromNative(file))).append(kQuote);
    }
    if (command.empty()) return;
    waiting_.push_back(std::move(command));
    TakeWaiting();
}

void HandOffRoom::ForgetCommands() {
    ++users_gone_;
    waiting_.clear();
    texts_.clear();
    controls_.lstOpenWith.Clear();
    controls_.tmrOpenWith.SetEnabled(false);
    controls_.tmrWaiting.SetEnabled(false);
}

void HandOffRoom::tmrWaiting_Tick() {
    controls_.tmrWaiting.SetEnabled(false);
    TakeWaiting();
}

/// The main window is there, its lists are filled, and a user is logged in.
bool HandOffRoom::IsReady() const {
    const SessionState& session = state_.session;
    return session.LoggedIn && session.FirstLoadDone && !state_.frmActivate.Visible();
}

bool HandOffRoom::IsOver() const {
    return state_.session.IsOver() || ports_.events.IsEnding();
}

// A command that yields may bring the next one here; that one waits for its turn in this loop.
void HandOffRoom::TakeWaiting() {
    if (processing_) return;
    processing_ = true;
    if (!IsOver() && IsReady()) EnterTexts();
    while (!IsOver() && IsReady() && !waiting_.empty()) {
        const std::string command = std::move(waiting_.front());
        waiting_.pop_front();
        Deliver(command);
    }
    processing_ = false;
    WaitForMore();
}

void HandOffRoom::WaitForMore() {
    if (IsOver()) {
        waiting_.clear();
        texts_.clear();
    }
    controls_.tmrWaiting.SetEnabled(!waiting_.empty() || !texts_.empty());
}

void HandOffRoom::Deliver(std::string_view command) {
    controls_.cmdDummy.SetCaption(command);
    controls_.cmdDummy.Click.Raise();
}

void HandOffRoom::cmdDummy_Click() {
    const bool is_one_of_many = std::exchange(processing_, true);
    const std::string command = controls_.cmdDummy.Caption();
    ProcessCommand(command);
    controls_.cmdDummy.SetCaption(kReady);
    processing_ = is_one_of_many;
    if (!is_one_of_many) WaitForMore();
}

void HandOffRoom::ProcessCommand(const std::string& Command) {
    Log(Command);
    if (Command.empty() || Command == kReady) return;
    AddMediaFiles(MediaFilesOf(Command));
    if (!IsOver() && IsReady()) EnterTexts();
}

void HandOffRoom::Log(std::string_view command) {
    std::string log = controls_.Text1.Text();
    if (!log.empty()) log += "\r\n";
    controls_.Text1.SetText(log.append("Excuted with command: ").append(command));
}

/// The media files of a command. What is no media file is put to the texts to be entered.
std::deque<std::string> HandOffRoom::MediaFilesOf(const std::string& command) {
    const std::vector<std::string> entries = EntriesOf(command);
    std::deque<std::string> files;
    for (std::size_t i = 0; i < std::min(entries.size(), kMostEntries); ++i) {
        std::string text = WithoutQuotes(entries[i]);
        if (base::Trim(text).empty()) break;
        const bool is_text =
            IsForeignPlayList(text, ports_.files) || IsPageFile(text, ports_.files) ||
            (entries.size() == 1 ? IsTextCommand(command) : IsTextAmongOthers(text, ports_.files));
        (is_text ? texts_ : files).push_back(std::move(text));
    }
    return files;
}

void HandOffRoom::AddMediaFiles(const std::deque<std::string>& files) {
    if (files.empty()) return;
    // The files of the last commands have been played or cued; what comes now is opened by itself.
    if (!controls_.tmrOpenWith.Enabled()) controls_.lstOpenWith.Clear();
    const int users_gone = users_gone_;
    for (const std::string& file : files) {
        AddMediaFile(file);
        if (IsOver() || users_gone_ != users_gone) return;
    }
    open_ticks_ = 0;
    controls_.tmrOpenWith.SetEnabled(true);
    if (state_.session.FirstLoadDone) roles_.track_lists.Command1();
}

void HandOffRoom::AddMediaFile(const std::string& file) {
    const std::string path = base::Contains(file, kShortFormMark)
                                 ? library::ExpandLongPath(file, ports_.files, ports_.dialogs)
                                 : file;
    controls_.lstOpenWith.AddItem(path);
    roles_.cue.CueFile(path, WithoutLast(base::FileNameOf(path), kExtension));
    roles_.media.AddMediaFromCommand(path);
    ports_.events.Yield();
    state_.ListMaybeChanged = true;
}

// What is entered may yield, and bring more.
void HandOffRoom::EnterTexts() {
    while (!texts_.empty() && !IsOver()) {
        const std::string text = std::move(texts_.front());
        texts_.pop_front();
        roles_.address_row.SetTyped(text);
        roles_.opener.EnterAsWeb(text);
    }
}

// The files of a command that is processed now are not all there yet.
void HandOffRoom::tmrOpenWith_Tick() {
    if (processing_ || ++open_ticks_ < kTicksToPlay) return;
    open_ticks_ = 0;
    controls_.tmrOpenWith.SetEnabled(false);
    if (!IsOver() && controls_.lstOpenWith.ListCount() > 0) PlayFirst();
}

void HandOffRoom::PlayFirst() {
    controls_.lstOpenWith.SetListIndex(0);
    // A command that comes during the yield begins the list again.
    const std::string path(controls_.lstOpenWith.Text());
    const int users_gone = users_gone_;
    ports_.events.Yield();
    if (IsOver() || users_gone_ != users_gone) return;
    roles_.transport.PlaySong(path);
    roles_.cue.RemovePath(path);
}

}  // namespace session
