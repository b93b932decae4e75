// Modal boxes: the user must answer. Other windows keep painting and timers keep running meanwhile.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ports {

enum class BoxButtons { Ok, YesNo };
enum class BoxIcon { None, Critical, Information };
enum class BoxAnswer { Ok, Yes, No };

class Dialogs {
public:
    virtual ~Dialogs() = default;
    /// Shows a box with the text and title; line breaks are CR LF or LF. Closing it answers Ok, or No where
    /// there is a No. An empty title becomes the program's name.
    virtual BoxAnswer MsgBox(std::string_view text, BoxButtons buttons = BoxButtons::Ok,
                             std::string_view title = {}, BoxIcon icon = BoxIcon::None) = 0;
    /// Asks for one line of text. Cancel gives the empty text.
    virtual std::string InputBox(std::string_view prompt, std::string_view title,
                                 std::string_view default_text = {}) = 0;
    /// Asks for files that are there, any number, as native paths; none when cancelled. Offers those that end
    /// in one of the `endings`, in upper or lower case, under the name `kind`, and all files.
    virtual std::vector<std::string> OpenFiles(std::string_view title, std::string_view kind,
                                               std::span<const std::string_view> endings) = 0;
};

}  // namespace ports
