#include "platform/webengine/FindBar.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QWebEngineFindTextResult>

#include "platform/qt/SkinColours.h"

namespace webengine {

namespace {

constexpr int kFieldWidth = 240;
constexpr int kCountWidth = 96;
constexpr int kMostSelected = 100;
constexpr int kMostWords = 1000;
const QString kName = QStringLiteral("find");

}  // namespace

void FindBar::Open() {
    if (!IsOpen()) MakeBar();
    const QString selected = page_.selectedText();
    const bool is_phrase =
        !selected.isEmpty() && selected.size() <= kMostSelected && !selected.contains(QLatin1Char('\n'));
    field_->setText(is_phrase ? selected : last_words_);
    field_->selectAll();
    field_->setFocus(Qt::ShortcutFocusReason);
    Search({});
}

void FindBar::MakeBar() {
    PageBar& bar = bars_.ShowBar(
        {.name = kName,
         .words = tr("Find"),
         .buttons = {{.words = tr("Previous"), .pressed = [this] { Previous(); }, .stays = true},
                     {.words = tr("Next"), .pressed = [this] { Next(); }, .stays = true}},
         .closed = [this] { Clear(); }});
    field_ = new QLineEdit(&bar);
    field_->setObjectName(QStringLiteral("findField"));
    field_->setFixedWidth(kFieldWidth);
    field_->setMaxLength(kMostWords);
    field_->setAccessibleName(tr("Find in this page"));
    field_->installEventFilter(this);
    count_ = new QLabel(&bar);
    count_->setObjectName(QStringLiteral("findCount"));
    count_->setFixedWidth(kCountWidth);
    case_ = new QPushButton(QStringLiteral("Aa"), &bar);
    case_->setObjectName(QStringLiteral("findCase"));
    case_->setCheckable(true);
    case_->setToolTip(tr("Match case"));
    case_->setAccessibleName(tr("Match case"));
    bar.Insert(field_);
    bar.Insert(count_);
    bar.Insert(case_);
    connect(field_, &QLineEdit::textChanged, this, [this] { Search({}); });
    // The engine goes on with what it found before as long as the words are the same.
    connect(case_, &QPushButton::toggled, this, [this] {
        page_.findText(QString());
        Search({});
    });
}

void FindBar::Close() {
    if (!IsOpen()) return;
    bars_.RemoveBar(kName);
    Clear();
}

void FindBar::Clear() {
    if (field_ != nullptr) last_words_ = field_->text();
    field_ = nullptr;
    count_ = nullptr;
    case_ = nullptr;
    ++serial_;
    page_.findText(QString());
}

void FindBar::OnDocument() {
    ++serial_;
    if (IsOpen()) ShowCount({}, false);
}

void FindBar::GoOn(QWebEnginePage::FindFlags direction) {
    if (!IsOpen() && last_words_.isEmpty()) {
        Open();
        return;
    }
    if (!IsOpen()) {
        MakeBar();
        const QSignalBlocker quiet(field_);
        field_->setText(last_words_);
    }
    Search(direction);
}

void FindBar::Search(QWebEnginePage::FindFlags direction) {
    if (!IsOpen()) return;
    last_words_ = field_->text();
    const int serial = ++serial_;
    if (last_words_.isEmpty()) {
        page_.findText(QString());
        ShowCount({}, false);
        return;
    }
    direction.setFlag(QWebEnginePage::FindCaseSensitively, case_->isChecked());
    page_.findText(last_words_, direction,
                   [self = QPointer<FindBar>(this), serial](const QWebEngineFindTextResult& found) {
                       if (self == nullptr || serial != self->serial_ || !self->IsOpen()) return;
                       const int count = found.numberOfMatches();
                       self->ShowCount(
                           count == 0 ? tr("not found") : tr("%1 of %2").arg(found.activeMatch()).arg(count),
                           count == 0);
                   });
}

void FindBar::ShowCount(const QString& words, bool is_nothing) {
    if (count_->text() == words) return;
    count_->setText(words);
    const QRgb colour = is_nothing ? qt::skin::Colours().warning : qt::skin::Colours().muted;
    count_->setStyleSheet(QStringLiteral("color: %1").arg(QColor(colour).name()));
    count_->setAccessibleName(words);
    QAccessibleEvent changed(count_, QAccessible::Alert);
    if (!words.isEmpty()) QAccessible::updateAccessibility(&changed);
}

bool FindBar::eventFilter(QObject* watched, QEvent* event) {
    if (watched == field_ && event->type() == QEvent::KeyPress) {
        const auto& press = static_cast<QKeyEvent&>(*event);
        if (press.key() == Qt::Key_Return || press.key() == Qt::Key_Enter) {
            GoOn(press.modifiers().testFlag(Qt::ShiftModifier) ? QWebEnginePage::FindBackward
                                                               : QWebEnginePage::FindFlags());
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace webengine
