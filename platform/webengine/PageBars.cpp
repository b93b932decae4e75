#include "platform/webengine/PageBars.h"

#include <QAccessible>
#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/qt/SkinSheet.h"
#include "platform/webengine/ShownText.h"

namespace webengine {

namespace {

namespace skin = qt::skin;

constexpr int kGuardMilliseconds = 500;
constexpr int kFlashMilliseconds = 1500;
constexpr int kProgressHeight = 3;
constexpr int kMostWords = 400;

QString StyleOfBars() {
    return QStringLiteral(
               "QLabel { color: @text; font-size: 13px; }"
               "QLineEdit { background: @well; color: @text; border: 1px solid @line; border-radius: 5px;"
               " padding: 2px 6px; selection-background-color: @accent-deep; }"
               "QLineEdit:focus { border-color: @accent; }"
               "QPushButton { color: @accent; padding: 3px 12px; font-size: 13px; }") +
           skin::kButtonSheet +
           QStringLiteral(
               "QPushButton[flat=\"true\"] { background: transparent; border: 1px solid transparent;"
               " padding: 3px; }"
               "QPushButton[flat=\"true\"]:focus { border-color: @accent; }"
               "#pageLine { background: @raised; border: 1px solid @line; border-top-right-radius: 5px;"
               " padding: 2px 8px; font-size: 12px; }");
}

/// A cross that is drawn, with the words of it for a screen reader.
class CrossButton final : public QPushButton {
public:
    using QPushButton::QPushButton;

protected:
    void paintEvent(QPaintEvent* event) override {
        QPushButton::paintEvent(event);
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(QColor(underMouse() ? skin::Colours().accent : skin::Colours().muted), 1.5,
                            Qt::SolidLine, Qt::RoundCap));
        const QPointF centre = QRectF(rect()).center();
        constexpr double kReach = 3.5;
        painter.drawLine(centre + QPointF(-kReach, -kReach), centre + QPointF(kReach, kReach));
        painter.drawLine(centre + QPointF(-kReach, kReach), centre + QPointF(kReach, -kReach));
    }
};

class ProgressLine final : public QWidget {
public:
    ProgressLine(const int& percent, QWidget* parent) : QWidget(parent), percent_(percent) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setObjectName(QStringLiteral("pageProgress"));
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.fillRect(rect(), QColor(skin::Colours().accent_deep));
        painter.fillRect(QRect(0, 0, width() * percent_ / 100, height()), QColor(skin::Colours().accent));
    }

private:
    const int& percent_;
};

}  // namespace

PageBar::PageBar(BarContent content, QWidget* parent)
    : QWidget(parent), content_(std::move(content)), row_(new QHBoxLayout(this)), words_(new QLabel(this)) {
    setObjectName(QStringLiteral("bar ") + content_.name);
    row_->setContentsMargins(12, 4, 8, 4);
    row_->setSpacing(8);
    words_->setTextFormat(Qt::PlainText);
    words_->setWordWrap(true);
    row_->addWidget(words_, 1);
    for (std::size_t i = 0; i < content_.buttons.size(); ++i) {
        QPushButton* button = MakeButton(content_.buttons[i].words);
        connect(button, &QPushButton::clicked, this, [this, i] { Press(content_.buttons[i]); });
        buttons_.push_back(button);
        row_->addWidget(button);
    }
    cross_ = new CrossButton(this);
    cross_->setFlat(true);
    cross_->setFixedSize(24, 24);
    cross_->setObjectName(QStringLiteral("cross"));
    cross_->setAccessibleName(tr("Close this bar"));
    cross_->setToolTip(tr("Close"));
    connect(cross_, &QPushButton::clicked, this, [this] { Close(); });
    row_->addWidget(cross_);
    SetWords(content_.words);
    if (content_.guarded) Guard();
}

QPushButton* PageBar::MakeButton(const QString& words) {
    auto* button = new QPushButton(VisibleText(words).replace(QLatin1Char('&'), QLatin1String("&&")), this);
    button->setAutoDefault(true);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setAccessibleName(VisibleText(words));
    return button;
}

void PageBar::Guard() {
    for (QPushButton* button : buttons_)
        button->setEnabled(false);
    QTimer::singleShot(kGuardMilliseconds, this, [this] {
        for (QPushButton* button : buttons_)
            button->setEnabled(true);
    });
}

void PageBar::SetWords(const QString& words) {
    words_->setText(CutInTheMiddle(VisibleText(words), kMostWords));
    words_->setVisible(!words.isEmpty());
    setAccessibleName(words_->text());
}

void PageBar::Insert(QWidget* part) {
    row_->insertWidget(1 + inserted_++, part);
}

void PageBar::TakeKeyboard() {
    const auto parts = findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    const auto first = std::find_if(parts.begin(), parts.end(), [this](const QWidget* part) {
        return part != cross_ && part->isEnabled() && part->focusPolicy() != Qt::NoFocus;
    });
    (first == parts.end() ? cross_ : *first)->setFocus(Qt::ShortcutFocusReason);
}

// The callback may take the bar, and the page with it, away.
void PageBar::Press(const BarButton& button) {
    const QPointer<PageBar> self = this;
    const std::function<void()> pressed = button.pressed;
    const bool stays = button.stays;
    if (!stays && gone) gone(*this);
    if (pressed && self != nullptr) pressed();
}

void PageBar::Close() {
    const std::function<void()> closed = content_.closed;
    if (gone) gone(*this);
    if (closed) closed();
}

