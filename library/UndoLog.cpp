#include "library/UndoLog.h"

#include "base/Number.h"
#include "base/TextLines.h"

namespace library {
namespace {

using base::AddLine;

constexpr std::string_view kPrefix = "undo-";
constexpr std::size_t kMostSteps = 20;
/// Digits of a step's number, so that names sort as numbers do.
constexpr int kDigits = 12;
constexpr std::string_view kFirstLine = "brindlepost undo 1";
constexpr std::string_view kSong = "song";
constexpr std::string_view kTwin = "twin";
constexpr std::string_view kPlayListRow = "list";

std::string NameAfter(const std::vector<std::string>& steps) {
    const std::int64_t last =
        steps.empty() ? 0 : base::WholeVal(std::string_view(steps.back()).substr(kPrefix.size()));
    return std::string(kPrefix).append(base::Padded(base::OneMore(last), kDigits));
}

std::vector<store::KeptRow>* RowsOfKind(RemovedRows& rows, std::string_view kind) {
    if (kind == kSong) return &rows.songs;
    if (kind == kTwin) return &rows.twins;
    return kind == kPlayListRow ? &rows.playlist_rows : nullptr;
}

/// Whatever a kill left of the last row was not removed yet.
std::optional<RemovedRows> RowsOfText(std::string_view text) {
    base::TextLines lines(text);
    lines.Expect(kFirstLine);
    if (!lines.IsSound()) return std::nullopt;
    RemovedRows rows;
    while (!lines.IsAtEnd()) {
        const std::string kind = lines.Text();
        store::KeptRow row{.place = lines.Number(), .values = {}};
        static_assert(store::tblSong::kFields.size() == store::tblPlayList::kFields.size());
        for (std::size_t i = 0; i < store::tblSong::kFields.size(); ++i)
            row.values.push_back(lines.Text());
        std::vector<store::KeptRow>* const kept = RowsOfKind(rows, kind);
        if (!lines.IsSound() || kept == nullptr) break;
        kept->push_back(std::move(row));
    }
    return rows;
}

}  // namespace

void UndoLog::KeepSong(UndoStep& step, const store::RecordSet& song) {
    Keep(step, kSong, store::tblSong::kFields, song);
}

void UndoLog::KeepTwin(UndoStep& step, const store::RecordSet& song) {
    Keep(step, kTwin, store::tblSong::kFields, song);
}

void UndoLog::KeepPlayListRow(UndoStep& step, const store::RecordSet& row) {
    Keep(step, kPlayListRow, store::tblPlayList::kFields, row);
}

template <class Fields>
void UndoLog::Keep(UndoStep& step, std::string_view kind, const Fields& fields, const store::RecordSet& row) {
    Open(step);
    std::string text;
    AddLine(text, kind);
    AddLine(text, row.Place());
    for (const store::Field& field : fields)
        AddLine(text, row.Text(field));
    texts_.Append(step.name_, text);
}

void UndoLog::Open(UndoStep& step) {
    if (!step.name_.empty()) return;
    std::vector<std::string> steps = texts_.Names(kPrefix);
    step.name_ = NameAfter(steps);
    for (std::size_t i = 0; i + kMostSteps <= steps.size(); ++i)
        texts_.Remove(steps[i]);
    std::string text;
    AddLine(text, kFirstLine);
    texts_.Append(step.name_, text);
}

std::optional<RemovedRows> UndoLog::LastStep() {
    std::vector<std::string> steps = texts_.Names(kPrefix);
    for (; !steps.empty(); steps.pop_back()) {
        std::optional<RemovedRows> rows = RowsOfText(texts_.Read(steps.back()).value_or(std::string()));
        if (rows) {
            rows->name = steps.back();
            return rows;
        }
        texts_.SetAside(steps.back());
    }
    return std::nullopt;
}

void UndoLog::Forget(const RemovedRows& step) {
    texts_.Remove(step.name);
}

}  // namespace library
