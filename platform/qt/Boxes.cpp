#include "platform/qt/Boxes.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QStandardPaths>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/qt/Geometry.h"
#include "platform/qt/Skin.h"

namespace qt {
namespace {

constexpr int kMargin = 20;
constexpr int kTextWidth = 420;
constexpr int kTextHeight = 320;
/// Characters; longer texts scroll, whatever their lines are.
constexpr int kLongestShortText = 2'000;
constexpr int kButtonWidth = 88;
constexpr int kButtonHeight = 28;

QString WithPlainBreaks(std::string_view text) {
    return ToQt(text).replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

/// The sign beside a box's text, drawn.
class IconView final : public QWidget {
public:
    IconView(ports::BoxIcon icon, QWidget* parent) : QWidget(parent), icon_(icon) { setFixedSize(36, 36); }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const bool critical = icon_ == ports::BoxIcon::Critical;
        const QRectF disc = QRectF(rect()).adjusted(2, 2, -2, -2);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(critical ? skin::Colours().critical : skin::Colours().teal));
        painter.drawEllipse(disc);
        if (critical) {
            skin::Cross(painter, disc.center(), QColor(skin::Colours().knob), 6);
            return;
        }
        painter.setBrush(QColor(skin::Colours().ink));
        painter.drawEllipse(disc.center() + QPointF(0, -7), 2.2, 2.2);
        painter.drawRoundedRect(QRectF(disc.center().x() - 2, disc.center().y() - 2.5, 4, 12), 1.5, 1.5);
    }

private:
    ports::BoxIcon icon_;
};

class Box final : public QDialog {
public:
    Box(QWidget* owner, std::string_view title) : QDialog(owner) {
        setWindowTitle(title.empty() ? QApplication::applicationName() : ToQt(title));
        setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                       Qt::WindowCloseButtonHint);
        rows_ = new QVBoxLayout(this);
        rows_->setContentsMargins(kMargin, kMargin, kMargin, kMargin - 4);
        rows_->setSpacing(16);
        rows_->setSizeConstraint(QLayout::SetFixedSize);
    }

    void AddText(const QString& text, ports::BoxIcon icon) {
        auto* row = new QHBoxLayout;
        row->setSpacing(16);
        if (icon != ports::BoxIcon::None) row->addWidget(new IconView(icon, this), 0, Qt::AlignTop);
        row->addWidget(IsLong(text) ? LongText(text) : ShortText(text), 1, Qt::AlignVCenter);
        rows_->addLayout(row);
        setAccessibleDescription(text.left(kLongestShortText));
    }

    QLineEdit* AddInput(const QString& prompt, const QString& text) {
        auto* edit = new QLineEdit(text, this);
        edit->setObjectName(QStringLiteral("input"));
        edit->setAccessibleName(prompt);
        edit->setMinimumSize(kTextWidth - 60, kButtonHeight);
        edit->setTextMargins(5, 0, 4, 0);
        edit->selectAll();
        rows_->addWidget(edit);
        return edit;
    }

    void AddButtons(std::initializer_list<std::pair<QString, int>> buttons) {
        auto* row = new QHBoxLayout;
        row->setSpacing(8);
        row->addStretch(1);
        bool first = true;
        for (const auto& [caption, result] : buttons) {
            auto* button = new QPushButton(caption, this);
            button->setFixedSize(kButtonWidth, kButtonHeight);
            button->setDefault(first);
            if (first) button->setFocus();
            connect(button, &QPushButton::clicked, this, [this, answer = result] { done(answer); });
            row->addWidget(button);
            first = false;
        }
        rows_->addLayout(row);
    }

private:
    /// Too long for a label. A text of many lines is not measured: it may have a hundred thousand.
    bool IsLong(const QString& text) const {
        if (text.size() > kLongestShortText) return true;
        const QRect most(0, 0, kTextWidth, 0);
        return fontMetrics().boundingRect(most, Qt::TextWordWrap, text).height() > kTextHeight;
    }

