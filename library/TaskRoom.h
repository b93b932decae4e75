// The progress panel of the long library tasks, and their turns: only one of them runs at a time.
//
// A task yields, so the user may ask for another one meanwhile. They share the panel, its texts and hidden
// lists, so the other one has to wait or to be refused. While a task runs, its panel is in front of the pane
// and the pages, whatever comes to the front below it; a panel that a failed task left there loses that.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "controls/Event.h"
#include "library/LibraryControls.h"
#include "ports/EventLoop.h"
#include "roles/Highlights.h"

namespace library {

struct TaskTexts {
    std::string_view task;
    std::string_view found;    ///< beside the first counter
    std::string_view removed;  ///< beside the second one
};

class TaskRoom final {
public:
    TaskRoom(TaskPanelControls& controls, ports::EventLoop& loop, roles::Highlights& highlights);

    bool IsBusy() const { return busy_; }
    /// Ends the task that runs at its next step, with its panel, and drops those that wait.
    void Stop();
    /// The task that runs is to go on: neither it nor the program ends.
    bool MayGoOn() const { return !stopped_ && !loop_.IsEnding(); }
    /// Runs the task and those that came meanwhile, in turn; at once, or, while another one runs, after it.
    /// What waits at the end of the program is dropped.
    void Run(std::function<void()> task);

    /// The panel's texts, with both counters at 0.
    void SetTexts(const TaskTexts& texts);
    void ShowPanel();
    void HidePanel() { controls_.fraTask.SetVisible(false); }
    std::string Status() const { return controls_.lblStatus.Caption(); }
    void SetStatus(std::string_view status) { controls_.lblStatus.SetCaption(status); }
    void ShowRemoved(std::int64_t count);
    void ShowFound(std::int64_t count);
    /// The bar's way for what follows.
    void BeginSteps(std::size_t steps);
    /// Moves the bar on.
    void CountStep();
    /// Moves the bar on and yields; false when the task must end.
    bool EndStep();

private:
    TaskPanelControls& controls_;
    ports::EventLoop& loop_;
    std::vector<std::function<void()>> waiting_;
    bool busy_ = false;
    bool stopped_ = false;
    std::size_t steps_ = 0;
    std::size_t done_ = 0;
    controls::EventClaims claims_;
};

}  // namespace library
