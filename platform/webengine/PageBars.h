// The area of one page: the page, a stack of slim bars above it, and a line over its lower edge.
//
// A bar says a few words and has buttons. It makes room for itself, so that it covers nothing of the page and
// the page draws nothing over it. It never takes the keyboard when it appears: a key that was meant for the
// page must not answer a question. F6 goes to the first bar and back to the page; Escape in a bar is its
// cross. All text is shown as plain text with hidden characters made visible.
#pragma once

#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <vector>

class QHBoxLayout;
class QVBoxLayout;

namespace webengine {

/// How many bars are seen at once; more wait until one of them goes.
inline constexpr int kMostBarsSeen = 3;

struct BarButton {
    QString words{};
    std::function<void()> pressed{};
    /// The bar remains when it is pressed.
    bool stays = false;
};

struct BarContent {
    /// A second bar of the same name replaces the first. Also the object name: "bar " + name.
    QString name;
    QString words{};
    std::vector<BarButton> buttons{};
    /// The user closed it by the cross or by Escape. Not called when it is removed or a button is pressed.
    std::function<void()> closed{};
    /// The buttons wait half a second: a click that was meant for the page must not grant anything.
    bool guarded = false;
};

class PageBar final : public QWidget {
public:
    PageBar(BarContent content, QWidget* parent);

    QString Words() const { return words_->text(); }
    void SetWords(const QString& words);
    /// Gives the keyboard to its first part that takes it.
    void TakeKeyboard();
    /// Puts a widget of the caller's own before the buttons.
    void Insert(QWidget* part);
    QPushButton* Button(int index) const { return buttons_.at(static_cast<std::size_t>(index)); }
    QPushButton* Cross() const { return cross_; }
    QString Name() const { return content_.name; }
    /// The cross was pressed.
    void Close();
    /// What the stack does when the bar has gone.
    std::function<void(PageBar&)> gone;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QPushButton* MakeButton(const QString& words);
    void Press(const BarButton& button);
    void Guard();

    BarContent content_;
    QHBoxLayout* row_;
    QLabel* words_;
    QPushButton* cross_;
    std::vector<QPushButton*> buttons_;
    int inserted_ = 0;
};

class PageBars final : public QWidget {
public:
    explicit PageBars(QWidget* parent);
    ~PageBars() override;

    /// Called when the area ends, before anything in it does.
    std::function<void()> ends;

    /// The page's widget; from now on it fills what the bars leave.
    void SetPage(QWidget* page);
    /// Lies over the page and always has its place; shown and hidden by its owner.
    void LayOver(QWidget* notice);

    PageBar& ShowBar(BarContent content);
    /// Null when there is no bar of that name.
    PageBar* Bar(const QString& name) const;
    /// Removes it without a callback; no such bar: nothing happens.
    void RemoveBar(const QString& name);

    /// Words on the line over the lower edge; empty words hide it.
    void SetLine(const QString& words);
    /// The same for a moment, then the line shows again what it had.
    void FlashLine(const QString& words);
    QString Line() const { return line_->isHidden() ? QString() : line_->text(); }

    /// A thin line at the page's upper edge, filled up to that many percent; below 0: none.
    void SetProgress(int percent);
    int Progress() const { return percent_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void OnGone(PageBar& bar);
    void ShowFirstBars();
    void PlaceOverlays();
    void ShowLine(const QString& words);
    void ChangeBetweenBarsAndPage();

    QVBoxLayout* column_;
    QPointer<QWidget> page_;
    std::vector<QPointer<QWidget>> notices_;
    std::vector<PageBar*> bars_;
    QLabel* line_;
    QWidget* progress_;
    QTimer flash_;
    QString line_words_;
    int percent_ = -1;
};

}  // namespace webengine
