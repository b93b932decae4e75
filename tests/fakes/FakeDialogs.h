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

struct FileQuestion {
    std::string title;
    std::string kind;
    std::vector<std::string> endings;
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

    std::vector<std::string> OpenFiles(std::string_view title, std::string_view kind,
                                       std::span<const std::string_view> endings) override {
        FileQuestions.push_back({std::string(title), std::string(kind), {endings.begin(), endings.end()}});
        if (Chosen.empty()) return {};
        std::vector<std::string> files = Chosen.front();
        Chosen.pop_front();
        return files;
    }

    /// What happens while a box is up.
    std::function<void()> OnBox;
    std::vector<ShownBox> Boxes;
    std::vector<ShownInput> Inputs;
    std::vector<FileQuestion> FileQuestions;
    /// Chosen files in turn; none (Cancel) when they run out.
    std::deque<std::vector<std::string>> Chosen;
    /// Answers in turn; Ok or No when they run out.
    std::deque<ports::BoxAnswer> Answers;
    /// Typed lines in turn; the empty text (Cancel) when they run out.
    std::deque<std::string> Typed;
};

}  // namespace fakes
