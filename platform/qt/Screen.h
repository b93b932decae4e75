// The screen: mirrors of windows and of all controls in them.
//
// A window is adopted once, at the start; what is put into it later (members of control arrays) is
// mirrored too. The adopted windows, their menus and the loop must outlive the screen.
#pragma once

#include <QRegion>
#include <QTimer>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "controls/Form.h"
#include "platform/qt/Following.h"
#include "platform/qt/FullPage.h"
#include "platform/qt/Loop.h"
#include "platform/qt/Pages.h"
#include "platform/qt/Pictures.h"
#include "platform/qt/Stage.h"
#include "ports/PageEngine.h"

namespace qt {

class FormMirror;

struct ScreenOptions {
    /// Where "images" is, as a native path.
    std::string ProgramFolder;
    /// A native path, in bytes, in the form the controls speak. Left empty, paths stay as they are.
    std::function<std::string(const std::string&)> ToDriveForm;
    /// Loads the page engine; without one web browser controls stay blank.
    PageLoader LoadPages;
    /// Take away what the engine kept for a user, and everything that was kept for a user, without the
    /// engine. Left empty, nothing is kept.
    PageRemover ForgetVisitsOf;
    PageRemover RemoveUser;
    /// The engine's name, version and patch level; left empty, there is none.
    std::function<std::string()> PageEngineVersion;
    /// A native path, in bytes, is a folder's. Left empty, the system is asked.
    std::function<bool(const std::string&)> IsFolder;
    /// Left empty, the engine is loaded by the first page.
    PagesAhead Ahead;
};

class Screen final : public ports::PageEngine, private Stage {
public:
    /// Needs the application object.
    Screen(Loop& loop, ScreenOptions options);
    ~Screen() override;

    /// Shows the window whenever it is visible. The first one adopted is the main window.
    void Adopt(controls::Form& form);
    /// The widget of a window; made now if it is not there yet. Null for a window that was not adopted.
    QWidget* WindowOf(const controls::Form& form);
    /// The widget of a control; null if it has none.
    QWidget* WidgetOf(const controls::Control& control) const;
    /// Gives the main window a shape, in pixels of its widget, at the end of the handler; an empty one makes
    /// it whole. Of several only the last counts, so a hole that is closed and cut again does not flicker.
    void ShapeMainWindow(QRegion shape);
    /// Brings all widgets up to date with their controls. It happens at the end of every handler anyway.
    void CatchUp();
    /// Makes page engines from now on while a user is logged in, and those asked for before. It happens
    /// anyway a moment after the first paint.
    void ReleasePages() { pages_.Release(); }
    // ports::PageEngine
    void BeginUser(std::string_view name, bool keeps_history) override;
    void EndUser() override;
    void ForgetVisits() override;
    void ShowDownloads() override { pages_.ShowDownloads(); }
    void RemoveUser(std::string_view name) override {
        if (options_.RemoveUser) options_.RemoveUser(name);
    }
    std::string Version() override {
        return options_.PageEngineVersion ? options_.PageEngineVersion() : std::string();
    }
    /// The user asked in another program to see this one: the next window that comes to the front takes the
    /// keyboard even where the window manager guards it. `startup_id` is what the launcher gave, or empty.
    void ExpectToFront(std::string startup_id) { users_wish_ = std::move(startup_id); }
    /// Called once, after the first window has been painted.
    std::function<void()> AfterFirstPaint;

private:
    void CatchUpLater(Mirror& mirror) override;
    std::uint64_t Changes() const override { return changes_; }
    Mirror* MirrorIn(controls::Control& control, QWidget* container) override;
    Mirror* MirrorOf(const controls::Control& control) const override;
    Pictures& SkinPictures() override { return pictures_; }
    Loop& Events() override { return loop_; }
    std::string DriveForm(const std::string& native_path) const override;
    bool IsFolder(const std::string& native_path) const override;
    void WantPage(controls::WebBrowser& browser, QWidget& place) override { pages_.Want(browser, place); }
    void OnCoverMoved(const controls::Control& control) override;
    QWidget* MainWindow() const override;
    void OnMainWindowShown(QWidget& main_window) override;
    bool IsBeneath(const controls::Form& form) const override;
    void StackPictures() override;
    void OnMainWindowMoved(const QPoint& by) override { following_.OnMoved(by); }
    std::optional<std::string> TakeUsersWish() override { return std::exchange(users_wish_, std::nullopt); }
    void OnComesOrGoes(const controls::Form& form, bool was_shown) override;
    void OnPaint(const controls::Form& form) override;
    void SetMenuPlace(std::optional<QPoint> place) override { menu_place_ = place; }
    std::optional<QPoint> MenuPlace() const override { return menu_place_; }
    void OnPressed(controls::Control& window) override;
    void OnActivated(controls::Form& form) override;

    void StopAwaiting();
    std::unique_ptr<Mirror> MakeMirror(controls::Control& control, QWidget* container);
    std::vector<controls::WebBrowser*> Browsers() const;
    void RealiseNext();
    void SayWhatIsSeen();
    void MovePictures(const QPoint& by);
    void CatchUpLate(const std::vector<Mirror*>& changed);
    void ApplyShape();
    void OrderTabsAgain();

    Loop& loop_;
    ScreenOptions options_;
    Pictures pictures_;
    Pages pages_;
    std::vector<FormMirror*> forms_;
    std::unordered_map<const controls::Control*, std::unique_ptr<Mirror>> mirrors_;
    std::vector<Mirror*> changed_;
    std::uint64_t changes_ = 0;
    std::vector<const controls::Container*> cover_moved_in_;
    controls::Form* active_ = nullptr;
    const controls::Form* awaited_ = nullptr;  // that has been asked for, and is not painted yet
    std::optional<QRegion> shape_;
    std::optional<QPoint> menu_place_;
    std::optional<std::string> users_wish_;
    Following following_;
    FullPage full_page_{*this};
    QTimer idle_;
    QTimer release_;
    bool painted_ = false;
    bool has_newcomers_ = false;  // controls came after the windows were made
    bool catching_up_ = false;
};

}  // namespace qt
