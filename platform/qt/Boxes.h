// Message boxes and input boxes in the skin.
#pragma once

#include <QDialog>
#include <QString>
#include <span>
#include <string>
#include <vector>

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
    /// The desktop's own dialog where the platform has one; begins in the folder of the last choice, the
    /// first time in that of the user's music.
    std::vector<std::string> OpenFiles(std::string_view title, std::string_view kind,
                                       std::span<const std::string_view> endings) override;

private:
    int Ask(QDialog& box);
    Loop& loop_;
    QString last_folder_;
};

}  // namespace qt
