#include "web/TabFinderRoom.h"

#include <algorithm>

#include "base/Text.h"
#include "controls/Arrange.h"
#include "controls/KeyCodes.h"

namespace web {

namespace {

using controls::Px;

constexpr double kRow = Px(24);
constexpr double kEdge = Px(8);
constexpr double kFinderWidth = Px(420);
constexpr double kBox = Px(28);
constexpr int kMostRows = 14;

std::vector<std::string> WordsOf(const std::string& wanted) {
    std::vector<std::string> words = base::Split(base::LCase(wanted), " ");
    std::erase_if(words, [](const std::string& word) { return word.empty(); });
    return words;
}

}  // namespace

TabFinderRoom::TabFinderRoom(TabFinderControls& controls, TabRoom& tabs, roles::Window& window,
                             roles::MediaKeys& keys)
    : controls_(controls), tabs_(tabs), window_(window), keys_(keys) {
    claims_.Claim(controls_.txtTabFinder.Change, [this] { txtTabFinder_Change(); });
    claims_.Claim(controls_.txtTabFinder.KeyDown,
                  [this](int key, int shift) { txtTabFinder_KeyDown(key, shift); });
    claims_.Claim(controls_.txtTabFinder.LostFocus, [this] { txtTabFinder_LostFocus(); });
    claims_.Claim(controls_.lstTabFinder.Click, [this] { lstTabFinder_Click(); });
    claims_.Claim(controls_.tmrTabFinder.Tick, [this] { tmrTabFinder_Tick(); });
}

void TabFinderRoom::Walk(int steps) {
    const std::vector<int> strip = tabs_.Strip();
    if (strip.empty()) return;
    const int count = static_cast<int>(strip.size());
    const auto in_front = std::find(strip.begin(), strip.end(), tabs_.InFront());
    const int place = in_front != strip.end() ? static_cast<int>(in_front - strip.begin()) : 0;
    controls_.txtTabFinder.SetVisible(false);
    tabs_.ShowMember(strip[static_cast<std::size_t>((place + steps + count) % count)]);
    Fill({});
    Show();
    controls_.tmrTabFinder.SetEnabled(true);
}

void TabFinderRoom::Find() {
    controls_.tmrTabFinder.SetEnabled(false);
    controls_.txtTabFinder.SetText("");
    controls_.txtTabFinder.SetVisible(true);
    Fill({});
    Show();
    controls_.txtTabFinder.SetFocus();
}

bool TabFinderRoom::IsFinding() const {
    return controls_.fraTabFinder.Visible() && controls_.txtTabFinder.Visible();
}

void TabFinderRoom::Fill(const std::string& wanted) {
    const std::vector<std::string> words = WordsOf(wanted);
    listed_.clear();
    controls_.lstTabFinder.Clear();
    int chosen = 0;
    for (const int index : tabs_.Strip()) {
        if (!Holds(index, words)) continue;
        if (index == tabs_.InFront()) chosen = static_cast<int>(listed_.size());
        listed_.push_back(index);
        controls_.lstTabFinder.AddItem(TitleOf(index));
    }
    at_work_ = true;
    if (!listed_.empty()) controls_.lstTabFinder.SetListIndex(words.empty() ? chosen : 0);
    at_work_ = false;
}

std::string TabFinderRoom::TitleOf(int index) const {
    if (index == 0) return "Music Player";
    const std::string title = tabs_.Page(index).LocationName();
    return title.empty() ? "New tab" : title;
}

bool TabFinderRoom::Holds(int index, const std::vector<std::string>& words) const {
    std::string text = TitleOf(index);
    if (index != 0) text.append("\n").append(tabs_.Page(index).LocationURL());
    const std::string lower = base::LCase(text);
    return std::all_of(words.begin(), words.end(),
                       [&lower](const std::string& word) { return base::Contains(lower, word); });
}

void TabFinderRoom::Show() {
    Place();
    controls_.fraTabFinder.SetVisible(true);
    controls_.fraTabFinder.KeepInFront(true);
}

void TabFinderRoom::Place() {
    const bool has_box = controls_.txtTabFinder.Visible();
    const int rows = std::clamp(static_cast<int>(listed_.size()), 1, kMostRows);
    const double list_top = has_box ? kEdge + kBox + kEdge : kEdge;
    const double list_height = rows * kRow + Px(2);
    const double inside = kFinderWidth - 2 * kEdge;
    controls_.txtTabFinder.Move(kEdge, kEdge, inside, kBox);
    controls_.lstTabFinder.Move(kEdge, list_top, inside, list_height);
    controls_.fraTabFinder.Move(std::max(0.0, (window_.Width() - kFinderWidth) / 2), kPageTop + Px(24),
                                kFinderWidth, list_top + list_height + kEdge);
}

void TabFinderRoom::Choose(int row) {
    if (row < 0 || row >= static_cast<int>(listed_.size())) return;
    const int index = listed_[static_cast<std::size_t>(row)];
    Close();
    tabs_.ShowMember(index);
}

bool TabFinderRoom::Dismiss() {
    if (!controls_.fraTabFinder.Visible()) return false;
    const bool had_keyboard = IsFinding();
    Close();
    if (had_keyboard) tabs_.FocusAddress();
    return true;
}

void TabFinderRoom::Close() {
    controls_.tmrTabFinder.SetEnabled(false);
    controls_.fraTabFinder.SetVisible(false);
}

void TabFinderRoom::lstTabFinder_Click() {
    if (!at_work_) Choose(controls_.lstTabFinder.ListIndex());
}

void TabFinderRoom::txtTabFinder_Change() {
    if (!IsFinding()) return;
    Fill(controls_.txtTabFinder.Text());
    Place();
}

void TabFinderRoom::txtTabFinder_KeyDown(int key_code, int shift) {
    const int row = controls_.lstTabFinder.ListIndex();
    const int rows = controls_.lstTabFinder.ListCount();
    if (shift == 0 && key_code == controls::kKeyEnter) {
        Choose(row);
    } else if (shift == 0 && rows > 0 && (key_code == controls::kKeyUp || key_code == controls::kKeyDown)) {
        at_work_ = true;
        controls_.lstTabFinder.SetListIndex((row + (key_code == controls::kKeyDown ? 1 : rows - 1)) % rows);
        at_work_ = false;
    } else {
        keys_.KeyDown(key_code, shift);
    }
}

void TabFinderRoom::txtTabFinder_LostFocus() {
    if (IsFinding()) Close();
}

void TabFinderRoom::tmrTabFinder_Tick() {
    Close();
}

}  // namespace web
