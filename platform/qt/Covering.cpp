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

void TellCovered(const controls::Container& container,
                 const std::function<void(Control& control, bool covered)>& tell) {
    std::vector<const Control*> covers;
    const auto& children = container.Children();
    for (auto child = children.rbegin(); child != children.rend(); ++child) {
        Control& control = **child;
        const bool covered = std::any_of(covers.begin(), covers.end(), [&control](const Control* cover) {
            return LiesOver(*cover, control);
        });
        tell(control, covered);
        const bool covers_others =
            control.ControlKind() == Kind::WebBrowser || control.ControlKind() == Kind::Frame;
        // What is covered itself covers nothing more.
        if (covers_others && control.Visible() && !covered) covers.push_back(&control);
    }
}

void SayWhichPagesAreSeen(const controls::Container& container) {
    TellCovered(container, [](Control& control, bool covered) {
        if (control.ControlKind() != Kind::WebBrowser) return;
        const auto seen = !control.Visible() ? ports::PageSeen::Closed
                          : covered          ? ports::PageSeen::Covered
                                             : ports::PageSeen::InFront;
        static_cast<controls::WebBrowser&>(control).SetSeen(seen);
    });
}

}  // namespace qt
