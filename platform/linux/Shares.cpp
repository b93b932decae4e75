#include "platform/linux/Shares.h"

#include <limits.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <utility>

#include "base/Text.h"
#include "platform/linux/FolderReader.h"
#include "platform/linux/NativeFiles.h"

namespace linux {
namespace {

constexpr int kMostLinks = 40;  // as many as the system follows

// The target of a link; nothing for what is none.
std::optional<std::string> TargetOf(const std::string& path) {
    std::array<char, PATH_MAX> buffer{};
    const ssize_t length = ::readlink(path.c_str(), buffer.data(), buffer.size());
    if (length <= 0) return std::nullopt;
    return std::string(buffer.data(), static_cast<std::size_t>(length));
}

// The names of a path that are still to be walked, the next one last.
void AddNames(std::vector<std::string>& names, const std::string& path) {
    const std::vector<std::string> added = base::Split(path, "/");
    names.insert(names.end(), added.rbegin(), added.rend());
}

// A change that nobody answered for may still be made.
ports::FileResult ResultIn(std::string_view answer) {
    if (answer.empty()) return ports::FileResult::Failed;
    return static_cast<ports::FileResult>(MessageReader(answer).Number());
}

}  // namespace

// Songs of one folder mostly come one after another, so the way to the last folder is kept for a moment.
std::optional<Share> Shares::Of(const std::string& native) const {
    if (volumes_.CurrentShares().empty() || !native.starts_with('/')) return std::nullopt;
    const std::size_t slash = native.rfind('/');
    const std::string folder = native.substr(0, slash);
    const auto now = FileProcess::Clock::now();
    const bool is_kept =
        folder == last_.folder && now - last_.when < kKept && last_.readings == volumes_.Readings();
    if (!is_kept) last_ = {folder, Walk({}, folder), now, volumes_.Readings()};
    if (last_.way.share) return last_.way.share;
    return Walk(last_.way.folder, native.substr(slash)).share;
}

// Name by name, and never beyond a share: a question about what is on it could be the one that hangs.
Shares::Way Shares::Walk(std::string from, const std::string& path) const {
    const std::vector<Share>& shares = volumes_.CurrentShares();
    std::vector<std::string> names;
    AddNames(names, path);
    std::string at = std::move(from);
    for (int links = 0; !names.empty() && links <= kMostLinks;) {
        const std::string name = std::move(names.back());
        names.pop_back();
        if (name.empty() || name == ".") continue;
        if (name == "..") {
            at.resize(at.empty() ? 0 : at.rfind('/'));
            continue;
        }
        std::string next = at;
        next.append("/").append(name);
        const auto is_mounted_here = [&next](const Share& share) { return share.mount_point == next; };
        const auto share = std::find_if(shares.rbegin(), shares.rend(), is_mounted_here);
        if (share != shares.rend()) return {*share, {}};
        const std::optional<std::string> target = TargetOf(next);
        if (!target) {
            at = std::move(next);
            continue;
        }
        ++links;
        if (target->starts_with('/')) at.clear();
        AddNames(names, *target);
    }
    return {std::nullopt, std::move(at)};
}

// One for each question that is under way: while one waits for a long listing, another asks for a song.
FileProcess& Shares::IdleProcess(const Share& share) {
    ForgetOldShares();
    Processes& processes = processes_[share.number];
    const auto is_idle = [](const auto& process) { return !process->IsAsking(); };
    const auto idle = std::find_if(processes.begin(), processes.end(), is_idle);
    if (idle != processes.end()) return **idle;
    return *processes.emplace_back(std::make_unique<FileProcess>(program_));
}

// What was unmounted and mounted again is another share, and owes nothing.
void Shares::ForgetOldShares() {
    const std::vector<Share>& shares = volumes_.CurrentShares();
    std::erase_if(processes_, [&shares](const auto& entry) {
        const auto is_same = [&entry](const Share& share) { return share.number == entry.first; };
        const auto is_asking = [](const auto& process) { return process->IsAsking(); };
        return std::none_of(shares.begin(), shares.end(), is_same) &&
               std::none_of(entry.second.begin(), entry.second.end(), is_asking);
    });
}

FileProcess::Outcome Shares::Ask(const Share& share, const Question& question,
                                 const ports::MayGoOn& may_go_on, std::string& answer) {
    if (!may_go_on && IsSilent(share)) return FileProcess::Outcome::Silent;
    MessageWriter words;
    words.Put(std::string_view(question.native));
    const std::string text = static_cast<char>(question.verb) + std::move(words).Bytes() + question.more;
    FileProcess& process = IdleProcess(share);
    const FileProcess::Outcome outcome = process.Ask(text, question.patience, may_go_on, answer);
    // A long listing that nobody wants any more would keep the next question waiting.
    if (outcome == FileProcess::Outcome::Cancelled && process.Silence() < kPatience) process.End();
    return outcome;
}

std::optional<int> Shares::Attributes(const Share& share, const std::string& native) {
    std::string answer;
    const auto outcome = Ask(share, {FileVerb::Attributes, native, {}}, {}, answer);
    if (outcome == FileProcess::Outcome::NoProcess) return AttributesAt(native);
    if (answer.empty()) return std::nullopt;
    return static_cast<int>(MessageReader(answer).Number());
}

std::optional<ports::FolderListing> Shares::List(const Share& share, const std::string& native,
                                                 const ports::MayGoOn& may_go_on) {
    std::string answer;
    const auto patience = may_go_on ? kPatienceWithAWayOut : kPatience;
    const auto outcome = Ask(share, {FileVerb::List, native, {}, patience}, may_go_on, answer);
    if (outcome == FileProcess::Outcome::NoProcess) return ReadFolder(native, may_go_on);
    if (answer.empty()) return std::nullopt;
    MessageReader words(answer);
    ports::FolderListing listing;
    listing.Files = words.Names();
    listing.SubFolders = words.Names();
    listing.Links = words.Names();
    listing.Identity.Volume = words.Number();
    listing.Identity.Number = words.Number();
    return listing;
}

ports::FileResult Shares::MakeFolder(const Share& share, const std::string& native) {
    std::string answer;
    const auto outcome = Ask(share, {FileVerb::MakeFolder, native, {}, kPatienceToWrite}, {}, answer);
    if (outcome == FileProcess::Outcome::NoProcess) return MakeFolderAt(native);
    return ResultIn(answer);
}

ports::FileResult Shares::Delete(const Share& share, const std::string& native) {
    std::string answer;
    const auto outcome = Ask(share, {FileVerb::Delete, native, {}, kPatienceToWrite}, {}, answer);
    if (outcome == FileProcess::Outcome::NoProcess) return DeleteFileAt(native);
    return ResultIn(answer);
}

std::optional<std::string> Shares::Read(const Share& share, const std::string& native, std::size_t limit) {
    MessageWriter words;
    words.Put(std::uint64_t{limit});
    std::string answer;
    const auto outcome = Ask(share, {FileVerb::Read, native, std::move(words).Bytes()}, {}, answer);
    if (outcome == FileProcess::Outcome::NoProcess) return ReadTextAt(native, limit);
    if (answer.empty()) return std::nullopt;
    return std::string(MessageReader(answer).Text());
}

ports::FileResult Shares::Write(const Share& share, const std::string& native, std::string_view bytes) {
    MessageWriter words;
    words.Put(bytes);
    std::string answer;
    const auto outcome =
        Ask(share, {FileVerb::Write, native, std::move(words).Bytes(), kPatienceToWrite}, {}, answer);
    if (outcome == FileProcess::Outcome::NoProcess) return WriteTextAt(native, bytes);
    return ResultIn(answer);
}

bool Shares::IsSilent(const Share& share) {
    const auto processes = processes_.find(share.number);
    if (processes == processes_.end()) return false;
    return std::any_of(processes->second.begin(), processes->second.end(),
                       [](const auto& process) { return process->Silence() >= kPatience; });
}

}  // namespace linux