void PageBar::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), QColor(skin::Colours().panel));
    painter.fillRect(QRect(0, height() - 1, width(), 1), QColor(skin::Colours().line));
}

void PageBar::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier) {
        Close();
        return;
    }
    QWidget::keyPressEvent(event);
}

PageBars::PageBars(QWidget* parent)
    : QWidget(parent),
      column_(new QVBoxLayout(this)),
      line_(new QLabel(this)),
      progress_(new ProgressLine(percent_, this)) {
    setObjectName(QStringLiteral("pageBars"));
    skin::Dress(*this, StyleOfBars());
    column_->setContentsMargins(0, 0, 0, 0);
    column_->setSpacing(0);
    column_->setSizeConstraint(QLayout::SetNoConstraint);
    line_->setObjectName(QStringLiteral("pageLine"));
    line_->setTextFormat(Qt::PlainText);
    line_->setAttribute(Qt::WA_TransparentForMouseEvents);
    line_->hide();
    progress_->hide();
    flash_.setSingleShot(true);
    connect(&flash_, &QTimer::timeout, this, [this] { ShowLine(line_words_); });
    auto* change =
        new QShortcut(QKeySequence(Qt::Key_F6), this, this, [this] { ChangeBetweenBarsAndPage(); });
    change->setContext(Qt::WidgetWithChildrenShortcut);
}

PageBars::~PageBars() {
    if (ends) ends();
}

void PageBars::SetPage(QWidget* page) {
    page_ = page;
    page->installEventFilter(this);
    setFocusProxy(page);
    column_->addWidget(page, 1);
    line_->raise();
    progress_->raise();
    PlaceOverlays();
}

void PageBars::LayOver(QWidget* notice) {
    notices_.emplace_back(notice);
    notice->setParent(this);
    PlaceOverlays();
}

PageBar& PageBars::ShowBar(BarContent content) {
    RemoveBar(content.name);
    auto* bar = new PageBar(std::move(content), this);
    bar->hide();
    bar->gone = [this](PageBar& gone) { OnGone(gone); };
    column_->insertWidget(static_cast<int>(bars_.size()), bar);
    bars_.push_back(bar);
    ShowFirstBars();
    return *bar;
}

PageBar* PageBars::Bar(const QString& name) const {
    const auto found =
        std::find_if(bars_.begin(), bars_.end(), [&name](const PageBar* bar) { return bar->Name() == name; });
    return found == bars_.end() ? nullptr : *found;
}

void PageBars::RemoveBar(const QString& name) {
    if (PageBar* bar = Bar(name)) OnGone(*bar);
}

// The bar may be in one of its own events.
void PageBars::OnGone(PageBar& bar) {
    bars_.erase(std::remove(bars_.begin(), bars_.end(), &bar), bars_.end());
    bar.gone = nullptr;
    const bool had_keyboard = bar.isAncestorOf(QApplication::focusWidget());
    column_->removeWidget(&bar);
    bar.hide();
    bar.setObjectName(QString());
    bar.deleteLater();
    if (had_keyboard && page_ != nullptr) page_->setFocus(Qt::OtherFocusReason);
    ShowFirstBars();
}

void PageBars::ShowFirstBars() {
    for (std::size_t i = 0; i < bars_.size() && i < kMostBarsSeen; ++i) {
        if (!bars_[i]->isHidden()) continue;
        bars_[i]->show();
        QAccessibleEvent alert(bars_[i], QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
    PlaceOverlays();
}

void PageBars::ChangeBetweenBarsAndPage() {
    const bool in_page =
        page_ != nullptr && (page_->hasFocus() || page_->isAncestorOf(QApplication::focusWidget()));
    if (in_page && !bars_.empty()) {
        bars_.front()->TakeKeyboard();
    } else if (page_ != nullptr) {
        page_->setFocus(Qt::ShortcutFocusReason);
    }
}

void PageBars::SetLine(const QString& words) {
    line_words_ = VisibleText(words);
    flash_.stop();
    ShowLine(line_words_);
}

void PageBars::FlashLine(const QString& words) {
    ShowLine(VisibleText(words));
    flash_.start(kFlashMilliseconds);
}

void PageBars::ShowLine(const QString& words) {
    line_->setText(words);
    line_->setVisible(!words.isEmpty());
    PlaceOverlays();
}

void PageBars::SetProgress(int percent) {
    percent_ = std::min(percent, 100);
    progress_->setVisible(percent_ >= 0);
    progress_->update();
    PlaceOverlays();
}

void PageBars::PlaceOverlays() {
    const QRect place = page_ != nullptr ? page_->geometry() : rect();
    for (const QPointer<QWidget>& notice : notices_) {
        if (notice == nullptr) continue;
        notice->setGeometry(place);
        notice->raise();
    }
    progress_->setGeometry(place.x(), place.y(), place.width(), kProgressHeight);
    progress_->raise();
    const QSize wanted = line_->sizeHint();
    line_->setGeometry(place.x(), place.bottom() + 1 - wanted.height(),
                       std::min(wanted.width(), place.width()), wanted.height());
    line_->raise();
}

bool PageBars::eventFilter(QObject* watched, QEvent* event) {
    if (watched == page_ && (event->type() == QEvent::Resize || event->type() == QEvent::Move))
        PlaceOverlays();
    return QWidget::eventFilter(watched, event);
}

void PageBars::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    PlaceOverlays();
}

}  // namespace webengine
