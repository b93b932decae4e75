#include "platform/qt/Screen.h"

#include <QCursor>
#include <QMouseEvent>
#include <algorithm>
#include <filesystem>
#include <system_error>

#include "controls/CheckBox.h"
#include "controls/ComboBox.h"
#include "controls/CommandButton.h"
#include "controls/Frame.h"
#include "controls/Image.h"
#include "controls/Label.h"
#include "controls/Line.h"
#include "controls/ListBox.h"
#include "controls/Menu.h"
#include "controls/PictureBox.h"
#include "controls/ProgressBar.h"
#include "controls/TextBox.h"
#include "controls/Timer.h"
#include "platform/qt/Covering.h"
#include "platform/qt/FormMirror.h"
#include "platform/qt/Geometry.h"
#include "platform/qt/ImageMirror.h"
#include "platform/qt/LabelMirror.h"
#include "platform/qt/ListMirrors.h"
#include "platform/qt/MenuMirror.h"
#include "platform/qt/SimpleMirrors.h"
#include "platform/qt/Stacking.h"
#include "platform/qt/SurfaceMirrors.h"
#include "platform/qt/TabOrder.h"

namespace qt {
namespace {

using controls::Kind;
using controls::Property;

constexpr int kReleasePagesMs = 250;
/// The login comes right after the splash, which is painted first.
constexpr int kBreathMs = 20;

std::size_t PlaceInContainer(const controls::Control& control) {
    if (control.Parent() == nullptr) return 0;
    const auto& siblings = control.Parent()->Children();
    return static_cast<std::size_t>(std::find(siblings.begin(), siblings.end(), &control) - siblings.begin());
}

// An activation hides what the pointer had brought up; the press that follows is meant for that.
void PointAgain(const QWidget& window) {
    const QPoint at = QCursor::pos();
    QWidget* pointed = QApplication::widgetAt(at);
    if (pointed == nullptr || pointed->window() != &window) return;
    QMouseEvent move(QEvent::MouseMove, pointed->mapFromGlobal(at), at, Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(pointed, &move);
}

template <class MirrorType, class ControlType>
std::unique_ptr<Mirror> Make(Stage& stage, controls::Control& control, QWidget* container) {
    return std::make_unique<MirrorType>(stage, static_cast<ControlType&>(control), container);
}

}  // namespace

Screen::Screen(Loop& loop, ScreenOptions options)
    : loop_(loop),
      options_(std::move(options)),
      pictures_(QString::fromStdString(options_.ProgramFolder)),
      pages_(options_.LoadPages, options_.ForgetVisitsOf, options_.Ahead),
      following_(
          [this]() -> std::optional<Following::Places> {
              const QWidget* main_window = MainWindow();
              if (main_window == nullptr) return std::nullopt;
              const std::optional<QPoint> place = PlaceOnDisplay(*main_window);
              if (!place) return std::nullopt;
              return Following::Places{.on_display = *place, .known = main_window->geometry().topLeft()};
          },
          [this](const QPoint& by) { MovePictures(by); }) {
    loop_.SetScreenUpdate([this] { CatchUp(); });
    QObject::connect(&idle_, &QTimer::timeout, &idle_, [this] { RealiseNext(); });
    QObject::connect(&release_, &QTimer::timeout, &release_, [this] { ReleasePages(); });
    release_.setSingleShot(true);
}

Screen::~Screen() {
    loop_.SetScreenUpdate({});
    StopAwaiting();
    // Windows own the widgets of all others, whose mirrors must not hear of their end.
    for (auto& [control, mirror] : mirrors_) {
        if (mirror->Widget() != nullptr) mirror->Widget()->removeEventFilter(mirror.get());
    }
    std::erase_if(mirrors_, [](const auto& entry) { return entry.first->ControlKind() != Kind::Form; });
    mirrors_.clear();
}

void Screen::Adopt(controls::Form& form) {
    if (mirrors_.contains(&form)) return;
    auto mirror = std::make_unique<FormMirror>(static_cast<Stage&>(*this), form);
    forms_.push_back(mirror.get());
    mirrors_.emplace(&form, std::move(mirror));
    if (painted_) idle_.start(0);
}

Mirror* Screen::MirrorOf(const controls::Control& control) const {
    const auto found = mirrors_.find(&control);
    return found != mirrors_.end() ? found->second.get() : nullptr;
}

QWidget* Screen::WindowOf(const controls::Form& form) {
    auto* mirror = static_cast<FormMirror*>(MirrorOf(form));
    if (mirror == nullptr) return nullptr;
    mirror->Realise();
    return mirror->Widget();
}

QWidget* Screen::WidgetOf(const controls::Control& control) const {
    const Mirror* mirror = MirrorOf(control);
    return mirror != nullptr ? mirror->Widget() : nullptr;
}

Mirror* Screen::MirrorIn(controls::Control& control, QWidget* container) {
    if (Mirror* known = MirrorOf(control)) return known;
    const bool widgetless = control.ControlKind() == Kind::Timer || control.ControlKind() == Kind::Menu;
    if (container == nullptr && !widgetless) return nullptr;
    std::unique_ptr<Mirror> made = MakeMirror(control, container);
    if (made == nullptr) return nullptr;
    Mirror* mirror = made.get();
    mirrors_.emplace(&control, std::move(made));
    if (auto* shown = dynamic_cast<WidgetMirror*>(mirror)) shown->ShowAll();
    if (!widgetless) has_newcomers_ = true;
    return mirror;
}

std::unique_ptr<Mirror> Screen::MakeMirror(controls::Control& control, QWidget* container) {
    Stage& stage = *this;
    switch (control.ControlKind()) {
        case Kind::Frame:
            return Make<FrameMirror, controls::Frame>(stage, control, container);
        case Kind::PictureBox:
            return Make<PictureBoxMirror, controls::PictureBox>(stage, control, container);
        case Kind::Image:
            return Make<ImageMirror, controls::Image>(stage, control, container);
        case Kind::Label:
            return Make<LabelMirror, controls::Label>(stage, control, container);
        case Kind::TextBox:
            return Make<TextMirror, controls::TextBox>(stage, control, container);
        case Kind::CheckBox:
            return Make<CheckMirror, controls::CheckBox>(stage, control, container);
        case Kind::CommandButton:
            return Make<ButtonMirror, controls::CommandButton>(stage, control, container);
        case Kind::Line:
            return Make<LineMirror, controls::Line>(stage, control, container);
        case Kind::ProgressBar:
            return Make<ProgressMirror, controls::ProgressBar>(stage, control, container);
        case Kind::WebBrowser:
            return Make<BrowserMirror, controls::WebBrowser>(stage, control, container);
        case Kind::Timer:
            return std::make_unique<TimerMirror>(stage, static_cast<controls::Timer&>(control));
        case Kind::Menu:
            return std::make_unique<MenuMirror>(stage, static_cast<controls::Menu&>(control));
        case Kind::ListBox:
        case Kind::ComboBox:
        case Kind::DriveListBox:
        case Kind::DirListBox:
            break;
        case Kind::Form:
            return nullptr;
    }
    if (auto* list = dynamic_cast<controls::ListBox*>(&control)) {
        return std::make_unique<ListMirror>(stage, *list, container);
    }
    if (auto* combo = dynamic_cast<controls::ComboBox*>(&control)) {
        return std::make_unique<ComboMirror>(stage, *combo, container);
    }
    return nullptr;
}

void Screen::CatchUpLater(Mirror& mirror) {
    ++changes_;
    changed_.push_back(&mirror);
}

// A window without a frame shows a picture or says that work is being done; nobody waits for those, nor for
// what lies beneath others.
void Screen::OnComesOrGoes(const controls::Form& form, bool was_shown) {
    if (!form.Visible()) {
        if (awaited_ == &form) StopAwaiting();
        return;
    }
    if (was_shown || form.Border() == controls::BorderStyle::None || IsBeneath(form)) return;
    awaited_ = &form;
    loop_.AwaitPaint();
}

void Screen::StopAwaiting() {
    awaited_ = nullptr;
    loop_.StopAwaitingPaint();
}

// A mirror that catches up may raise events (a window that is shown moves to its place), which change other
// controls.
void Screen::CatchUp() {
    if (catching_up_) return;
    catching_up_ = true;
    while (!changed_.empty()) {
        const std::vector<Mirror*> changed = std::move(changed_);
        changed_.clear();
        for (Mirror* mirror : changed)
            mirror->CatchUp();
        CatchUpLate(changed);
    }
    if (std::exchange(has_newcomers_, false)) OrderTabsAgain();
    SayWhatIsSeen();
    ApplyShape();
    if (!forms_.empty()) full_page_.Settle(forms_.front()->Window());
    catching_up_ = false;
}

// Qt puts a new widget at the end of the order, wherever it is.
void Screen::OrderTabsAgain() {
    for (FormMirror* form : forms_) {
        if (form->WasShown()) PutInTabOrder(*this, form->Window());
    }
}

void Screen::OnCoverMoved(const controls::Control& control) {
    const controls::Container* place = control.Parent();
    const bool known =
        std::find(cover_moved_in_.begin(), cover_moved_in_.end(), place) != cover_moved_in_.end();
    if (place != nullptr && !known) cover_moved_in_.push_back(place);
}

// Pages are woken and put to rest once, by the order that a handler leaves, and not for each step of it.
void Screen::SayWhatIsSeen() {
    for (const controls::Container* place : std::exchange(cover_moved_in_, {}))
        SayWhichPagesAreSeen(*place);
}

void Screen::ShapeMainWindow(QRegion shape) {
    shape_ = std::move(shape);
}

// A window that is not made yet has no shape to take away, and is not made for it.
void Screen::ApplyShape() {
    const auto shape = std::exchange(shape_, std::nullopt);
    if (!shape || forms_.empty() || (shape->isEmpty() && !forms_.front()->IsRealised())) return;
    QWidget* window = WindowOf(forms_.front()->Window());
    if (window->mask() != *shape) {
        if (shape->isEmpty()) {
            window->clearMask();
        } else {
            window->setMask(*shape);
        }
        window->update();
    }
    following_.SetOn(!shape->isEmpty());
    StackPictures();
}

void Screen::CatchUpLate(const std::vector<Mirror*>& changed) {
    std::vector<Mirror*> raised;
    for (Mirror* mirror : changed) {
        if (mirror->Takes(Property::ZOrder)) raised.push_back(mirror);
    }
    std::stable_sort(raised.begin(), raised.end(), [](const Mirror* left, const Mirror* right) {
        return PlaceInContainer(left->Mirrored()) < PlaceInContainer(right->Mirrored());
    });
    for (Mirror* mirror : raised)
        mirror->CatchUpNow(Property::ZOrder);
    for (Mirror* mirror : changed) {
        if (mirror->Takes(Property::Focus)) mirror->CatchUpNow(Property::Focus);
        if (mirror->Takes(Property::Popup)) mirror->CatchUpNow(Property::Popup);
    }
}

std::vector<controls::WebBrowser*> Screen::Browsers() const {
    std::vector<controls::WebBrowser*> browsers;
    for (const auto& [control, mirror] : mirrors_) {
        if (auto* browser = dynamic_cast<controls::WebBrowser*>(&mirror->Mirrored()))
            browsers.push_back(browser);
    }
    return browsers;
}

// The engines of another user go, and no control may keep one.
void Screen::BeginUser(std::string_view name, bool keeps_history) {
    if (pages_.AreOfAnother(name)) EndUser();
    pages_.BeginUser(name, keeps_history);
}

void Screen::EndUser() {
    for (controls::WebBrowser* browser : Browsers())
        browser->Forget();
    pages_.EndUser();
}

// What pages stored can only be taken away with the pages. A page that nobody sees waits until it is seen.
// One that has not got anywhere yet, or failed, is asked for again: when it arrives, that is its first visit.
void Screen::ForgetVisits() {
    struct Open {
        controls::WebBrowser* browser;
        std::string shown;
        std::string asked;
    };
    std::vector<Open> all_open;
    for (controls::WebBrowser* browser : Browsers()) {
        if (browser->Engine() == nullptr) continue;
        all_open.push_back({browser, browser->LocationURL(), browser->AskedAddress()});
        browser->Forget();
    }
    pages_.ForgetVisits();
    for (const Open& open : all_open) {
        if (open.shown.empty()) {
            open.browser->Navigate(open.asked);
        } else {
            open.browser->NavigateAgain(open.shown);
        }
    }
}

bool Screen::IsFolder(const std::string& native_path) const {
    std::error_code unknown;
    return options_.IsFolder ? options_.IsFolder(native_path)
                             : std::filesystem::is_directory(native_path, unknown);
}

std::string Screen::DriveForm(const std::string& native_path) const {
    return options_.ToDriveForm ? options_.ToDriveForm(native_path) : native_path;
}

QWidget* Screen::MainWindow() const {
    if (forms_.empty() || !forms_.front()->IsRealised()) return nullptr;
    QWidget* window = forms_.front()->Widget();
    return window->isVisible() && !window->isMinimized() ? window : nullptr;
}

void Screen::OnPaint(const controls::Form& form) {
    if (awaited_ == &form) StopAwaiting();
    if (painted_) return;
    painted_ = true;
    idle_.start(kBreathMs);
    release_.start(kReleasePagesMs);
}

// Windows that have not been shown are made one at a time, whenever there is nothing else to do.
void Screen::RealiseNext() {
    idle_.setInterval(0);
    if (AfterFirstPaint) {
        const auto after = std::move(AfterFirstPaint);
        AfterFirstPaint = {};
        after();
        return;
    }
    for (FormMirror* form : forms_) {
        if (form->IsRealised()) continue;
        form->Realise();
        return;
    }
    idle_.stop();
}

void Screen::OnMainWindowShown(QWidget& main_window) {
    for (FormMirror* form : forms_) {
        if (form->Window().StaysInFront()) form->LieOver(main_window);
    }
}

bool Screen::IsBeneath(const controls::Form& form) const {
    if (forms_.empty() || &forms_.front()->Window() != &form) return false;
    return std::any_of(forms_.begin(), forms_.end(), [](const FormMirror* other) {
        return other->Window().StaysInFront() && other->Window().Visible();
    });
}

// Other windows come between when the person works in them.
void Screen::StackPictures() {
    QWidget* main_window = MainWindow();
    if (main_window == nullptr || main_window->mask().isEmpty()) return;
    for (FormMirror* form : forms_) {
        if (form->IsAtHole()) PutBelow(*form->Widget(), *main_window);
    }
}

void Screen::MovePictures(const QPoint& by) {
    const QWidget* main_window = MainWindow();
    if (main_window == nullptr || main_window->mask().isEmpty()) return;
    for (FormMirror* form : forms_) {
        if (form->IsAtHole()) form->GoAlong(by);
    }
}

// The display tells of the keyboard only after the press that brought it; then a drag that has begun would
// end with the activation.
void Screen::OnPressed(controls::Control& window) {
    const auto pressed = std::find_if(forms_.begin(), forms_.end(), [&window](const FormMirror* form) {
        return &form->Window() == &window;
    });
    if (pressed != forms_.end() && (*pressed)->IsPicture()) OnActivated((*pressed)->Window());
}

// Coming back from another program is no activation; going from window to window of this one is.
void Screen::OnActivated(controls::Form& form) {
    const bool another = active_ != nullptr && active_ != &form;
    active_ = &form;
    if (!another) return;
    form.Activate.Raise();
    CatchUp();
    if (QWidget* window = WidgetOf(form)) PointAgain(*window);
}

}  // namespace qt
