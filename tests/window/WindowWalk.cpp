#include "WindowWalk.h"

#include "controls/FolderLists.h"
#include "controls/WebBrowser.h"

namespace window_tests {
namespace {

using controls::Control;
using Names = std::vector<std::string>;

void CollectMenu(const controls::Menu& entry, std::vector<const Control*>& into) {
    into.push_back(&entry);
    for (const controls::Menu* below : entry.Entries())
        CollectMenu(*below, into);
}

void CollectChildren(const controls::Container& container, std::vector<const Control*>& into) {
    for (const Control* child : container.Children()) {
        into.push_back(child);
        if (const auto* inner = dynamic_cast<const controls::Container*>(child))
            CollectChildren(*inner, into);
    }
}

template <class... Args>
void Note(const controls::Event<Args...>& event, const char* name, Names& claimed) {
    if (event.IsClaimed()) claimed.emplace_back(name);
}

template <class Kind>
void NoteChange(const Control& control, Names& claimed) {
    if (const auto* kind = dynamic_cast<const Kind*>(&control)) Note(kind->Change, "Change", claimed);
}

void NoteFormEvents(const controls::Form& form, Names& claimed) {
    Note(form.KeyPreview, "KeyPreview", claimed);
    Note(form.Load, "Load", claimed);
    Note(form.Activate, "Activate", claimed);
    Note(form.Resize, "Resize", claimed);
    Note(form.QueryUnload, "QueryUnload", claimed);
    Note(form.Unload, "Unload", claimed);
}

void NotePageEvents(const controls::WebBrowser& page, Names& claimed) {
    Note(page.TitleChange, "TitleChange", claimed);
    Note(page.NavigateComplete2, "NavigateComplete2", claimed);
    Note(page.NewWindow2, "NewWindow2", claimed);
    Note(page.NewWindowBehind, "NewWindowBehind", claimed);
    Note(page.WindowClosing, "WindowClosing", claimed);
    Note(page.NavigateError, "NavigateError", claimed);
    Note(page.SignsChange, "SignsChange", claimed);
}

}  // namespace

std::vector<const Control*> ControlsOf(const controls::Form& window) {
    std::vector<const Control*> all{&window};
    CollectChildren(window, all);
    for (const controls::Menu* menu : window.MenuBar())
        CollectMenu(*menu, all);
    return all;
}

Names ClaimedEvents(const Control& control) {
    Names claimed;
    if (const auto* form = dynamic_cast<const controls::Form*>(&control)) NoteFormEvents(*form, claimed);
    if (const auto* page = dynamic_cast<const controls::WebBrowser*>(&control))
        NotePageEvents(*page, claimed);
    if (const auto* timer = dynamic_cast<const controls::Timer*>(&control))
        Note(timer->Tick, "Tick", claimed);
    Note(control.Click, "Click", claimed);
    Note(control.DblClick, "DblClick", claimed);
    NoteChange<controls::Label>(control, claimed);
    NoteChange<controls::TextBox>(control, claimed);
    if (const auto* box = dynamic_cast<const controls::TextBox*>(&control))
        Note(box->SignClick, "SignClick", claimed);
    NoteChange<controls::ComboBox>(control, claimed);
    NoteChange<controls::Menu>(control, claimed);
    NoteChange<controls::DriveListBox>(control, claimed);
    NoteChange<controls::DirListBox>(control, claimed);
    Note(control.KeyDown, "KeyDown", claimed);
    Note(control.MouseDown, "MouseDown", claimed);
    Note(control.MouseMove, "MouseMove", claimed);
    Note(control.MouseUp, "MouseUp", claimed);
    Note(control.MouseWheel, "MouseWheel", claimed);
    Note(control.OLEDragDrop, "OLEDragDrop", claimed);
    Note(control.GotFocus, "GotFocus", claimed);
    if (const auto* text = dynamic_cast<const controls::TextBox*>(&control))
        Note(text->LostFocus, "LostFocus", claimed);
    return claimed;
}

}  // namespace window_tests
