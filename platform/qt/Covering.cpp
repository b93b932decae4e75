#include "platform/qt/Covering.h"

#include <algorithm>
#include <vector>

#include "controls/WebBrowser.h"

namespace qt {
namespace {

using controls::Control;
using controls::Kind;

bool LiesOver(const Control& upper, const Control& lower) {
    return upper.Left() <= lower.Left() && upper.Top() <= lower.Top() && upper.Right() >= lower.Right() &&
           upper.Bottom() >= lower.Bottom();
}

}  // namespace

void SayWhichPagesAreSeen(const controls::Container& container) {
    std::vector<const Control*> covers;
    const auto& children = container.Children();
    for (auto child = children.rbegin(); child != children.rend(); ++child) {
        Control& control = **child;
        const bool is_page = control.ControlKind() == Kind::WebBrowser;
        if (!is_page && control.ControlKind() != Kind::Frame) continue;
        const bool covered = std::any_of(covers.begin(), covers.end(), [&control](const Control* cover) {
            return LiesOver(*cover, control);
        });
        if (is_page) {
            const auto seen = !control.Visible() ? ports::PageSeen::Closed
                              : covered          ? ports::PageSeen::Covered
                                                 : ports::PageSeen::InFront;
            static_cast<controls::WebBrowser&>(control).SetSeen(seen);
        }
        // What is covered itself covers nothing more.
        if (control.Visible() && !covered) covers.push_back(&control);
    }
}

}  // namespace qt
