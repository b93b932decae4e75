#include "library/TaskRoom.h"

#include <utility>

#include "base/Number.h"

namespace library {

TaskRoom::TaskRoom(TaskPanelControls& controls, ports::EventLoop& loop, roles::Highlights& highlights)
    : controls_(controls), loop_(loop) {
    const auto hide_overs = [&highlights] { highlights.NoMouseOvers(); };
    claims_.Claim(controls_.fraTask.MouseMove, hide_overs);
    claims_.Claim(controls_.imgTaskBG.MouseMove, hide_overs);
    claims_.Claim(controls_.fraTaskCenter.MouseMove, hide_overs);
}

void TaskRoom::Run(std::function<void()> task) {
    waiting_.push_back(std::move(task));
    if (busy_) return;
    busy_ = true;
    stopped_ = false;
    while (!waiting_.empty() && MayGoOn()) {
        const std::function<void()> next = std::move(waiting_.front());
        waiting_.erase(waiting_.begin());
        next();
    }
    waiting_.clear();
    busy_ = false;
    controls_.fraTask.KeepInFront(false);
}

void TaskRoom::Stop() {
    stopped_ = true;
    HidePanel();
}

void TaskRoom::SetTexts(const TaskTexts& texts) {
    controls_.lblTask.SetCaption(texts.task);
    controls_.lblFound.SetCaption(texts.found);
    controls_.lblDuplicatesRemoved.SetCaption(texts.removed);
    controls_.lblFoundNo.SetCaption("0");
    controls_.lblDuplicatesNoRemoved.SetCaption("0");
}

void TaskRoom::ShowPanel() {
    controls_.pbTask.SetValue(0);
    controls_.fraTask.SetVisible(true);
    controls_.fraTask.KeepInFront(true);
}

void TaskRoom::ShowFound(std::int64_t count) {
    controls_.lblFoundNo.SetCaption(base::ToText(count));
}

void TaskRoom::ShowRemoved(std::int64_t count) {
    controls_.lblDuplicatesNoRemoved.SetCaption(base::ToText(count));
}

void TaskRoom::BeginSteps(std::size_t steps) {
    steps_ = steps;
    done_ = 0;
}

void TaskRoom::CountStep() {
    ++done_;
    if (done_ <= steps_) controls_.pbTask.SetValue(static_cast<int>(done_ * 100 / steps_));
}

bool TaskRoom::EndStep() {
    CountStep();
    loop_.Yield();
    return MayGoOn();
}

}  // namespace library
