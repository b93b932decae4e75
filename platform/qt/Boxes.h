// Message boxes and input boxes in the skin.
#pragma once

#include <QDialog>
#include <QString>

#include "platform/qt/Loop.h"
#include "ports/Dialogs.h"

namespace qt {

class Boxes final : public ports::Dialogs {
public:
    explicit Boxes(Loop& loop) : loop_(loop) {}

    // ports::Dialogs
    ports::BoxAnswer MsgBox(std::string_view text, ports::BoxButtons buttons, std::string_view title,
                            ports::BoxIcon icon) override;
    std::string InputBox(std::string_view prompt, std::string_view title,
                         std::string_view default_text) override;

private:
    int Ask(QDialog& box);
    Loop& loop_;
};

}  // namespace qt
