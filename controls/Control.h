// What every control has: a name, a place, and whether it shows.
//
// Geometry is in the scale units of the container: twips, 15 to a pixel, unless a picture box sets a scale of
// its own. The screen (or a test) watches a control through its one observer; an assignment of the value that
// a property already has is not reported.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "controls/Event.h"

namespace controls {

inline constexpr double kTwipsPerPixel = 15.0;

/// Mouse buttons and shift states as events carry them.
inline constexpr int kLeftButton = 1;
inline constexpr int kRightButton = 2;
inline constexpr int kMiddleButton = 4;
inline constexpr int kShiftMask = 1;
inline constexpr int kControlMask = 2;
inline constexpr int kAltMask = 4;

/// Virtual key codes the system names.
inline constexpr int kKeyEnter = 13;
inline constexpr int kKeyEscape = 27;
inline constexpr int kKeyDelete = 46;

/// What a control reports to its observer.
enum class Property {
    Visible,
    Enabled,
    Geometry,
    Caption,
    Text,
    Items,      ///< rows of a list were added, removed or cleared
    ListIndex,  ///< the selected row
    Checked,
    Value,
    Picture,
    Colour,
    ToolTip,
    Scale,
    ZOrder,  ///< a control came to the front of its container
    Parent,  ///< it was put into a container
    Timer,   ///< enabled or its interval changed: start again
    Focus,   ///< the keyboard is wanted here
    Window,  ///< loaded, unloaded, window state, title
    Popup,   ///< a menu wants to be shown at the pointer
    Refresh,
};

/// The kinds of control, so that a screen can build the right widget without asking for the type.
enum class Kind {
    Form,
    Frame,
    PictureBox,
    Image,
    Label,
    TextBox,
    ListBox,
    ComboBox,
    CheckBox,
    CommandButton,
    Line,
    ProgressBar,
    Timer,
    Menu,
    WebBrowser,
    DriveListBox,
    DirListBox,
};

class Control;
class Container;

/// Watches property changes of controls: the screen's side. It must not raise events from inside a report.
class ControlObserver {
public:
    virtual ~ControlObserver() = default;
    virtual void OnPropertyChanged(Control& control, Property property) = 0;
};

/// Files or text dropped on a control, or dragged from one.
struct DropData {
    std::vector<std::string> Files;  ///< full paths in drive form
    std::string Text;                ///< the text format; empty when there is none
    bool HasText = false;
    int Row = -1;  ///< the row of a list it was dropped on; -1 below the last row and on any other control
};

class Control {
public:
    Control(Kind kind, std::string_view name);
    virtual ~Control();
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    Kind ControlKind() const { return kind_; }
    const std::string& Name() const { return name_; }
    /// Place in a control array, -1 outside of one.
    int Index() const { return index_; }

    bool Visible() const { return visible_; }
    void SetVisible(bool visible) { Assign(visible_, visible, Property::Visible); }
    /// Visible, and so is every container it is in.
    bool IsShown() const;
    bool Enabled() const { return enabled_; }
    virtual void SetEnabled(bool enabled) { Assign(enabled_, enabled, Property::Enabled); }

    double Left() const { return left_; }
    double Top() const { return top_; }
    double Width() const { return width_; }
    double Height() const { return height_; }
    double Right() const { return left_ + width_; }
    double Bottom() const { return top_ + height_; }
    void SetLeft(double left) { Move(left, top_, width_, height_); }
    void SetTop(double top) { Move(left_, top, width_, height_); }
    void SetWidth(double width) { Move(left_, top_, width, height_); }
    void SetHeight(double height) { Move(left_, top_, width_, height); }
    /// A negative width or height becomes 0.
    virtual void Move(double left, double top, double width, double height);

    const std::string& ToolTipText() const { return tool_tip_; }
    void SetToolTipText(std::string_view text) { Assign(tool_tip_, text, Property::ToolTip); }

    /// How a screen reader names it; the control's own name if this is empty.
    const std::string& AccessibleName() const { return accessible_name_; }
    void SetAccessibleName(std::string_view name) { Assign(accessible_name_, name, Property::ToolTip); }

    /// The role that the skin draws it in ("panel", "heading", "accent", ...); empty is the plain look of its
    /// kind.
    const std::string& Look() const { return look_; }
    void SetLook(std::string_view look) { Assign(look_, look, Property::Colour); }

    /// In front of everything else in its container but what is kept in front.
    void BringToFront();
    /// While it is kept in front, nothing of its container comes before it: neither by BringToFront nor by
    /// being added. Brings it to the front, too.
    void KeepInFront(bool kept);
    void SetFocus();
    void Refresh();

    Container* Parent() const { return parent_; }
    /// The screen's part that watches the control; null if there is none.
    ControlObserver* Observer() const { return observer_; }
    void SetObserver(ControlObserver* observer) { observer_ = observer; }

    Event<> Click;
    Event<> DblClick;
    Event<int, int> KeyDown;                    ///< key code, shift
    Event<int, int, double, double> MouseDown;  ///< button, shift, x, y in the control's scale
    Event<int, int, double, double> MouseMove;
    Event<int, int, double, double> MouseUp;
    Event<int> MouseWheel;  ///< notches, up above 0; also those over the controls in it
    Event<const DropData&, double, double> OLEDragDrop;  ///< data, x, y
    Event<> GotFocus;

protected:
    void Report(Property property);
    /// Sets a field and reports it. Returns false, and does neither, if the field has that value already.
    template <class T, class V>
    bool Assign(T& field, const V& value, Property property) {
        if (field == value) return false;
        field = value;
        Report(property);
        return true;
    }
    /// Sets the flag without a report.
    void AssignEnabled(bool enabled) { enabled_ = enabled; }

private:
    friend class Container;
    template <class T>
    friend class ControlArray;

    Kind kind_;
    std::string name_;
    int index_ = -1;
    bool kept_in_front_ = false;
    bool visible_ = true;
    bool enabled_ = true;
    double left_ = 0;
    double top_ = 0;
    double width_ = 0;
    double height_ = 0;
    std::string tool_tip_;
    std::string accessible_name_;
    std::string look_;
    Container* parent_ = nullptr;
    ControlObserver* observer_ = nullptr;
};

/// A control that contains others: form, frame, picture box. Children are listed bottom first.
class Container : public Control {
public:
    using Control::Control;
    ~Container() override;

    /// Puts a control in front of those already there, out of the container it was in.
    void Add(Control& child);
    template <class... C>
    void Add(Control& first, Control& second, C&... rest) {
        Add(first);
        Add(second, rest...);
    }
    const std::vector<Control*>& Children() const { return children_; }

private:
    friend class Control;
    void Remove(Control& child);
    /// Puts a child before its siblings but those that are kept in front; false when it is there already.
    bool PutInFront(Control& child);
    /// Has those that are kept in front raised over a child.
    void ReportKeptInFront(const Control& over);
    std::vector<Control*> children_;
};

}  // namespace controls
