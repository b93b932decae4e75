// Boxes that answer as the test has set, and remember what they showed.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "ports/Dialogs.h"

namespace fakes {

struct ShownBox {
    std::string text;
    std::string title;
    ports::BoxButtons buttons = ports::BoxButtons::Ok;
    ports::BoxIcon icon = ports::BoxIcon::None;
};

struct ShownInput {
    std::string prompt;
    std::string title;
    std::string default_text;
};

class FakeDialogs final : public ports::Dialogs {
public:
    ports::BoxAnswer MsgBox(std::string_view text, ports::BoxButtons buttons, std::string_view title,
                            ports::BoxIcon icon) override {
        Boxes.push_back({std::string(text), std::string(title), buttons, icon});
        if (OnBox) OnBox();
        if (Answers.empty())
            return buttons == ports::BoxButtons::Ok ? ports::BoxAnswer::Ok : ports::BoxAnswer::No;
        const ports::BoxAnswer answer = Answers.front();
        Answers.pop_front();
        return answer;
    }
    std::string InputBox(std::string_view prompt, std::string_view title,
                         std::string_view default_text) override {
        Inputs.push_back({std::string(prompt), std::string(title), std::string(default_text)});
        if (Typed.empty()) return {};
        std::string typed = Typed.front();
        Typed.pop_front();
        return typed;
    }

    /// What happens while a box is up.
    std::function<void()> OnBox;
    std::vector<ShownBox> Boxes;
    std::vector<ShownInput> Inputs;
    /// Answers in turn; Ok or No when they run out.
    std::deque<ports::BoxAnswer> Answers;
    /// Typed lines in turn; the empty text (Cancel) when they run out.
    std::deque<std::string> Typed;
};

}  // namespace fakes