    /// A long line wraps.
    QWidget* ShortText(const QString& text) {
        auto* label = new QLabel(text, this);
        label->setObjectName(QStringLiteral("text"));
        label->setTextFormat(Qt::PlainText);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        label->setFocusPolicy(Qt::NoFocus);
        if (label->sizeHint().width() > kTextWidth) {
            label->setWordWrap(true);
            label->setFixedWidth(kTextWidth);
        }
        return label;
    }

    /// A text that scrolls, and can be selected and copied with mouse and keyboard.
    QWidget* LongText(const QString& text) {
        auto* view = new QPlainTextEdit(this);
        view->setObjectName(QStringLiteral("text"));
        view->setAccessibleName(QStringLiteral("Message"));
        view->setReadOnly(true);
        view->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        view->setUndoRedoEnabled(false);
        view->setTabChangesFocus(true);
        view->setFrameShape(QFrame::NoFrame);
        view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view->setFixedSize(kTextWidth + 20, kTextHeight);
        view->setPlainText(text);
        return view;
    }

    QVBoxLayout* rows_;
};

QWidget* Owner() {
    QWidget* window = QApplication::activeWindow();
    return window != nullptr && window->isVisible() ? window : nullptr;
}

QString FilterOf(std::string_view kind, std::span<const std::string_view> endings) {
    QStringList patterns;
    for (const std::string_view ending : endings)
        patterns.append(QLatin1Char('*') + ToQt(ending));
    return ToQt(kind) + QStringLiteral(" (") + patterns.join(QLatin1Char(' ')) + QLatin1Char(')');
}

QString MusicFolder() {
    const QString music = QStandardPaths::writableLocation(QStandardPaths::MusicLocation);
    return QDir(music).exists() ? music : QDir::homePath();
}

}  // namespace

int Boxes::Ask(QDialog& box) {
    const Loop::Nested nested(loop_);
    return box.exec();
}

ports::BoxAnswer Boxes::MsgBox(std::string_view text, ports::BoxButtons buttons, std::string_view title,
                               ports::BoxIcon icon) {
    Box box(Owner(), title);
    box.AddText(WithPlainBreaks(text), icon);
    if (buttons == ports::BoxButtons::Ok) {
        box.AddButtons({{QStringLiteral("OK"), QDialog::Accepted}});
        Ask(box);
        return ports::BoxAnswer::Ok;
    }
    box.AddButtons({{QStringLiteral("&Yes"), QDialog::Accepted}, {QStringLiteral("&No"), QDialog::Rejected}});
    return Ask(box) == QDialog::Accepted ? ports::BoxAnswer::Yes : ports::BoxAnswer::No;
}

std::string Boxes::InputBox(std::string_view prompt, std::string_view title, std::string_view default_text) {
    Box box(Owner(), title);
    const QString question = WithPlainBreaks(prompt);
    box.AddText(question, ports::BoxIcon::None);
    QLineEdit* edit = box.AddInput(question, ToQt(default_text));
    box.AddButtons(
        {{QStringLiteral("OK"), QDialog::Accepted}, {QStringLiteral("Cancel"), QDialog::Rejected}});
    edit->setFocus();
    return Ask(box) == QDialog::Accepted ? edit->text().toStdString() : std::string();
}

std::vector<std::string> Boxes::OpenFiles(std::string_view title, std::string_view kind,
                                          std::span<const std::string_view> endings) {
    QFileDialog dialog(Owner(), ToQt(title), last_folder_.isEmpty() ? MusicFolder() : last_folder_);
    dialog.setFileMode(QFileDialog::ExistingFiles);
    dialog.setNameFilters({FilterOf(kind, endings), QStringLiteral("All files (*)")});
    if (Ask(dialog) != QDialog::Accepted) return {};
    last_folder_ = dialog.directory().path();
    std::vector<std::string> files;
    for (const QString& file : dialog.selectedFiles())
        files.push_back(QFile::encodeName(file).toStdString());
    return files;
}

}  // namespace qt
